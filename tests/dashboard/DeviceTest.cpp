#include "DeviceTest.h"

#include <QSignalSpy>

#include <cstring>

#include "HostState.h"
#include "Languages.h"
#include "pages/StateStrip.h"
#include "window/Banners.h"
#include "window/DeviceMenu.h"

using namespace Dashboard;

namespace
{

template <std::size_t SIZE>
void copy(char (&target)[SIZE], const char *text)
{
    std::strncpy(target, text, SIZE - 1);
}

QString withoutIsolates(QString text)
{
    return text.remove(QChar(0x2066)).remove(QChar(0x2069));
}

} // namespace

void DeviceTest::setUp()
{
    fakeSdkReset();
    QFile::remove(DashboardSettings().file());
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    fakeSdkSetDeviceInfo(modemInfo(TKSV_DEVICE_REGISTERED));
    m_settings.reset(new DashboardSettings);
    m_settings->setFirstRunDone(true);
    m_plugin.reset(new LoadedPlugin);
    m_window.reset(new MainWindow(m_plugin.data(), m_settings.data()));
    m_window->showPage(PageId::Codes);
    m_window->show();
}

void DeviceTest::tearDown()
{
    m_plugin.reset();
    m_window.reset();
    m_settings.reset();
    HostCore::HostState::setShuttingDown(false);
    fakeSdkReset();
}

void DeviceTest::openOnHome()
{
    m_window.reset();
    m_window.reset(new MainWindow(m_plugin.data(), m_settings.data()));
    m_window->show();
    drainEvents();
}

void DeviceTest::loadPlugin()
{
    const PluginFailure failure = m_window->loadPlugin();
    QVERIFY2(m_plugin->isUsable(), qPrintable(failure.text()));
}

void DeviceTest::tell(const TKSV_DeviceInfo &info)
{
    fakeSdkSetDeviceInfo(info);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
    drainEvents(); // shows the widgets that the first call has created
}

void DeviceTest::tellModems(const std::vector<TKSV_Modem> &modems)
{
    fakeSdkSetModems(modems);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

TKSV_DeviceInfo DeviceTest::modemInfo(int state, int problem, int pinRetries)
{
    TKSV_DeviceInfo info = {};
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.state = TKSV_DeviceState(state);
    info.problem = TKSV_DeviceProblem(problem);
    info.signalPercent = 50;
    info.pinRetries = pinRetries;
    copy(info.source, "Maker Model");
    copy(info.equipmentId, "353612345678901");
    return info;
}

TKSV_Modem DeviceTest::modem(const char *equipmentId, const char *name, bool isInUse)
{
    TKSV_Modem modem = {};
    copy(modem.equipmentId, equipmentId);
    copy(modem.name, name);
    modem.isInUse = isInUse;
    return modem;
}

QAction *DeviceTest::networkAction(const QString &text) const
{
    DeviceMenu *menu = m_window->deviceMenu();
    if (!menu->isVisible())
        menu->fill();
    for (QAction *action : menu->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

QString DeviceTest::banner() const
{
    const Banners *banners = part<Banners>("Dashboard_Banner");
    return banners->isVisible() ? banners->banner(Banners::Kind(banners->shown())).text : QString();
}

QString DeviceTest::stripText() const
{
    const StateStrip *strip = part<StateStrip>("Dashboard_StateStrip");
    if (!strip->isVisible())
        return QString();
    const QString text = strip->title() + QLatin1String(". ") + strip->text();
    return withoutIsolates(text);
}

QString DeviceTest::trouble() const
{
    const bool isBlocked = part<StateStrip>("Dashboard_StateStrip")->isBlocked();
    return isBlocked ? stripText() : QString();
}

QString DeviceTest::commandText() const
{
    const CommandState &state = m_window->controller().monitor().state();
    const bool isBlocked = part<StateStrip>("Dashboard_StateStrip")->isBlocked();
    return isBlocked || state.kind == CommandState::Kind::Ready ? QString() : stripText();
}

QPushButton *DeviceTest::remedyButton(Remedy remedy) const
{
    const QString name = QString::fromLatin1("Dashboard_Remedy_%1").arg(int(remedy));
    for (QPushButton *button : m_window->findChildren<QPushButton *>(name)) {
        if (button->isVisible())
            return button;
    }
    return nullptr;
}
