#include "DeviceMenu.h"

#include <QActionGroup>

#include "base/DashboardText.h"
#include "device/Scenarios.h"

namespace Dashboard
{

namespace
{

/// The demonstrations that are installed with the program.
const struct {
    const char *name;
    const char *textKey;
} NETWORKS[] = {{"postpaid", "NETWORK_POSTPAID"}, {"weak-signal", "NETWORK_WEAK_SIGNAL"}};

const char DEFAULT_NAME[] = "default";

/// Returns the name with "&" escaped, because a single "&" would mark a mnemonic.
QString asMenuText(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// Returns the name of a demonstration in the user's language, or the name of the file if the file
/// is not one of the installed demonstrations.
QString nameOf(const QString &file, const QStringList &shipped)
{
    QString name = Scenarios::displayName(file);
    for (const auto &known : NETWORKS) {
        if (name == QLatin1String(known.name) && shipped.contains(file))
            return dashboardText(known.textKey);
    }
    return name;
}

} // namespace

DeviceMenu::DeviceMenu(QWidget *parent) : QMenu(parent)
{
    connect(this, SIGNAL(aboutToShow()), this, SLOT(fill()));
    retranslate();
}

void DeviceMenu::offer(const DeviceChoice &choice, const QList<Modem> &modems)
{
    m_choice = choice;
    m_modems = modems;
    if (!isEmpty() && !isVisible())
        fill();
}

void DeviceMenu::retranslate()
{
    setTitle(dashboardText("MENU_MODEM"));
}

void DeviceMenu::fill()
{
    clear();
    delete m_group;
    m_group = new QActionGroup(this);
    connect(m_group, SIGNAL(triggered(QAction *)), this, SLOT(onTriggered(QAction *)));
    addChoice(dashboardText("NETWORK_AUTOMATIC"), DeviceChoice::automatic());
    addSeparator();
    addModems();
    addSeparator();
    addScenarios();
    addAction(dashboardText("NETWORK_OPEN"), this, SIGNAL(openRequested()));
}

void DeviceMenu::addModems()
{
    for (const Modem &modem : m_modems) {
        const QString title = asMenuText(modemTitle(modem, m_modems));
        addChoice(modem.isInUse ? dashboardText("NETWORK_IN_USE").arg(title) : title,
                  DeviceChoice::modem(modem.equipmentId));
    }
    if (m_choice.kind == DeviceChoice::Modem && !hasModem(m_choice.name))
        addChoice(dashboardText("NETWORK_ABSENT_MODEM").arg(asMenuText(m_choice.name)), m_choice);
    else if (m_modems.isEmpty())
        addAction(dashboardText("NETWORK_NO_MODEM"))->setEnabled(false);
}

void DeviceMenu::addScenarios()
{
    addChoice(dashboardText("NETWORK_DEFAULT"), DeviceChoice::simulated(QString()));
    const QStringList shipped = Scenarios::shipped();
    QStringList files = shipped;
    if (m_choice.kind == DeviceChoice::Simulated && !m_choice.name.isEmpty() &&
        !files.contains(m_choice.name))
        files << m_choice.name;
    for (const QString &file : files) {
        if (Scenarios::displayName(file) != QLatin1String(DEFAULT_NAME))
            addChoice(dashboardText("NETWORK_DEMONSTRATION").arg(asMenuText(nameOf(file, shipped))),
                      DeviceChoice::simulated(file));
    }
}

void DeviceMenu::addChoice(const QString &text, const DeviceChoice &choice)
{
    QAction *action = addAction(text);
    action->setData(choice.word());
    action->setCheckable(true);
    action->setChecked(choice == m_choice);
    m_group->addAction(action);
}

bool DeviceMenu::hasModem(const QString &equipmentId) const
{
    for (const Modem &modem : m_modems) {
        if (modem.equipmentId == equipmentId)
            return true;
    }
    return false;
}

void DeviceMenu::onTriggered(QAction *action)
{
    emit chosen(action->data().toString());
}

} // namespace Dashboard
