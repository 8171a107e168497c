#include "Program.h"

#include <QApplication>
#include <QPainterPath>

#include "account/AccountExport.h"
#include "account/AccountStore.h"
#include "Arguments.h"
#include "base/DashboardText.h"
#include "base/SignalWatcher.h"
#include "device/DashboardSettings.h"
#include "device/Scenarios.h"
#include "FirstPaint.h"
#include "Languages.h"
#include "look/Icons.h"
#include "look/Look.h"
#include "look/StartEnvironment.h"
#include "look/TextSize.h"
#include "plugin/KeyboardHelper.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/PrivatePluginFolder.h"
#include "ReplyTimeout.h"
#include "TerminalText.h"
#include "tour/Tour.h"
#include "tour/TourGuide.h"
#include "WantedDevice.h"
#include "window/MainWindow.h"
#include "window/ProfileKeeper.h"
#include "window/SingleInstance.h"

#include <cstdio>

using namespace Formats;

namespace Dashboard
{

namespace
{

const char PLATFORM[] = "QT_QPA_PLATFORM";

bool isSet(const char *variable)
{
    return !qgetenv(variable).isEmpty();
}

/// Returns true if a display is available. Must be checked before the QApplication is constructed,
/// because Qt terminates the program if there is no display.
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

int print(const QString &text)
{
    HostCore::printLine(text);
    return ferror(stdout) ? fail(dashboardText("SEND_NOT_WRITTEN"), EXIT_NOT_WRITTEN) : EXIT_GOOD;
}

bool namesDevice(const Arguments &arguments)
{
    return arguments.demo || !arguments.scenario.isEmpty() || !arguments.modem.isEmpty();
}

/// Selects the device. If its scenario file can no longer be used, falls back to the automatic
/// choice and returns the error in this file. Otherwise, returns an empty string.
QString useDevice(DeviceChoice *choice)
{
    QString error = choice->use();
    if (!error.isEmpty()) {
        *choice = DeviceChoice::automatic();
        choice->use();
    }
    return error;
}

/// Returns the exit code for an instance that exits because another instance is already running.
/// Prints an error if the arguments contain options that have no effect on the running instance.
int leaveToFirst(const Arguments &arguments)
{
    if (namesDevice(arguments))
        return fail(dashboardText("CLI_DEVICE_STAYS"));
    const bool hasOptions =
        !arguments.language.isEmpty() || arguments.verbose || !arguments.logFile.isEmpty();
    return hasOptions ? fail(dashboardText("CLI_OPTIONS_STAY")) : EXIT_GOOD;
}

/// Sets the icon of the program's windows. Wayland compositors use the icon of the desktop entry
/// instead. The icon is set after the first paint, because decoding it takes three per cent of the
/// start.
void setIcon()
{
    QApplication::setWindowIcon(applicationIcon());
}

void startLook(const DashboardSettings &settings)
{
    Look &look = Look::instance();
    const QString theme = settings.theme();
    if (theme == QLatin1String("light"))
        look.setTheme(ThemeChoice::Light);
    else if (theme == QLatin1String("dark"))
        look.setTheme(ThemeChoice::Dark);
    look.setReducesMotion(settings.reducesMotion());
    look.start();
}

/// Returns true if any font is installed. Without fonts, Qt draws the same box instead of every
/// letter.
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

/// Saves the settings and reports a failure. The settings could be written when the program
/// started, but the disk may have become full in the meantime.
void saveSettings(DashboardSettings *settings, MainWindow *window)
{
    if (!settings->save())
        window->showProblem(dashboardText("SETTINGS_NOT_SAVED").arg(settings->file()));
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
    return print(dashboardText("CLI_HELP"));
}

int Program::version()
{
    return print(QLatin1String("ussd-dashboard " USSD_VERSION));
}

int Program::openWindow(int &argc, char **argv, const Arguments &arguments)
{
    if (!hasDisplay())
        return fail(dashboardText("CLI_NO_DISPLAY"));
    DashboardSettings settings;
    applyTextSize(settings.textSize());
    StartEnvironment::instance().leaveOpenGlOut();
    QApplication application(argc, argv);
    StartEnvironment::instance().restore();
    const SingleInstance instance(SingleInstance::sessionName(settings.file()));
    if (instance.role() == SingleInstance::Later)
        return leaveToFirst(arguments);
    HostCore::Languages::applyToApplication();
    QGuiApplication::setDesktopFileName(QLatin1String("ussd-dashboard"));
    startLook(settings);
    DeviceChoice choice = wantedDevice(arguments, settings);
    const QString unusable = useDevice(&choice);
    if (!unusable.isEmpty() && namesDevice(arguments))
        return fail(unusable, EXIT_USAGE);
    LoadedPlugin plugin;
    KeyboardHelper keyboard;
    MainWindow window(&plugin, &settings);
    window.setDevice(choice);
    const SignalWatcher interruption;
    QObject::connect(&interruption, &SignalWatcher::received, &window, &MainWindow::quit);
    FirstPaint shown(&window);
    QObject::connect(&instance, &SingleInstance::raiseRequested, &window, &MainWindow::raiseAgain);
    ProfileKeeper profiles(ProfileBackup::ofUser());
    window.setProfiles(&profiles);
    window.show();
    QObject::connect(&shown, &FirstPaint::painted, &window, &setIcon);
    QObject::connect(&shown, &FirstPaint::painted, &profiles, &ProfileKeeper::start);
    QObject::connect(&shown, &FirstPaint::painted, &window, &MainWindow::loadPlugin);
    sayWhatIsMissing(settings, &window);
    if (!unusable.isEmpty())
        window.showScenarioError(unusable);
    const int result = interruption.signalNumber() == 0 ? QApplication::exec() : EXIT_GOOD;
    plugin.shutDown(); // must precede the deletion of the window that contains the plug-in's page
    saveSettings(&settings, &window);
    return result;
}

int Program::exportAccount(int &argc, char **argv, const Arguments &arguments)
{
    QCoreApplication application(argc, argv); // required to find the database driver
    if (!isExportName(arguments.exportFile))
        return fail(dashboardText("ACCOUNT_EXPORT_NAME").arg(arguments.exportFile), EXIT_USAGE);
    const QString problem = exportAccountTo(arguments.exportFile, AccountStore::userFile());
    return problem.isEmpty() ? EXIT_GOOD : fail(problem, EXIT_NOT_WRITTEN);
}

int Program::takeTour(int &argc, char **argv, const Arguments &arguments)
{
    doWithoutDisplay();
    setReplyTimeout(TourGuide::REPLY_LIMIT);
    PrivatePluginFolder library;
    qputenv("QT_FONT_DPI", "96"); // the "offscreen" platform plug-in has a different default
    applyTextSize(100);           // per cent
    QApplication application(argc, argv);
    if (!library.isValid())
        return fail(dashboardText("TOUR_NOT_WRITTEN").arg(library.path()));
    const QString unusable = Scenarios::use(QString()); // the tour never uses a modem
    if (!unusable.isEmpty())
        return fail(unusable);
    Look::instance().setTheme(ThemeChoice::Light);
    Look::instance().start();
    LoadedPlugin plugin;
    KeyboardHelper keyboard;
    MainWindow window(&plugin, nullptr);
    window.show();
    const PluginFailure failure = window.loadPlugin();
    if (!plugin.isUsable())
        return fail(failure.text());
    const bool taken = Tour::take(&window, &library, arguments.tourFolder, arguments.language);
    plugin.shutDown();
    return taken ? EXIT_GOOD : EXIT_BAD;
}

} // namespace Dashboard
