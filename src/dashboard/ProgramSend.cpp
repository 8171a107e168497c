/* Implements the mode of Program that sends a code without showing a window. */
#include "Program.h"

#include <QApplication>
#include <QRect>
#include <QWidget>

#include "Arguments.h"
#include "base/DashboardText.h"
#include "base/SignalWatcher.h"
#include "device/DashboardSettings.h"
#include "device/DeviceWait.h"
#include "device/DeviceWatcher.h"
#include "device/Situation.h"
#include "ExitCodes.h"
#include "FailureText.h"
#include "IUIPlugin.h"
#include "plugin/CommandSender.h"
#include "plugin/LoadedPlugin.h"
#include "ReplyTimeout.h"
#include "TerminalText.h"
#include "tksv.h"
#include "tksv_device.h"
#include "WantedDevice.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

const int REGISTRATION_LIMIT = 10000; // ms; the maximum time for which --send waits for the device
const QSize UNSEEN_SIZE(800, 600);    // size of the hidden parent of the general window

int fail(const QString &text, int exitCode)
{
    HostCore::printErrorLine(text);
    return exitCode;
}

/// Prints the reason why the device cannot be used, and returns the exit code.
int failBecauseOf(const DeviceStatus &device)
{
    HostCore::printErrorLine(situationAsText(situationOf(device, true, QString())));
    if (device.problem == TKSV_PROBLEM_NOT_PERMITTED)
        return Cli::EXIT_NOT_PERMITTED;
    if (device.state == TKSV_DEVICE_DISABLED && !device.isSimulated)
        HostCore::printErrorLine(dashboardText("SEND_ENABLE_HINT"));
    return Cli::EXIT_NOT_READY;
}

/// Waits until the device can send codes or cannot become ready by itself. If the arguments request
/// it, also enables the device and ends the session of another program. Returns an exit code.
int prepareDevice(const Arguments &arguments, const DeviceChoice &choice, const DeviceWait &wait)
{
    wait.untilReady(choice);
    if (arguments.enable && wait.device.status().state == TKSV_DEVICE_DISABLED &&
        wait.untilEnabled())
        wait.untilReady(choice);
    if (arguments.endForeignSession && wait.device.status().hasForeignSession)
        wait.untilForeignSessionHasEnded();
    if (wait.interruption.signalNumber() != 0)
        return Cli::EXIT_SIGNAL + wait.interruption.signalNumber();
    const DeviceStatus &device = wait.device.status();
    if (arguments.verbose)
        HostCore::printErrorLine(device.sourceText());
    return device.isRegistered() ? int(Cli::EXIT_DONE) : failBecauseOf(device);
}

int sendThrough(LoadedPlugin &plugin, const SendingParts &parts, const QStringList &commands)
{
    QWidget host;
    QRect rect(QPoint(), UNSEEN_SIZE);
    plugin.plugin()->ShowWindow(&host, rect);
    CommandSender sender(GeneralWindow(&host), parts, replyTimeout());
    const int exitCode = sender.send(commands);
    int status = 0;
    TKSV_USSDSrv_Release(&status); // otherwise, an open menu would affect the next program
    plugin.shutDown();
    return exitCode;
}

} // namespace

void Program::announceDemonstration(const Arguments &arguments)
{
    const bool isTour = arguments.mode == Arguments::Tour;
    if (isTour || isDemonstration(wantedDevice(arguments, DashboardSettings())))
        HostCore::printErrorLine(dashboardText("DEMONSTRATION_NOTE"));
}

int Program::send(int &argc, char **argv, const Arguments &arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const SignalWatcher interruption;
    const DeviceChoice choice = wantedDevice(arguments, DashboardSettings());
    const QString unusable = choice.use();
    if (!unusable.isEmpty())
        return fail(unusable, Cli::EXIT_WRONG_USAGE);
    ReplyTap tap; // must exist before the device can send a reply
    const DeviceWatcher device;
    const DeviceWait wait = {device, interruption, qMin(replyTimeout(), REGISTRATION_LIMIT)};
    const int notReady = prepareDevice(arguments, choice, wait);
    if (notReady != Cli::EXIT_DONE)
        return notReady;
    LoadedPlugin plugin;
    const PluginFailure failure = plugin.load(LoadedPlugin::installedFile());
    if (!plugin.isUsable())
        return fail(failure.text(), Cli::EXIT_REFUSED);
    return sendThrough(plugin, {tap, device, interruption}, arguments.commands);
}

} // namespace Dashboard
