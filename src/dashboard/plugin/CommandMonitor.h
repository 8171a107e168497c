#ifndef COMMANDMONITOR_H
#define COMMANDMONITOR_H

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

#include "device/Session.h"
#include "GeneralWindow.h"
#include "MenuChoices.h"
#include "ReplyTap.h"
#include "tksv_device.h"
#include "UserActivity.h"

namespace Dashboard
{

class DeviceWatcher;

/** The state of the current command. All texts are in the user's language. */
struct CommandState {
    enum class Kind {
        Ready,
        Waiting,   // waiting for the reply to `code`
        Queued,    // waiting for another window or another program
        MenuOpen,  // the network expects an answer from the user
        MenuEnded, // the user has closed the menu
        Failed,
        Cancelled // the user has cancelled the command
    };

    Kind kind = Kind::Ready;
    QString code;              // the code as it was sent; may contain a PIN
    int seconds = 0;           // the time since the code was sent
    QString title;             // one line; codes and numbers are enclosed in direction isolates
    QString text;              // one or two sentences
    QString details;           // the complete text of a failure
    QList<MenuChoice> choices; // the choices of the open menu; empty if they cannot be determined
    QString menuText;          // the text of the open menu; empty if it is unknown
    bool mayBeCancelled = false;
    bool mayBeSentAgain = false;
    int failure = TKSV_FAILURE_NONE; // a TKSV_Failure

    bool isPending() const { return kind == Kind::Waiting || kind == Kind::Queued; }
    bool operator==(const CommandState &other) const;
    bool operator!=(const CommandState &other) const { return !(*this == other); }
};

/// The time limit for a reply in seconds, as displayed to the user.
const int REPLY_SECONDS = 30;

/**
 * Observes the commands that the windows of the plug-in send, and sends commands through the
 * general window, as a user would. All parts of the dashboard get the state of the current command
 * from this class. All functions must be called from the GUI thread.
 */
class CommandMonitor : public QObject
{
    Q_OBJECT
public:
    using Clock = std::function<qint64()>; // a monotonic clock in milliseconds

    /// `window` returns the embedded general window, which may be incomplete. All arguments must
    /// outlive the monitor.
    CommandMonitor(const std::function<GeneralWindow()> &window, const DeviceWatcher *device,
                   ReplyTap *replies, QObject *parent = nullptr);
    ~CommandMonitor() override;

    /// Replaces the function that returns the embedded general window.
    void setWindow(const std::function<GeneralWindow()> &window) { m_window = window; }

    const CommandState &state() const { return m_state; }
    /// Returns true if a code can be sent now.
    bool canSend() const;
    /// Returns true if the code field contains something that has not been sent.
    bool hasTypedText() const;
    /// Returns the codes that the user has sent, starting with the newest one, without duplicates,
    /// and without numbers and PINs.
    QStringList recent() const { return m_recent; }
    /// Sets the codes of the operator and of the user, which are used to remove numbers from codes;
    /// see codeWithoutNumbers().
    void setTemplates(const QStringList &templates) { m_templates = templates; }
    QStringList templates() const { return m_templates; }
    /// Replaces the clock that counts the seconds. A null function restores the system's clock.
    void setClock(const Clock &clock);

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Must be called when the program starts or stops a query of its own. The failure of such a
    /// query is not shown, because the user has not sent the code.
    void setQuerying(bool isQuerying);
    /// Sends the code or answer through the general window. Returns false if it cannot be sent now.
    bool send(const QString &code);
    /// Sends the answer to the open menu. Returns false if no menu is open.
    bool answer(const QString &key);
    /// Sends the failed code again. Returns false if it cannot be sent now.
    bool sendAgain();
    /// Cancels the command in flight. Does nothing if there is none.
    void cancel();
    /// Ends the open menu. Does nothing if no menu is open or a command is in flight.
    void endMenu();
    /// Dismisses the message about a failure, a cancellation or the end of a menu.
    void dismiss();
    /// Updates the state from the session, the replies and the windows.
    void look();
    /// Discards the failure. Must be called when the device or the plug-in has changed.
    void forget();
    /// Clears the list of codes that recent() returns.
    void forgetRecent() { m_recent.clear(); }
    void retranslate();
    /// Updates the number of seconds. Called every second while a command is pending.
    void tick();

signals:
    /// Emitted when the kind, the texts or the choices have changed.
    void changed();
    /// Emitted each second while a command is pending.
    void ticked(int seconds);
    /// Emitted for each reply to a command of any window, and for each network-initiated message.
    /// `code` is the command to which the reply belongs, or an empty string if the network has
    /// initiated the message.
    void replied(const QString &code, const Dashboard::Reply &reply);
    /// Emitted when a command has ended without a reply, although the network may have executed it.
    void leftOpen(const QString &code);
    /// Emitted when the user has sent a code in a general window. `code` contains no number or PIN.
    void sent(const QString &code);

private slots:
    void onTranscriptChanged();

private:
    GeneralWindow activeWindow() const;
    void follow(const GeneralWindow &window);
    void readReplies();
    bool isPending(const GeneralWindow &window);
    bool isQueued(const GeneralWindow &window) const;
    void pend(const GeneralWindow &window);
    void startWaiting();
    void forgetReplies();
    void takeAsOwn();
    void end(const GeneralWindow &window);
    TKSV_FailureInfo outcome() const;
    void rest(const GeneralWindow &window);
    void openMenu();
    void fail(const TKSV_FailureInfo &failure);
    bool isOwnQuery() const;
    void setKind(CommandState::Kind kind);
    void setTexts();
    void setTexts(const char *titleKey, const char *textKey);
    int secondsSinceStart() const;

    std::function<GeneralWindow()> m_window;
    const DeviceWatcher *const m_device;
    ReplyTap *const m_replies;
    UserActivity m_activity;
    Clock m_clock;
    QTimer m_timer;
    CommandState m_state;
    Session m_session;
    Reply m_reply;                   // the newest reply to the most recent request
    QString m_menu;                  // the newest message that requires an answer
    bool m_hasNewMenu = false;       // true if the state does not contain m_menu yet
    TKSV_FailureInfo m_failure = {}; // valid if the state is Failed or Cancelled
    qint64 m_start = 0;              // the time at which the pending command was sent
    bool m_isTranscriptChanged = false;
    // Request numbers; see TKSV_SessionInfo.
    unsigned long m_pendingRequest = 0; // valid if the state is Waiting or Queued
    unsigned long m_ownRequest = 0;     // the most recent request of a general window
    unsigned long m_givenUp = 0;        // the request that is treated as timed out
    unsigned long m_firstQuery = 0;     // the first request of the query; 0 if there was no query
    unsigned long m_lastQuery = 0;
    QStringList m_recent;
    QStringList m_templates;
};

} // namespace Dashboard

#endif
