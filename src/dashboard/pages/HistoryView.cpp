#include "HistoryView.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int NAME_COLUMN = 1;
const int TIME_COLUMN = 2;

// In pixels at 100 % text size.
const int FOOTER_HEIGHT = 37;
const int ROOM_FOR_TIME = 340; // the minimum width at which the times are shown

} // namespace

HistoryView::HistoryView(QWidget *parent)
    : QTreeView(parent), m_footer(new QWidget(this)), m_note(new ElidedLabel(m_footer)),
      m_button(makeButton("ghost", m_footer))
{
    setObjectName(QLatin1String("Dashboard_HistoryList"));
    setRootIsDecorated(false);
    setHeaderHidden(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_button->setObjectName(QLatin1String("Dashboard_DeleteHistory"));
    m_button->setFocusPolicy(Qt::NoFocus);
    setLabelType(m_note, "cap");
    QHBoxLayout *row = new QHBoxLayout;
    setMargins(row, 8, 0, 0, 0);
    row->addWidget(m_note, 1);
    row->addWidget(m_button);
    QVBoxLayout *column = new QVBoxLayout(m_footer);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeLine(m_footer));
    column->addLayout(row, 1);
    connect(m_button, &QPushButton::clicked, this, &HistoryView::deleteRequested);
}

void HistoryView::showFooter(const QString &note, const QString &action, bool hasAction)
{
    m_note->setText(note);
    m_button->setText(action);
    m_button->setVisible(hasAction);
    setButtonCurrent(false);
}

int HistoryView::footerHeight() const
{
    return px(FOOTER_HEIGHT);
}

void HistoryView::setButtonCurrent(bool isCurrent)
{
    m_isButtonCurrent = isCurrent;
    m_button->setDown(isCurrent);
    if (!isCurrent)
        return;
    setCurrentIndex(QModelIndex());
    QAccessibleEvent event(m_button, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void HistoryView::arrangeColumns()
{
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(NAME_COLUMN, QHeaderView::Stretch);
    setColumnHidden(TIME_COLUMN, width() < px(ROOM_FOR_TIME));
}

/// Reserves space for the footer after the base class has reset the margins. Setting the margins
/// resizes the viewport and therefore calls this function recursively.
void HistoryView::updateGeometries()
{
    if (m_isUpdating)
        return;
    m_isUpdating = true;
    const int position = verticalScrollBar()->value();
    QTreeView::updateGeometries();
    setViewportMargins(0, 0, 0, footerHeight());
    m_isUpdating = false;
    updateScrollRange();
    verticalScrollBar()->setValue(position);
    placeFooter();
}

/// Sets the range of the scroll bar. The base class ignores the footer, which would therefore hide
/// the last row.
void HistoryView::updateScrollRange()
{
    const int rows = model() ? model()->rowCount() : 0;
    if (rows == 0)
        return;
    const int visible = viewport()->height() / qMax(1, rowHeight(model()->index(0, 0)));
    verticalScrollBar()->setRange(0, qMax(0, rows - visible));
    verticalScrollBar()->setPageStep(visible);
}

void HistoryView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    placeFooter();
}

void HistoryView::placeFooter()
{
    const QRect rows = viewport()->geometry();
    const QRect inside = contentsRect();
    m_footer->setGeometry(inside.left(), rows.bottom() + 1, inside.width(), footerHeight());
}

} // namespace Dashboard
