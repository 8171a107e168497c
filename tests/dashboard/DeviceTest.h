#ifndef DEVICETEST_H
#define DEVICETEST_H

#include <QAction>
#include <QLabel>
#include <QPushButton>

#include "device/DashboardSettings.h"
#include "device/Situation.h"
#include "fake_tksv.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"
#include "window/MainWindow.h"

/** The base class for tests that run the dashboard with the fake device SDK. */
class DeviceTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

    /// Sets the device status and waits until the dashboard has received it.
    void tell(const TKSV_DeviceInfo &info);
    void tellModems(const std::vector<TKSV_Modem> &modems);
    static TKSV_DeviceInfo modemInfo(int state, int problem = 0, int pinRetries = -1);
    static TKSV_Modem modem(const char *equipmentId, const char *name, bool isInUse = false);

    Dashboard::MainWindow &window() { return *m_window; }
    Dashboard::DashboardSettings &settings() { return *m_settings; }
    /// Replaces the window with a new one that shows the page Home.
    void openOnHome();
    /// Loads the plug-in into the page.
    void loadPlugin();
    template <typename T>
    T *part(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1String(name));
    }
    QAction *networkAction(const QString &text) const;
    /// Returns the title and the text of the state strip if it explains why no code can be sent.
    /// Otherwise returns an empty string.
    QString trouble() const;
    /// Returns the title and the text that the state strip shows for the last command, or an empty
    /// string if there is no command.
    QString commandText() const;
    /// Returns the visible button for the remedy, or null if there is none.
    QPushButton *remedyButton(Dashboard::Remedy remedy) const;
    /// Returns the text of the visible banner, or an empty string if there is none.
    QString banner() const;

private:
    QString stripText() const;

    QScopedPointer<Dashboard::DashboardSettings> m_settings;
    QScopedPointer<Dashboard::LoadedPlugin> m_plugin;
    QScopedPointer<Dashboard::MainWindow> m_window;
};

#endif
