#include "CommandSender.h"

#include "base/DashboardText.h"
#include "base/WaitUntil.h"
#include "Change.h"
#include "device/DeviceStatus.h"
#include "TerminalText.h"

namespace Dashboard
{

namespace
{

// The plug-in itself ends every wait. If a wait exceeds the time-out by this amount, the plug-in is
// broken.
const int PLUGIN_GRACE = 5000; // ms
// The maximum time between the arrival of a reply at the plug-in and at the tap.
const int TAP_GRACE = 1000; // ms

QString pluginText(const char *key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String(key));
}

} // namespace

CommandSender::CommandSender(const GeneralWindow &window, ReplyTap &tap, int replyLimit)
    : m_window(window), m_tap(tap), m_replyLimit(replyLimit)
{
}

bool CommandSender::send(const QStringList &commands)
{
    for (int i = 0; i < commands.size(); ++i) {
        const Reply earlier = m_tap.reply();
        if (earlier.isReceived && !earlier.asksForAnswer)
            return fail(dashboardText("SEND_NOT_ASKED")
                            .arg(QStringList(commands.mid(i)).join(QLatin1String(" "))));
        if (!sendOne(commands.at(i)))
            return false;
    }
    return true;
}

bool CommandSender::sendOne(const QString &command)
{
    m_tap.clear();
    if (!m_window.send(command))
        return fail(dashboardText("SEND_NOT_TAKEN").arg(command));
    return waitForAnswer() ? print() : fail(dashboardText("SEND_NO_ANSWER"));
}

bool CommandSender::waitForAnswer()
{
    return waitUntil([this] { return !m_window.isWaiting(); }, m_replyLimit + PLUGIN_GRACE);
}

bool CommandSender::print()
{
    const QString shown = m_window.lastReceived();
    if (!isFailureText(shown))
        waitUntil([this] { return m_tap.reply().isReceived; }, TAP_GRACE);
    const Reply reply = m_tap.reply();
    if (reply.text.isEmpty() && (reply.isReceived || isFailureText(shown)))
        return fail(shown);
    HostCore::printLine(reply.isReceived ? reply.text : shown);
    return true;
}

bool CommandSender::isFailureText(const QString &text)
{
    return text == pluginText("USSD_CODE_FAILED").trimmed() ||
           text == pluginText("USSD_CODE_TIME_OUT").trimmed();
}

/// Prints the error and returns false. Also prints the device's problem, because it is the most
/// likely reason for a failure.
bool CommandSender::fail(const QString &text)
{
    HostCore::printErrorLine(text);
    sayWhyNotReady(readDeviceStatus());
    return false;
}

void sayWhyNotReady(const DeviceStatus &device)
{
    if (!device.isRegistered())
        HostCore::printErrorLine(device.troubleText());
    if (!device.adviceText().isEmpty())
        HostCore::printErrorLine(device.adviceText());
}

} // namespace Dashboard
