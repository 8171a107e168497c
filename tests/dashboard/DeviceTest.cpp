#include "DeviceTest.h"

#include <QSignalSpy>

#include <cstring>

#include "HostState.h"
#include "Languages.h"
#include "window/Banners.h"
#include "window/DeviceMenu.h"
#include "window/NoticeBar.h"

using namespace Dashboard;

namespace
{

template <std::size_t SIZE>
void copy(char (&target)[SIZE], const char *text)
{
    std::strncpy(target, text, SIZE - 1);
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
    for (QAction *action : m_window->deviceMenu()->actions()) {
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

QString DeviceTest::notice(const char *name) const
{
    const NoticeBar *bar = part<NoticeBar>(name);
    return bar && bar->isVisible() ? bar->text() : QString();
}
