#ifndef SIMTEST_H
#define SIMTEST_H

#include <QLabel>
#include <QPushButton>

#include "plugin/GeneralWindow.h"
#include "plugin/PrivateLibrary.h"
#include "plugin/UiPlugin.h"
#include "UssdTest.h"
#include "window/MainWindow.h"

/** A dashboard on a plug-in library of its own, for tests that change the SIM under it. */
class SimTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

    void makeLibrary();
    void closeDashboard();
    /// Changes the plug-in's configuration; before openDashboard().
    bool configure(const char *anchor, const char *before, const char *after);
    void openDashboard();
    /// Switches to a network of these lines, with these keys of [Network] and these codes.
    void useNetwork(const char *imsi, const char *keys = "", const char *codes = "");

    MainWindow &window() { return *m_window; }
    UiPlugin &plugin() { return *m_plugin; }
    GeneralWindow page() const { return GeneralWindow(m_window->page()); }
    QPushButton *button(const char *name) const;
    /// The windows that have a button to be seen, such as "general prepaid".
    QString offered() const;
    QString paidType() const;
    /// The frame of the plug-in that is open; null when none is.
    static QWidget *frame();

    QScopedPointer<PrivateLibrary> m_library;

private:
    QScopedPointer<UiPlugin> m_plugin;
    QScopedPointer<MainWindow> m_window;
};

#endif
