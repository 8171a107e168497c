#include "PageColumn.h"

#include <QVBoxLayout>

#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int MUCH = 1000; // the stretch factor of the column; that of the space at its sides is 1

} // namespace

PageColumn::PageColumn(int widest, QWidget *parent)
    : QScrollArea(parent), m_widest(widest), m_content(new QWidget)
{
    QWidget *canvas = new QWidget;
    m_row = new QHBoxLayout(canvas);
    m_column = new QVBoxLayout(m_content);
    m_column->setContentsMargins(0, 0, 0, 0);
    setSpacing(m_column, 16);
    m_row->addStretch(1);
    m_row->addWidget(m_content, MUCH);
    m_row->addStretch(1);
    setWidget(canvas);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setForm(Form::Wide);
    limitWidth();
    connect(&Look::instance(), &Look::changed, this, &PageColumn::limitWidth);
}

void PageColumn::setForm(Form form)
{
    const int side = form == Form::Narrow ? 8 : 24;
    const int end = form == Form::Narrow ? 12 : 20;
    setMargins(m_row, side, end, side, end);
    m_row->setSpacing(0);
}

void PageColumn::limitWidth()
{
    m_content->setMaximumWidth(px(m_widest));
}

} // namespace Dashboard
