#ifndef COMMANDSENDER_H
#define COMMANDSENDER_H

#include <QStringList>

#include "GeneralWindow.h"
#include "ReplyTap.h"

struct DeviceStatus;

/**
 * Sends a code and the answers to the network's menus through the plug-in's general window, and
 * prints each reply. GUI thread; handles events while it waits.
 */
class CommandSender
{
public:
    /// `replyLimit`: the plug-in's own time-out in milliseconds. Everything outlives the object.
    CommandSender(const GeneralWindow &window, ReplyTap &tap, int replyLimit);

    /// Stops at the first failure, whose text goes to standard error. Returns whether all went
    /// well.
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

/// Says on standard error why the device cannot be used, and what to do; nothing when it can.
void sayWhyNotReady(const DeviceStatus &device);

#endif
