#include "CommandSender.h"

#include <QCoreApplication>

#include "base/DashboardText.h"
#include "base/SignalWatcher.h"
#include "base/WaitUntil.h"
#include "device/DeviceWatcher.h"
#include "device/FailureWords.h"
#include "ExitCodes.h"
#include "FailureText.h"
#include "TerminalText.h"

#include <cstdio>

namespace Dashboard
{

namespace
{

// The plug-in ends every wait with its own time-out. CommandSender waits longer than this time-out
// by PLUGIN_GRACE, in case the plug-in does not work correctly.
const int PLUGIN_GRACE = 5000; // ms
// The maximum time between the arrival of a reply at the plug-in and at the ReplyTap.
const int TAP_GRACE = 1000; // ms

int complain(const QString &text, int exitCode)
{
    HostCore::printErrorLine(text);
    return exitCode;
}

} // namespace

CommandSender::CommandSender(const GeneralWindow &window, const SendingParts &parts, int replyLimit)
    : m_window(window), m_parts(parts), m_replyLimit(replyLimit)
{
}

int CommandSender::send(const QStringList &commands)
{
    for (int i = 0; i < commands.size(); ++i) {
        const Reply earlier = m_parts.tap.reply();
        if (earlier.isReceived && !earlier.asksForAnswer)
            return complain(dashboardText("SEND_NOT_ASKED")
                                .arg(QStringList(commands.mid(i)).join(QLatin1String(" "))),
                            Cli::EXIT_REFUSED);
        const int exitCode = sendOne(commands.at(i));
        if (exitCode != Cli::EXIT_DONE)
            return exitCode;
    }
    if (m_parts.tap.reply().asksForAnswer)
        return complain(dashboardText("SEND_MENU_OPEN"), Cli::EXIT_MENU_OPEN);
    return Cli::EXIT_DONE;
}

int CommandSender::sendOne(const QString &command)
{
    QCoreApplication::processEvents(); // SIGINT may have arrived while a reply was being printed
    if (isInterrupted())
        return interrupt(true);
    m_parts.tap.clear();
    if (!m_window.send(command))
        return complain(dashboardText("SEND_NOT_TAKEN").arg(command), Cli::EXIT_REFUSED);
    const bool isAnswered = waitForAnswer();
    if (isInterrupted())
        return interrupt(false);
    return isAnswered ? printAnswer()
                      : complain(dashboardText("SEND_NO_ANSWER"), Cli::EXIT_NO_ANSWER);
}

bool CommandSender::waitForAnswer()
{
    return waitUntil([this] { return isWaitOver(); }, m_replyLimit + PLUGIN_GRACE);
}

bool CommandSender::isWaitOver()
{
    if (m_parts.device.status().waitsForTurn && !m_hasToldTurn) {
        m_hasToldTurn = true;
        HostCore::printErrorLine(dashboardText("COMMAND_WAITS_FOR_TURN"));
    }
    return !m_window.isWaiting() || isInterrupted();
}

int CommandSender::printAnswer()
{
    const QString shown = m_window.lastReceived();
    if (!GeneralWindow::isFailureText(shown))
        waitUntil([this] { return m_parts.tap.reply().isReceived; }, TAP_GRACE);
    const Reply reply = m_parts.tap.reply();
    if (reply.text.isEmpty() && (reply.isReceived || GeneralWindow::isFailureText(shown)))
        return fail(shown);
    const QString text = reply.isReceived ? reply.text : shown;
    HostCore::printLine(m_hasPrintedReply ? QLatin1Char('\n') + text : text);
    m_hasPrintedReply = true;
    return ferror(stdout) ? complain(dashboardText("SEND_NOT_WRITTEN"), Cli::EXIT_NOT_WRITTEN)
                          : Cli::EXIT_DONE;
}

/// Prints the reason for the failure. If the plug-in has given up while the device is still
/// waiting, the device does not report a reason. A command that was waiting for its turn may still
/// be sent before it is cancelled. In this case, the message leaves open whether the command was
/// sent.
int CommandSender::fail(const QString &shown)
{
    TKSV_FailureInfo failure = lastFailure();
    if (failure.reason == TKSV_FAILURE_NONE && m_parts.device.status().waitsForTurn)
        failure.reason = TKSV_FAILURE_IN_USE;
    else if (failure.reason == TKSV_FAILURE_NONE)
        failure.reason =
            GeneralWindow::isTimeOutText(shown) ? TKSV_FAILURE_NO_ANSWER : TKSV_FAILURE_REFUSED;
    HostCore::printErrorLine(failureWords(failure));
    if (failure.reason == TKSV_FAILURE_IN_USE && m_parts.device.status().hasForeignSession)
        HostCore::printErrorLine(dashboardText("SEND_END_HINT"));
    return Cli::exitCodeOf(failure.reason);
}

/// Cancels the command on the device and waits for its empty response. The session can be ended
/// only after this response.
int CommandSender::interrupt(bool wasNotSent)
{
    if (TKSV_Device_CancelRequest() == 0)
        waitUntil([this] { return m_parts.tap.reply().isReceived; }, TAP_GRACE);
    TKSV_FailureInfo cancelled = {};
    cancelled.reason = TKSV_FAILURE_CANCELLED;
    cancelled.wasNotSent = wasNotSent;
    return complain(failureWords(cancelled),
                    Cli::EXIT_SIGNAL + m_parts.interruption.signalNumber());
}

bool CommandSender::isInterrupted() const
{
    return m_parts.interruption.signalNumber() != 0;
}

} // namespace Dashboard
