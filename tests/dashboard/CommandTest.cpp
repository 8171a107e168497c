#include "CommandTest.h"

#include "HostState.h"
#include "IUIPlugin.h"
#include "Languages.h"

using namespace Dashboard;

void CommandTest::setUp()
{
    fakeSdkReset();
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    setDevice(TKSV_DEVICE_REGISTERED);
    m_device.reset(new DeviceWatcher);
    m_tap.reset(new ReplyTap);
    m_host.reset(new QWidget);
    m_monitor.reset(new CommandMonitor([this] { return page(); }, m_device.data(), m_tap.data()));
    m_now = 0;
    m_monitor->setClock([this] { return m_now; });
    m_plugin.reset(new LoadedPlugin);
    QCOMPARE(int(m_plugin->load(LoadedPlugin::installedFile()).step), int(PluginFailure::None));
    m_host->resize(900, 600);
    m_host->show();
    QRect rect = m_host->rect();
    m_plugin->plugin()->ShowWindow(m_host.data(), rect);
    settle();
}

void CommandTest::tearDown()
{
    m_plugin.reset();
    m_monitor.reset();
    m_host.reset();
    m_tap.reset();
    m_device.reset();
    HostCore::HostState::setShuttingDown(false);
    fakeSdkReset();
}

void CommandTest::setDevice(int state, bool waitsForTurn)
{
    TKSV_DeviceInfo info = {};
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.state = TKSV_DeviceState(state);
    info.signalPercent = 50;
    info.waitsForTurn = waitsForTurn ? 1 : 0;
    fakeSdkSetDeviceInfo(info);
}

void CommandTest::settle()
{
    for (int i = 0; i < 2; ++i) { // the plug-in's reaction to an event may cause another event
        QVERIFY(fakeSdkWaitIdle());
        drainEvents();
    }
}

void CommandTest::pass(int seconds)
{
    m_now += qint64(1000) * seconds;
    m_monitor->tick();
    drainEvents();
}
