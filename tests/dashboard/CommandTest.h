#ifndef COMMANDTEST_H
#define COMMANDTEST_H

#include <QSignalSpy>

#include "device/DeviceWatcher.h"
#include "fake_tksv.h"
#include "plugin/CommandMonitor.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"

/** The base class for tests that observe the plug-in's embedded window with the fake SDK. */
class CommandTest : public UssdTest
{
    Q_OBJECT
protected:
    using Kind = Dashboard::CommandState::Kind;

    void setUp() override;
    void tearDown() override;

    static void setDevice(int state, bool waitsForTurn = false);
    /// Waits until the SDK has delivered all events, and processes them.
    void settle();
    /// Advances the monitor's clock and updates the monitor.
    void pass(int seconds);

    Dashboard::CommandMonitor &monitor() { return *m_monitor; }
    const Dashboard::CommandState &state() const { return m_monitor->state(); }
    Dashboard::GeneralWindow page() const { return Dashboard::GeneralWindow(m_host.data()); }
    Dashboard::LoadedPlugin &plugin() { return *m_plugin; }
    Dashboard::DeviceWatcher &device() { return *m_device; }
    QWidget &host() { return *m_host; }

private:
    QScopedPointer<Dashboard::DeviceWatcher> m_device;
    QScopedPointer<Dashboard::ReplyTap> m_tap;
    QScopedPointer<Dashboard::CommandMonitor> m_monitor;
    QScopedPointer<QWidget> m_host;
    QScopedPointer<Dashboard::LoadedPlugin> m_plugin;
    qint64 m_now = 0;
};

#endif
