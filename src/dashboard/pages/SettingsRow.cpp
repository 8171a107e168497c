#include "SettingsRow.h"

#include <QGridLayout>

#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

/// Returns the part of the control that the user operates.
QWidget *focusTarget(QWidget *control)
{
    return control->focusProxy() ? control->focusProxy() : control;
}

} // namespace

SettingsRow::SettingsRow(const char *icon, QWidget *control, bool isControlWide, QWidget *parent)
    : QWidget(parent), m_grid(new QGridLayout(this)), m_icon(new IconView(this)),
      m_title(makeLabel("strong", this)), m_description(makeLabel("small", this)),
      m_control(control), m_isControlWide(isControlWide)
{
    control->setParent(this);
    m_icon->setIcon(icon, Token::Text2, 18);
    m_title->setWordWrap(true);
    m_title->setBuddy(focusTarget(control));
    m_description->setWordWrap(true);
    setMargins(m_grid, 16, 10, 16, 10);
    m_grid->setVerticalSpacing(0);
    m_grid->setHorizontalSpacing(14);
    m_grid->setColumnStretch(1, 1);
    place(false);
}

void SettingsRow::place(bool isControlBelow)
{
    for (QWidget *widget : {static_cast<QWidget *>(m_icon), static_cast<QWidget *>(m_title),
                            static_cast<QWidget *>(m_description), m_control})
        m_grid->removeWidget(widget);
    m_grid->addWidget(m_icon, 0, 0, 2, 1, Qt::AlignCenter);
    m_grid->addWidget(m_title, 0, 1, Qt::AlignBottom);
    m_grid->addWidget(m_description, 1, 1, Qt::AlignTop);
    if (isControlBelow)
        m_grid->addWidget(m_control, 3, 0, 1, 3, Qt::AlignLeading);
    else
        m_grid->addWidget(m_control, 0, 2, 2, 1, Qt::AlignTrailing | Qt::AlignVCenter);
    m_grid->setRowMinimumHeight(2, isControlBelow ? px(6) : 0);
}

void SettingsRow::setTexts(const QString &title, const QString &description)
{
    m_title->setText(title);
    m_description->setText(description);
    m_description->setVisible(!description.isEmpty());
    m_grid->removeWidget(m_title);
    m_grid->addWidget(m_title, 0, 1, description.isEmpty() ? 2 : 1, 1,
                      description.isEmpty() ? Qt::AlignVCenter : Qt::AlignBottom);
    QWidget *named = focusTarget(m_control);
    named->setAccessibleDescription(description);
    if (MenuButton *choice = qobject_cast<MenuButton *>(named))
        choice->setTitle(title);
    else
        named->setAccessibleName(title);
}

void SettingsRow::setForm(Form form)
{
    place(form == Form::Narrow && m_isControlWide);
    setTexts(m_title->text(), m_description->text());
}

} // namespace Dashboard
