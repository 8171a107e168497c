#ifndef COMMANDSENDER_H
#define COMMANDSENDER_H

#include <QStringList>

#include "GeneralWindow.h"
#include "ReplyTap.h"

namespace Dashboard
{

class DeviceWatcher;
class SignalWatcher;

/** The objects that a CommandSender uses. All of them must outlive it. */
struct SendingParts {
    ReplyTap &tap;
    const DeviceWatcher &device;
    const SignalWatcher &interruption;
};

/**
 * Sends a code and the answers to the network's menus through the plug-in's general window, and
 * prints the replies, separated by empty lines. Processes events while it waits. All functions must
 * be called from the GUI thread.
 */
class CommandSender
{
public:
    /// `replyLimit` is the plug-in's time-out in milliseconds. The window must outlive this object.
    CommandSender(const GeneralWindow &window, const SendingParts &parts, int replyLimit);

    /// Sends the commands one after another. Stops at the first failure and prints it to standard
    /// error. Returns an exit code of Cli::ExitCode. A menu that is left open counts as a failure.
    int send(const QStringList &commands);

private:
    int sendOne(const QString &command);
    bool waitForAnswer();
    bool isWaitOver();
    int printAnswer();
    int fail(const QString &shown);
    int interrupt(bool wasNotSent);
    bool isInterrupted() const;

    GeneralWindow m_window;
    SendingParts m_parts;
    const int m_replyLimit;
    bool m_hasToldTurn = false;
    bool m_hasPrintedReply = false;
};

} // namespace Dashboard

#endif
