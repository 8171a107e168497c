#ifndef TKSV_INTERNAL_USSDCHANNEL_H
#define TKSV_INTERNAL_USSDCHANNEL_H

#include <chrono>
#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <memory>
#include <optional>
#include <string>

#include "../base/Backend.h"
#include "../base/SessionTurn.h"
#include "AsyncCall.h"
#include "GLibPointers.h"
#include "MainLoopThread.h"
#include "SignalConnections.h"

namespace Tksv
{

/**
 * The USSD session of one modem.
 *
 * ModemManager (the daemon) sends a reply before it updates the session state, but only the state
 * indicates whether the network is waiting for an answer. The channel therefore does not report the
 * reply until the state is no longer "active".
 *
 * All programs on the bus share the session. The session is ours if our call has opened it: while
 * the call is running and, if the reply leaves the session open, until the state changes. If the
 * network opens a session and waits for an answer, any program may answer. The channel never ends
 * or answers a session of another program. The programs of one user take turns; see SessionTurn.
 *
 * All functions must be called from the thread of the main loop.
 */
class UssdChannel : public std::enable_shared_from_this<UssdChannel>
{
public:
    struct Listener {
        std::function<void(RequestToken, const UssdReply &)> replied;
        std::function<void(const UssdReply &)> textReceived;
        std::function<void()> notPermitted;
        std::function<void()> changed; // hasForeignSession() or waitsForTurn() has changed
        std::function<bool()> isOnlyOn4G;
    };

    /// `equipmentId` identifies the modem's queue, which all programs of the user share.
    UssdChannel(MainLoopThread &thread, const std::string &equipmentId, Listener listener);

    /// Sets how long a request may wait for other programs of the user. Applies to later requests
    /// to all modems. May be called from any thread.
    static void setTurnLimit(std::chrono::milliseconds limit);

    /// Sets the proxy for the USSD interface, which may replace an earlier proxy. Null means that
    /// the modem does not currently provide the interface.
    void setInterface(MMModem3gppUssd *ussd);
    bool isUsable() const { return m_ussd != nullptr; }
    /// Checks for an open session and starts a waiting request. Must be called after
    /// setInterface().
    void catchUp();
    /// Returns true if another program has opened a session.
    bool hasForeignSession() const { return m_owner == Owner::Foreign; }
    /// Returns true if a request is waiting for another program of the same user.
    bool waitsForTurn() const { return m_waitsForTurn; }
    /// Returns true if no call is running and the channel is not about to end a session.
    bool isSettled() const { return !m_running && !m_cancelWanted && !m_cancelling; }

    /// Sends the string. The request replaces the request in flight.
    void request(RequestToken token, RequestKind kind, const std::string &text);
    /// Ends the session. The request in flight is cancelled and receives no reply.
    void endSession();
    /// Ends the session that our call has opened. Must be called before the library stops using the
    /// modem. A session that the network has opened is not ended, because another program may be
    /// about to answer it.
    void leave();
    /// Ends the session. The request in flight receives an empty reply with this reason.
    void failPending(TKSV_Failure reason);
    /// Discards a call that the daemon will never finish. Must be called after the modem has been
    /// disabled.
    void abandonCall();
    /// Ends a session that another program has opened.
    void endForeignSession();

private:
    using State = MMModem3gppUssdSessionState;
    using Clock = std::chrono::steady_clock;

    /// Identifies who opened the session. The value is Nobody while the session is idle and while
    /// our call is running.
    enum class Owner { Nobody, Ours, Network, Foreign };

    struct Request {
        RequestToken token;
        RequestKind kind;
        std::string text;
    };

    void interfaceRemoved();
    bool canAnswer() const { return m_owner == Owner::Ours || m_owner == Owner::Network; }
    void endOwnSession();
    void startNext();
    bool takeTurn();
    void leaveTurn();
    void startTurnTimer();
    void turnTimerElapsed();
    void missTurn();
    void setWaitsForTurn(bool waits);
    void start(const Request &request);
    void checkSession();
    void refuse(const Request &request);
    void call(const Request &request);
    void callReturned(unsigned call, GMemory<char> text, const GError *error);
    void callFailed(const GError &error);
    void cancelStuckCall();
    Failure failureOf(const GError &error) const;
    void cancelWhenOurs();
    void confirm();
    void askForStateOfCall();
    void startCancel();
    void cancelReturned(unsigned call, const GError *error);

    void waitForState();
    void startLagTimer();
    void askForState(std::function<void(State)> done);
    void askForStateOfReply();
    void askForStateOfOthers();
    void propertiesChanged(GVariant *changed);
    void handleState(State reported);
    void handleStateDuringCall(State state);
    void sessionEndedDuringCall();
    void handleStateOfOthers(State state);
    void replyIsWhole(bool waits);
    void finish(const UssdReply &reply);
    void reportQuestion();
    void setOwner(Owner owner);
    AsyncDone whileAlive(AsyncDone function);

    MainLoopThread &m_thread;
    const Listener m_listener;
    GObjectPtr<MMModem3gppUssd> m_ussd;
    SignalConnections m_signals;
    SessionTurn m_turn;
    bool m_waitsForTurn = false;
    Clock::time_point m_turnEnd; // the time at which m_next stops waiting for its turn
    bool m_keepsTurn = false;    // true if the program keeps its turn after a command
    bool m_isTurnTimerRunning = false;

    Owner m_owner = Owner::Nobody;
    State m_state = MM_MODEM_3GPP_USSD_SESSION_STATE_IDLE; // the most recently reported state
    bool m_isStateNew = false;     // true if the state of a new interface has not been handled yet
    bool m_hasNewQuestion = false; // true if NetworkRequest contains an unreported prompt

    std::optional<Request> m_next;    // starts as soon as no call is running
    std::optional<Request> m_running; // its call is running, or its reply is being held back
    std::optional<std::string> m_replyText;
    Clock::time_point m_callStart;
    bool m_isCallPending = false; // true until the call of m_running returns
    bool m_wasActive = false;     // true if the state became "active" after the start of the call
    bool m_isConfirmed = false;   // true if the call has opened a session; see cancelWhenOurs()
    bool m_isConfirming = false;
    bool m_isChecking = false;  // true while m_next waits for a query of the state
    bool m_isCallStuck = false; // true if the daemon could not cancel an earlier call
    bool m_isLagTimerRunning = false;
    bool m_cancelWanted = false;
    bool m_cancelling = false;
    unsigned m_call = 0; // the number of the latest call; results of earlier calls are ignored
};

} // namespace Tksv

#endif
