#ifndef SIMTEST_H
#define SIMTEST_H

#include <QLabel>
#include <QPushButton>

#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/PrivatePluginFolder.h"
#include "UssdTest.h"
#include "window/MainWindow.h"

/** The base class of tests that run the dashboard with a plug-in library folder of its own and
 * change the SIM. */
class SimTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

    void makeLibrary();
    void closeDashboard();
    /// Changes the plug-in's configuration. Must be called before openDashboard().
    bool configure(const char *anchor, const char *before, const char *after);
    void openDashboard();
    /// Selects a simulated network with this IMSI, these keys of [Network] and these codes.
    void useNetwork(const char *imsi, const char *keys = "", const char *codes = "");

    Dashboard::MainWindow &window() { return *m_window; }
    Dashboard::LoadedPlugin &plugin() { return *m_plugin; }
    Dashboard::GeneralWindow page() const { return Dashboard::GeneralWindow(m_window->page()); }
    QPushButton *button(const char *name) const;
    /// Returns the windows whose buttons are visible, such as "general prepaid".
    QString offered() const;
    QString paidType() const;
    /// Returns the open frame of the plug-in, or null.
    static QWidget *frame();

    QScopedPointer<Dashboard::PrivatePluginFolder> m_library;

private:
    QScopedPointer<Dashboard::LoadedPlugin> m_plugin;
    QScopedPointer<Dashboard::MainWindow> m_window;
};

#endif
