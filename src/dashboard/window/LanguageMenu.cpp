#include "LanguageMenu.h"

#include <QActionGroup>

#include "base/DashboardText.h"
#include "Languages.h"

namespace Dashboard
{

LanguageMenu::LanguageMenu(QWidget *parent) : QMenu(parent), m_group(new QActionGroup(this))
{
    for (const QString &code : HostCore::Languages::codes()) {
        QAction *action = addAction(HostCore::Languages::nativeName(code));
        action->setData(code);
        action->setCheckable(true);
        m_group->addAction(action);
    }
    connect(m_group, SIGNAL(triggered(QAction *)), this, SLOT(onTriggered(QAction *)));
    retranslate();
}

void LanguageMenu::retranslate()
{
    setTitle(dashboardText("MENU_LANGUAGE"));
    for (QAction *action : m_group->actions())
        action->setChecked(action->data().toString() == HostCore::Languages::current());
}

void LanguageMenu::onTriggered(QAction *action)
{
    emit chosen(action->data().toString());
}

} // namespace Dashboard
