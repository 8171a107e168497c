/*
 * Opens the dashboard as the main function does, and closes it when the plug-in's page is visible.
 * The exit status is 0 if the dashboard ended normally and saved its window geometry.
 */
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>

#include "Arguments.h"
#include "device/DashboardSettings.h"
#include "IUSSD.h"
#include "plugin/GeneralWindow.h"
#include "Program.h"
#include "window/MainWindow.h"

using namespace Dashboard;

namespace
{

const int INTERVAL = 20; // ms
const int LIMIT = 500;   // number of intervals before the program gives up
bool pageSeen = false;
bool frameSeen = false;

class Closer : public QObject
{
    Q_OBJECT
public:
    explicit Closer(QObject *parent) : QObject(parent)
    {
        connect(&m_timer, &QTimer::timeout, this, &Closer::look);
        m_timer.start(INTERVAL);
    }

private:
    // Closes the main window while a frame is open and a command is pending. This must close the
    // frame and cancel the command.
    void look()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            MainWindow *window = qobject_cast<MainWindow *>(widget);
            if (!window || !GeneralWindow(window->page()).isComplete())
                continue;
            pageSeen = GeneralWindow(window->page()).send(QLatin1String("*199#"));
            window->openFrame(PAID_TYPE_GENERAL);
            frameSeen = GeneralWindow::framed().isComplete();
            m_timer.stop();
            window->close();
            QApplication::quit();
            return;
        }
        if (++m_looks > LIMIT)
            QApplication::exit(1);
    }

    QTimer m_timer;
    int m_looks = 0;
};

void closeSoon()
{
    new Closer(qApp);
}
Q_COREAPP_STARTUP_FUNCTION(closeSoon)

int fail(const char *what)
{
    fprintf(stderr, "%s\n", what);
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (Program::openWindow(argc, argv, Arguments()) != EXIT_GOOD)
        return fail("the dashboard did not end well");
    if (!pageSeen || !frameSeen)
        return fail("the plug-in's windows were not seen");
    if (DashboardSettings().geometry().isEmpty())
        return fail("the window's place was not remembered");
    return 0;
}

#include "open_window_test.moc"
