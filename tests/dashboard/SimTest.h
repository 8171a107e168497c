#ifndef SIMTEST_H
#define SIMTEST_H

#include <QAction>
#include <QLabel>
#include <QPushButton>

#include "device/DashboardSettings.h"
#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/PrivatePluginFolder.h"
#include "UssdTest.h"
#include "window/MainWindow.h"

/**
 * The base class for tests that change the SIM card. They run the dashboard with a private copy of
 * the plug-in's library folder.
 */
class SimTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

    void makeLibrary();
    void closeDashboard();
    /// Replaces a string in the plug-in's configuration. Must be called before openDashboard().
    bool configure(const char *anchor, const char *before, const char *after);
    /// Opens the window. If `settings` is null, nothing is stored.
    void openDashboard(Dashboard::DashboardSettings *settings = nullptr);
    /// Selects a simulated network with this IMSI and with the given [Network] keys and codes.
    void useNetwork(const char *imsi, const char *keys = "", const char *codes = "");

    Dashboard::MainWindow &window() { return *m_window; }
    Dashboard::LoadedPlugin &plugin() { return *m_plugin; }
    Dashboard::GeneralWindow page() const { return Dashboard::GeneralWindow(m_window->page()); }
    QPushButton *button(const char *name) const;
    QAction *action(const char *name) const;
    /// Returns the names of the windows that the dashboard offers, for example "general prepaid".
    QString offered() const;
    QString paidType() const;
    /// Returns the plug-in's open frame, or null if there is none.
    static QWidget *frame();

    QScopedPointer<Dashboard::PrivatePluginFolder> m_library;

private:
    QScopedPointer<Dashboard::LoadedPlugin> m_plugin;
    QScopedPointer<Dashboard::MainWindow> m_window;
};

#endif
