#ifndef DEVICETEST_H
#define DEVICETEST_H

#include <QAction>
#include <QLabel>
#include <QPushButton>

#include "device/DashboardSettings.h"
#include "fake_tksv.h"
#include "plugin/UiPlugin.h"
#include "UssdTest.h"
#include "window/MainWindow.h"

/** A dashboard on the device SDK that does what a test says. */
class DeviceTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

    /// What the device tells from now on; waits until the dashboard has heard of it.
    void tell(const TKSV_DeviceInfo &info);
    void tellModems(const std::vector<TKSV_Modem> &modems);
    static TKSV_DeviceInfo modemInfo(int state, int problem = 0, int pinRetries = -1);
    static TKSV_Modem modem(const char *equipmentId, const char *name, bool isInUse = false);

    MainWindow &window() { return *m_window; }
    DashboardSettings &settings() { return *m_settings; }
    /// With the plug-in in its page.
    void loadPlugin();
    template <typename T>
    T *part(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1String(name));
    }
    QAction *networkAction(const QString &text) const;
    /// The text of a line that tells something; empty while it is hidden.
    QString notice(const char *name) const;

private:
    QScopedPointer<DashboardSettings> m_settings;
    QScopedPointer<UiPlugin> m_plugin;
    QScopedPointer<MainWindow> m_window;
};

#endif
