#ifndef COMMANDSENDER_H
#define COMMANDSENDER_H

#include <QStringList>

#include "GeneralWindow.h"
#include "ReplyTap.h"

namespace Dashboard
{

struct DeviceStatus;

/**
 * Sends a code and the answers to the network's menus through the plug-in's general window, and
 * prints each reply. Processes events while it waits. All functions must be called from the GUI
 * thread.
 */
class CommandSender
{
public:
    /// `replyLimit` is the plug-in's time-out in milliseconds. The window and the tap must outlive
    /// this object.
    CommandSender(const GeneralWindow &window, ReplyTap &tap, int replyLimit);

    /// Sends the commands one after another. Stops at the first failure and prints the error to
    /// standard error. Returns true if a reply was received for every command.
    bool send(const QStringList &commands);

private:
    bool sendOne(const QString &command);
    bool waitForAnswer();
    bool print();
    static bool isFailureText(const QString &text);
    static bool fail(const QString &text);

    GeneralWindow m_window;
    ReplyTap &m_tap;
    const int m_replyLimit;
};

/// Prints to standard error why the device cannot be used and what the user can do. Does not print
/// anything if the device can be used.
void sayWhyNotReady(const DeviceStatus &device);

} // namespace Dashboard

#endif
