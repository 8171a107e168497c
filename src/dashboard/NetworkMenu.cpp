#include "NetworkMenu.h"

#include <QActionGroup>
#include <QFileInfo>

#include "DashboardText.h"
#include "Scenarios.h"

namespace
{

const char DEFAULT_NAME[] = "default";

/// A file's name means itself, not a mnemonic.
QString asMenuText(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

NetworkMenu::NetworkMenu(QWidget *parent) : QMenu(parent)
{
    setCurrent(QString());
}

void NetworkMenu::setCurrent(const QString &file)
{
    m_current = file;
    retranslate();
}

void NetworkMenu::retranslate()
{
    clear();
    delete m_group;
    m_group = new QActionGroup(this);
    connect(m_group, SIGNAL(triggered(QAction *)), this, SLOT(onTriggered(QAction *)));
    setTitle(dashboardText("MENU_NETWORK"));

    addScenario(dashboardText("NETWORK_DEFAULT"), QString());
    QStringList files = Scenarios::shipped();
    if (!m_current.isEmpty() && !files.contains(m_current))
        files << m_current;
    for (const QString &file : files) {
        if (Scenarios::displayName(file) != QLatin1String(DEFAULT_NAME))
            addScenario(asMenuText(Scenarios::displayName(file)), file);
    }
    addSeparator();
    addAction(dashboardText("NETWORK_OPEN"), this, SIGNAL(openRequested()));
    addAction(dashboardText("NETWORK_MODEM"))->setEnabled(false);
}

void NetworkMenu::addScenario(const QString &text, const QString &file)
{
    QAction *action = addAction(text);
    action->setData(file);
    action->setCheckable(true);
    action->setChecked(file == m_current);
    m_group->addAction(action);
}

void NetworkMenu::onTriggered(QAction *action)
{
    emit chosen(action->data().toString());
}
