#include "ProfileTableWidget.h"

ProfileTableWidget::ProfileTableWidget(QWidget *parent) : QTableWidget(parent) {}

ProfileTableWidget::ProfileTableWidget(int rows, int columns, QWidget *parent)
    : QTableWidget(rows, columns, parent)
{
}

void ProfileTableWidget::keyboardSearch(const QString &search)
{
    Q_UNUSED(search);
}

void ProfileTableWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    Q_UNUSED(event);
    if (currentRow() < 0 || currentColumn() < 0)
        return;
    if (!currentItem())
        setItem(currentRow(), currentColumn(), new QTableWidgetItem);
    if (currentItem()->flags() & Qt::ItemIsEditable)
        editItem(currentItem());
    activateWindow();
}
