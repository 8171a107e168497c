#include "PlainCopy.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

namespace
{

QLayout *copyOf(const QLayout &original, QWidget *parent);

QLabel *copyOf(const QLabel &original, QWidget *parent)
{
    QLabel *label = new QLabel(original.text(), parent);
    label->setTextFormat(original.textFormat());
    label->setWordWrap(original.wordWrap());
    return label;
}

QTextEdit *copyOf(const QTextEdit &original, QWidget *parent)
{
    QTextEdit *edit = new QTextEdit(parent);
    edit->setTextInteractionFlags(original.textInteractionFlags());
    return edit;
}

QComboBox *copyOf(const QComboBox &original, QWidget *parent)
{
    QComboBox *combo = new QComboBox(parent);
    for (int i = 0; i < original.count(); ++i)
        combo->addItem(original.itemText(i));
    combo->setEditable(original.isEditable());
    combo->view()->setTextElideMode(original.view()->textElideMode());
    return combo;
}

QWidget *sameKind(const QWidget &original, QWidget *parent)
{
    if (const QLabel *label = qobject_cast<const QLabel *>(&original))
        return copyOf(*label, parent);
    if (const QPushButton *button = qobject_cast<const QPushButton *>(&original))
        return new QPushButton(button->text(), parent);
    if (qobject_cast<const QLineEdit *>(&original))
        return new QLineEdit(parent);
    if (const QTextEdit *edit = qobject_cast<const QTextEdit *>(&original))
        return copyOf(*edit, parent);
    if (const QComboBox *combo = qobject_cast<const QComboBox *>(&original))
        return copyOf(*combo, parent);
    return new QWidget(parent);
}

QWidget *copyOf(const QWidget &original, QWidget *parent)
{
    QWidget *copy = sameKind(original, parent);
    copy->setMinimumSize(original.minimumSize());
    copy->setMaximumSize(original.maximumSize());
    copy->setEnabled(original.isEnabled());
    copy->setHidden(original.isHidden());
    return copy;
}

void copyGrid(const QGridLayout &original, QGridLayout &grid, QWidget *parent)
{
    grid.setHorizontalSpacing(original.horizontalSpacing());
    grid.setVerticalSpacing(original.verticalSpacing());
    for (int i = 0; i < original.count(); ++i) {
        int row, column, rows, columns;
        original.getItemPosition(i, &row, &column, &rows, &columns);
        QLayoutItem *item = original.itemAt(i);
        if (item->layout())
            grid.addLayout(copyOf(*item->layout(), parent), row, column, rows, columns,
                           item->alignment());
        else
            grid.addWidget(copyOf(*item->widget(), parent), row, column, rows, columns,
                           item->alignment());
    }
    for (int row = 0; row < original.rowCount(); ++row) {
        grid.setRowStretch(row, original.rowStretch(row));
        grid.setRowMinimumHeight(row, original.rowMinimumHeight(row));
    }
}

void copyBox(const QBoxLayout &original, QBoxLayout &box, QWidget *parent)
{
    box.setSpacing(original.spacing());
    for (int i = 0; i < original.count(); ++i)
        box.addWidget(copyOf(*original.itemAt(i)->widget(), parent), original.stretch(i),
                      original.itemAt(i)->alignment());
}

QLayout *copyOf(const QLayout &original, QWidget *parent)
{
    if (const QGridLayout *grid = qobject_cast<const QGridLayout *>(&original)) {
        QGridLayout *copy = new QGridLayout;
        copyGrid(*grid, *copy, parent);
        copy->setContentsMargins(original.contentsMargins());
        return copy;
    }
    const QBoxLayout *box = qobject_cast<const QBoxLayout *>(&original);
    QBoxLayout *copy = new QBoxLayout(box ? box->direction() : QBoxLayout::TopToBottom);
    if (box)
        copyBox(*box, *copy, parent);
    return copy;
}

bool isLaidOut(const QWidget &widget, const QLayout &layout)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        if (item->widget() == &widget || (item->layout() && isLaidOut(widget, *item->layout())))
            return true;
    }
    return false;
}

} // namespace

QWidget *plainCopy(const QWidget &original, QWidget *parent)
{
    QDialog *copy = new QDialog(parent, original.windowFlags());
    copy->setMinimumSize(original.minimumSize());
    copy->setMaximumSize(original.maximumSize());
    copy->setLayout(copyOf(*original.layout(), copy));
    const QList<QWidget *> children =
        original.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        if (!isLaidOut(*child, *original.layout()))
            copyOf(*child, copy);
    }
    return copy;
}
