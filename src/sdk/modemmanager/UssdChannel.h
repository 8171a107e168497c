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
 * The daemon sends the reply before it updates the session state, and only the state indicates
 * whether the network is waiting for an answer. Therefore, the channel holds the reply back until
 * the state is no longer "active".
 *
 * Every program on the bus can use the session. A session is ours only if our call opened it: the
 * call is running, or its reply left the session open and nothing else has happened since. If the
 * network itself opens a session and waits for an answer, any program may answer. The channel
 * neither ends nor answers any other session. The programs of one user take turns; see SessionTurn.
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

    /// `equipmentId` identifies the modem among the programs of the user.
    UssdChannel(MainLoopThread &thread, const std::string &equipmentId, Listener listener);

    /// Sets the time limit for waiting for a turn, which applies to all later requests of all
    /// modems. May be called from any thread.
    static void setTurnLimit(std::chrono::milliseconds limit);

    /// Sets the proxy of the USSD interface, which may replace an earlier proxy. Null means that
    /// the modem does not have the interface at this time.
    void setInterface(MMModem3gppUssd *ussd);
    bool isUsable() const { return m_ussd != nullptr; }
    /// Checks whether a session is open, and starts a waiting request. Must be called after
    /// setInterface().
    void catchUp();
    /// Returns true if another program has opened a session.
    bool hasForeignSession() const { return m_owner == Owner::Foreign; }
    /// Returns true if a request waits for another program of the same user.
    bool waitsForTurn() const { return m_waitsForTurn; }
    /// Returns true if no call is running and no session remains to be ended.
    bool isSettled() const { return !m_running && !m_cancelWanted && !m_cancelling; }

    /// Sends the string and replaces the request in flight.
    void request(RequestToken token, RequestKind kind, const std::string &text);
    /// Ends the session. The request in flight is cancelled and receives no reply.
    void endSession();
    /// Ends the session that our call has opened. Must be called before the library stops using the
    /// modem. A session that the network opened stays open, because another program may be about to
    /// answer it.
    void leave();
    /// Ends the session. The request in flight receives an empty reply.
    void failPending(TKSV_Failure reason);
    /// Discards a running call that the daemon will not finish. Must be called after the modem has
    /// been disabled.
    void abandonCall();
    /// Ends the session that another program has opened.
    void endForeignSession();

private:
    using State = MMModem3gppUssdSessionState;
    using Clock = std::chrono::steady_clock;

    /// The program or network that opened the session. The owner is Nobody while the session is
    /// idle, or while our call is running.
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
    Clock::time_point m_turnEnd; // when m_next stops waiting for its turn
    bool m_keepsTurn = false;    // the program keeps its turn, although no command needs it now
    bool m_isTurnTimerRunning = false;

    Owner m_owner = Owner::Nobody;
    State m_state = MM_MODEM_3GPP_USSD_SESSION_STATE_IDLE; // the last state that was reported
    bool m_isStateNew = false;     // the interface was replaced, and its state was not handled yet
    bool m_hasNewQuestion = false; // NetworkRequest has changed during the call, or without one

    std::optional<Request> m_next;    // starts when no call is running
    std::optional<Request> m_running; // its call is running, or its reply waits for the state
    std::optional<std::string> m_replyText;
    Clock::time_point m_callStart;
    bool m_isCallPending = false; // the call of m_running has not returned
    bool m_wasActive = false;     // the state became "active" after the call had started
    bool m_isConfirmed = false;   // the call has opened a session, see cancelWhenOurs()
    bool m_isConfirming = false;
    bool m_isChecking = false;  // m_next waits for the state
    bool m_isCallStuck = false; // the daemon could not cancel an earlier call
    bool m_isLagTimerRunning = false;
    bool m_cancelWanted = false;
    bool m_cancelling = false;
    unsigned m_call = 0; // the number of the latest call; results of earlier calls are ignored
};

} // namespace Tksv

#endif
