#include "Program.h"

#include <QApplication>
#include <QRect>

#include "Arguments.h"
#include "CommandSender.h"
#include "DashboardSettings.h"
#include "DashboardText.h"
#include "FirstPaint.h"
#include "GeneralWindow.h"
#include "IUIPlugin.h"
#include "KeyboardHelper.h"
#include "Languages.h"
#include "MainWindow.h"
#include "PrivateLibrary.h"
#include "ProfileKeeper.h"
#include "ReplyLimit.h"
#include "ReplyTap.h"
#include "Scenarios.h"
#include "TerminalText.h"
#include "tksv.h"
#include "Tour.h"
#include "TourGuide.h"
#include "UiPlugin.h"

namespace
{

const char PLATFORM[] = "QT_QPA_PLATFORM";
const QSize UNSEEN_SIZE(800, 600); // of the widget that hosts the plug-in's page without a display

bool isSet(const char *variable)
{
    return !qgetenv(variable).isEmpty();
}

/// Qt would end the program when it finds none.
bool hasDisplay()
{
    return isSet(PLATFORM) || isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

void doWithoutDisplay()
{
    qputenv(PLATFORM, "offscreen");
}

int fail(const QString &text, ExitCode code = EXIT_BAD)
{
    printErrorLine(text);
    return code;
}

/// Empty when the scenario of the command line is in use, or when none is named there.
QString useNamedScenario(const Arguments &arguments)
{
    return arguments.scenario.isEmpty() ? QString() : Scenarios::use(arguments.scenario);
}

/// The remembered scenario, unless the environment names one; `used` is the one that is in use
/// then. Returns what is wrong with it; the default is in use then.
QString useRememberedScenario(const DashboardSettings &settings, QString *used)
{
    if (isSet("TKSV_SCENARIO") || settings.scenario().isEmpty())
        return Scenarios::use(QString());
    QString error = Scenarios::use(settings.scenario());
    if (error.isEmpty())
        *used = settings.scenario();
    return error;
}

int sendThrough(UiPlugin &plugin, ReplyTap &tap, const QStringList &commands)
{
    QWidget host;
    QRect rect(QPoint(), UNSEEN_SIZE);
    plugin.plugin()->ShowWindow(&host, rect);
    CommandSender sender(GeneralWindow(&host), tap, replyLimit());
    const bool sent = sender.send(commands);
    int status = 0;
    TKSV_USSDSrv_Release(&status); // an open menu is not left to the next program
    plugin.shutDown();
    return sent ? EXIT_GOOD : EXIT_BAD;
}

} // namespace

int Program::complain(const Arguments &arguments)
{
    const QString text = dashboardText(arguments.errorKey);
    printErrorLine(text.contains(QLatin1String("%1")) ? text.arg(arguments.errorSubject) : text);
    return fail(dashboardText("CLI_TRY_HELP"), EXIT_USAGE);
}

int Program::help()
{
    printLine(dashboardText("CLI_HELP"));
    return EXIT_GOOD;
}

int Program::version()
{
    printLine(QLatin1String("ussd-dashboard " USSD_VERSION));
    return EXIT_GOOD;
}

int Program::openWindow(int &argc, char **argv, const Arguments &arguments)
{
    if (!hasDisplay())
        return fail(dashboardText("CLI_NO_DISPLAY"));
    QApplication application(argc, argv);
    Languages::setCurrent(Languages::current()); // now for widgets too
    const QString unusable = useNamedScenario(arguments);
    if (!unusable.isEmpty())
        return fail(unusable, EXIT_USAGE);
    DashboardSettings settings;
    QString scenario = arguments.scenario;
    QString forgotten; // before the window, which asks the device and would start the default
    if (scenario.isEmpty())
        forgotten = useRememberedScenario(settings, &scenario);
    UiPlugin plugin;
    KeyboardHelper keyboard;
    MainWindow window(&plugin, &settings);
    if (!scenario.isEmpty())
        window.setScenario(scenario);
    FirstPaint shown(&window);
    window.show();
    ProfileKeeper profiles(ProfileBackup::ofUser());
    QObject::connect(&profiles, SIGNAL(ready()), &window, SLOT(loadPlugin()));
    QObject::connect(&window, SIGNAL(frameClosed()), &profiles, SLOT(refresh()));
    QObject::connect(&shown, SIGNAL(painted()), &profiles, SLOT(start()));
    if (!forgotten.isEmpty())
        window.showScenarioError(forgotten);
    const int result = QApplication::exec();
    plugin.shutDown(); // before the window that hosts the plug-in's page
    return result;
}

int Program::send(int &argc, char **argv, const Arguments &arguments)
{
    doWithoutDisplay();
    QApplication application(argc, argv);
    const QString unusable = useNamedScenario(arguments);
    if (!unusable.isEmpty())
        return fail(unusable, EXIT_USAGE);
    ReplyTap tap;
    UiPlugin plugin;
    const PluginFailure failure = plugin.load(UiPlugin::installedFile());
    if (!plugin.isUsable())
        return fail(failure.text());
    return sendThrough(plugin, tap, arguments.commands);
}

int Program::takeTour(int &argc, char **argv, const Arguments &arguments)
{
    doWithoutDisplay();
    setReplyLimit(TourGuide::REPLY_LIMIT);
    PrivateLibrary library;
    QApplication application(argc, argv);
    if (!library.isValid())
        return fail(dashboardText("TOUR_NOT_WRITTEN").arg(library.path()));
    UiPlugin plugin;
    KeyboardHelper keyboard;
    MainWindow window(&plugin, nullptr);
    window.show();
    const PluginFailure failure = window.loadPlugin();
    if (!plugin.isUsable())
        return fail(failure.text());
    const bool taken = Tour::take(&window, &library, arguments.tourFolder);
    plugin.shutDown();
    return taken ? EXIT_GOOD : EXIT_BAD;
}
