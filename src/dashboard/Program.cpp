#include "Program.h"

#include <QApplication>
#include <QPainterPath>
#include <QRect>

#include "Arguments.h"
#include "base/DashboardText.h"
#include "device/DashboardSettings.h"
#include "device/DeviceStatus.h"
#include "device/DeviceWait.h"
#include "FirstPaint.h"
#include "IUIPlugin.h"
#include "Languages.h"
#include "plugin/CommandSender.h"
#include "plugin/GeneralWindow.h"
#include "plugin/KeyboardHelper.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/PrivatePluginFolder.h"
#include "plugin/ReplyTap.h"
#include "ReplyTimeout.h"
#include "TerminalText.h"
#include "tksv.h"
#include "tour/Tour.h"
#include "tour/TourGuide.h"
#include "window/MainWindow.h"
#include "window/ProfileKeeper.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

const char PLATFORM[] = "QT_QPA_PLATFORM";
const int REGISTRATION_LIMIT =
    10000; // ms that --send waits for the device, unless the reply time-out is shorter
const QSize UNSEEN_SIZE(800, 600); // size of the widget with the page if there is no display

bool isSet(const char *variable)
{
    return !qgetenv(variable).isEmpty();
}

/// Returns true if there is a display. Without a display, Qt would terminate the program.
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
    HostCore::printErrorLine(text);
    return code;
}

bool namesDevice(const Arguments &arguments)
{
    return !arguments.scenario.isEmpty() || !arguments.modem.isEmpty();
}

/// Returns the device specified on the command line, or else in the environment, or else the device
/// that was chosen most recently. A user who specifies a scenario must not get a modem, because
/// commands sent through a modem may cost money.
DeviceChoice wantedDevice(const Arguments &arguments, const DashboardSettings &settings)
{
    if (!arguments.modem.isEmpty())
        return DeviceChoice::modem(arguments.modem);
    if (!arguments.scenario.isEmpty())
        return DeviceChoice::simulated(arguments.scenario);
    if (isSet("TKSV_BACKEND"))
        return DeviceChoice::automatic();
    return isSet("TKSV_SCENARIO") ? DeviceChoice::simulated(QString()) : settings.device();
}

/// Selects the device. If a scenario from the settings can no longer be used, makes the automatic
/// choice instead. Returns the error in the scenario file.
QString useDevice(DeviceChoice *choice)
{
    QString error = choice->use();
    if (!error.isEmpty()) {
        *choice = DeviceChoice::automatic();
        choice->use();
    }
    return error;
}

/// Waits for a modem that is still registering. On failure, prints the reason to standard error and
/// returns false.
bool isDeviceReady(const Arguments &arguments)
{
    const bool isReady = waitForDevice(qMin(replyTimeout(), REGISTRATION_LIMIT));
    const DeviceStatus device = readDeviceStatus();
    if (arguments.verbose)
        HostCore::printErrorLine(device.sourceText());
    if (!isReady)
        sayWhyNotReady(device);
    return isReady;
}

/// Returns true if a font is installed. Without a font, Qt draws the same box for every letter.
bool hasFonts()
{
    QPainterPath narrow;
    QPainterPath wide;
    narrow.addText(QPointF(), QApplication::font(), QLatin1String("i"));
    wide.addText(QPointF(), QApplication::font(), QLatin1String("M"));
    return narrow != wide;
}

/// Warns the user if fonts are missing or the settings cannot be written.
void sayWhatIsMissing(const DashboardSettings &settings, MainWindow *window)
{
    if (!hasFonts())
        window->showProblem(dashboardText("NO_FONTS"));
    if (!settings.isWritable())
        window->showProblem(dashboardText("SETTINGS_NOT_SAVED").arg(settings.file()));
}

/// Saves the settings. A failure is reported even if the program is about to end, because the disk
/// may have become full in the meantime.
void saveSettings(DashboardSettings *settings, MainWindow *window)
{
    if (!settings->save())
        window->showProblem(dashboardText("SETTINGS_NOT_SAVED").arg(settings->file()));
}

int sendThrough(LoadedPlugin &plugin, ReplyTap &tap, const QStringList &commands)
{
    QWidget host;
    QRect rect(QPoint(), UNSEEN_SIZE);
    plugin.plugin()->ShowWindow(&host, rect);
    CommandSender sender(GeneralWindow(&host), tap, replyTimeout());
    const bool sent = sender.send(commands);
    int status = 0;
    TKSV_USSDSrv_Release(&status); // closes an open menu before the next program starts
    plugin.shutDown();
    return sent ? EXIT_GOOD : EXIT_BAD;
}

} // namespace

int Program::complain(const Arguments &arguments)
{
    const QString text = dashboardText(arguments.errorKey);
    HostCore::printErrorLine(text.contains(QLatin1String("%1")) ? text.arg(arguments.errorSubject)
                                                                : text);
    return fail(dashboardText("CLI_TRY_HELP"), EXIT_USAGE);
}

int Program::help()
{
    HostCore::printLine(dashboardText("CLI_HELP"));
    return EXIT_GOOD;
}

int Program::version()
{
    HostCore::printLine(QLatin1String("ussd-dashboard " USSD_VERSION));
    return EXIT_GOOD;
}

int Program::openWindow(int &argc, char **argv, const Arguments &arguments)
{
    if (!hasDisplay())
        return fail(dashboardText("CLI_NO_DISPLAY"));
    QApplication application(argc, argv);
    HostCore::Languages::setCurrent(HostCore::Languages::current()); // also updates widgets
    DashboardSettings settings;
    DeviceChoice choice = wantedDevice(arguments, settings);
    const QString unusable = useDevice(&choice);
    if (!unusable.isEmpty() && namesDevice(arguments))
        return fail(unusable, EXIT_USAGE);
    LoadedPlugin plugin;
    KeyboardHelper keyboard;
    MainWindow window(&plugin, &settings);
    window.setDevice(choice);
    FirstPaint shown(&window);
    window.show();
    ProfileKeeper profiles(ProfileBackup::ofUser());
    QObject::connect(&profiles, SIGNAL(ready()), &window, SLOT(loadPlugin()));
    QObject::connect(&window, SIGNAL(frameClosed()), &profiles, SLOT(refresh()));
    QObject::connect(&profiles, SIGNAL(problem(QString)), &window, SLOT(showProblem(QString)));
    QObject::connect(&shown, SIGNAL(painted()), &profiles, SLOT(start()));
    sayWhatIsMissing(settings, &window);
    if (!unusable.isEmpty())
        window.showScenarioError(unusable);
    const int result = QApplication::exec();
    plugin.shutDown(); // must precede the deletion of the window with the plug-in's page
    saveSettings(&settings, &window);
    return result;
}

int Program::send(int &argc, char **argv, const Arguments &arguments)
{
    doWithoutDisplay();
    QApplication application(argc, argv);
    DeviceChoice choice = wantedDevice(arguments, DashboardSettings());
    const QString unusable = choice.use();
    if (!unusable.isEmpty())
        return fail(unusable, EXIT_USAGE);
    ReplyTap tap; // must be constructed before the device can send a reply
    if (!isDeviceReady(arguments))
        return EXIT_BAD;
    LoadedPlugin plugin;
    const PluginFailure failure = plugin.load(LoadedPlugin::installedFile());
    if (!plugin.isUsable())
        return fail(failure.text());
    return sendThrough(plugin, tap, arguments.commands);
}

int Program::takeTour(int &argc, char **argv, const Arguments &arguments)
{
    doWithoutDisplay();
    setReplyTimeout(TourGuide::REPLY_LIMIT);
    PrivatePluginFolder library;
    QApplication application(argc, argv);
    if (!library.isValid())
        return fail(dashboardText("TOUR_NOT_WRITTEN").arg(library.path()));
    LoadedPlugin plugin;
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

} // namespace Dashboard
