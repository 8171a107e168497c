#include "NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace Dashboard
{

namespace
{

const QMargins COMPACT_MARGINS(10, 2, 10, 2); // pixels

} // namespace

NoticeBar::NoticeBar(const char *objectName, QWidget *parent)
    : QFrame(parent), m_label(new QLabel(this)), m_row(new QHBoxLayout(this))
{
    setFrameShape(QFrame::StyledPanel);
    setObjectName(QLatin1String(objectName));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_row->addWidget(m_label, 1);
    hide();
}

void NoticeBar::setText(const QString &text)
{
    m_label->setText(text);
    m_label->setAccessibleName(text);
    setVisible(!text.isEmpty());
}

QString NoticeBar::text() const
{
    return m_label->text();
}

void NoticeBar::setCompact()
{
    m_row->setContentsMargins(COMPACT_MARGINS);
}

QPushButton *NoticeBar::addButton(const char *objectName)
{
    QPushButton *button = new QPushButton(this);
    button->setObjectName(QLatin1String(objectName));
    button->hide();
    m_row->addWidget(button);
    return button;
}

void NoticeBar::setButtonText(QPushButton *button, const QString &text)
{
    button->setText(text);
    button->setVisible(!text.isEmpty());
}

} // namespace Dashboard
