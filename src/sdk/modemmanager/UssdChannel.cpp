#include "UssdChannel.h"

#include <atomic>
#include <utility>

#include "UssdErrors.h"

namespace Tksv
{

namespace
{

const MMModem3gppUssdSessionState UNKNOWN = MM_MODEM_3GPP_USSD_SESSION_STATE_UNKNOWN;
const MMModem3gppUssdSessionState IDLE = MM_MODEM_3GPP_USSD_SESSION_STATE_IDLE;
const MMModem3gppUssdSessionState ACTIVE = MM_MODEM_3GPP_USSD_SESSION_STATE_ACTIVE;
const MMModem3gppUssdSessionState USER_RESPONSE = MM_MODEM_3GPP_USSD_SESSION_STATE_USER_RESPONSE;

/// The time to wait for a state change after a reply. When it has elapsed, the state is queried.
const std::chrono::milliseconds STATE_LAG_LIMIT(500);

/// If a call is still running after this time, the daemon has probably not refused it. The daemon
/// refuses a call while another program has a session, but only after it has consulted polkit. This
/// takes a few milliseconds unless polkit prompts the user.
const std::chrono::milliseconds REFUSAL_LIMIT(150);

/// The interval at which a waiting program checks whether it is its turn to use the modem; see
/// SessionTurn. It is also the time for which the program keeps its turn after a command.
const std::chrono::milliseconds TURN_PAUSE(20);

/// The time limit for waiting for a turn, in milliseconds; see TKSV_Device_SetTurnLimit().
std::atomic<std::chrono::milliseconds::rep> turnLimit(29000);

/// Disables the time-out of D-Bus calls, which is 25 seconds by default. The client decides how
/// long to wait for a reply.
const int NO_TIME_LIMIT = G_MAXINT;

bool contains(GVariant *changed, const char *property)
{
    const GVariantPtr value(g_variant_lookup_value(changed, property, nullptr));
    return value != nullptr;
}

/// Extracts the state from the result of org.freedesktop.DBus.Properties.Get.
MMModem3gppUssdSessionState stateIn(GVariant *answer)
{
    GVariant *state = nullptr;
    g_variant_get(answer, "(v)", &state);
    const GVariantPtr owned(state);
    return static_cast<MMModem3gppUssdSessionState>(g_variant_get_uint32(state));
}

} // namespace

UssdChannel::UssdChannel(MainLoopThread &thread, const std::string &equipmentId, Listener listener)
    : m_thread(thread), m_listener(std::move(listener)), m_turn(equipmentId)
{
}

void UssdChannel::setTurnLimit(std::chrono::milliseconds limit)
{
    turnLimit = limit.count();
}

/// Sets the proxy for the interface. If the daemon announces an object twice, GLib replaces its
/// proxies. Calls through an old proxy still work, but it no longer receives property changes.
void UssdChannel::setInterface(MMModem3gppUssd *ussd)
{
    if (ussd == m_ussd.get())
        return;
    m_signals.disconnectAll();
    m_ussd = shareObject(ussd);
    if (!m_ussd)
        return interfaceRemoved();
    m_isStateNew = true;
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(ussd), NO_TIME_LIMIT);
    m_signals.onPropertiesChanged(ussd, [this](GVariant *changed) { propertiesChanged(changed); });
}

/// Resets the state after the interface has been removed. The results of pending calls are ignored
/// if they arrive at all.
void UssdChannel::interfaceRemoved()
{
    failPending(TKSV_FAILURE_DEVICE_LOST);
    ++m_call;
    m_running.reset();
    m_replyText.reset();
    m_cancelWanted = false;
    m_cancelling = false;
    m_isChecking = false;
    leaveTurn();
    setOwner(Owner::Nobody);
}

/// Handles the state of a new interface. A session that is already open was opened by another
/// program.
void UssdChannel::catchUp()
{
    if (!m_ussd)
        return;
    if (std::exchange(m_isStateNew, false))
        handleState(mm_modem_3gpp_ussd_get_state(m_ussd.get()));
    startNext();
}

/* ---- requests from the client ------------------------------------------------------------ */

void UssdChannel::request(RequestToken token, RequestKind kind, const std::string &text)
{
    m_next = Request{token, kind, text};
    m_turnEnd = Clock::now() + std::chrono::milliseconds(turnLimit.load());
    if (kind == RequestKind::NewSession)
        endOwnSession();
    startNext();
}

void UssdChannel::endSession()
{
    m_next.reset();
    endOwnSession();
    startNext();
}

void UssdChannel::leave()
{
    m_next.reset();
    m_cancelWanted = m_cancelWanted || m_running || m_owner == Owner::Ours;
    startNext();
}

void UssdChannel::endOwnSession()
{
    m_cancelWanted = m_running || canAnswer();
}

void UssdChannel::failPending(TKSV_Failure reason)
{
    const bool isEnding = m_cancelWanted || m_cancelling;
    const bool wasNotSent = m_next || isEnding;
    const std::optional<Request> request = wasNotSent ? m_next : m_running;
    endSession();
    if (request)
        m_listener.replied(request->token, failedReply(Failure{reason, wasNotSent}));
}

/// Discards the running call. If the modem is disabled during a call, the daemon neither finishes
/// nor cancels this call, which then blocks the next one; see cancelStuckCall().
void UssdChannel::abandonCall()
{
    if (!m_running || !m_isCallPending || m_cancelling)
        return;
    ++m_call;
    m_isCallStuck = true;
    m_running.reset();
    m_cancelWanted = false;
    setOwner(Owner::Nobody);
    startNext();
}

void UssdChannel::endForeignSession()
{
    if (m_ussd && hasForeignSession() && !m_running && !m_cancelling)
        startCancel();
}

/* ---- calls to the daemon ----------------------------------------------------------------- */

/// Ends the session if this has been requested. Otherwise, starts the next call unless a call is
/// running.
void UssdChannel::startNext()
{
    if (!m_ussd || m_cancelling)
        return;
    if (m_cancelWanted)
        return cancelWhenOurs();
    if (m_running)
        return;
    if (!m_next && !canAnswer())
        return leaveTurn();
    if (m_next && takeTurn() && m_next) // takeTurn() may have ended the request
        start(*std::exchange(m_next, std::nullopt));
}

/// Returns true if it is this program's turn. Otherwise, schedules another call to startNext(). A
/// turn that the program has kept remains valid unless another program is waiting.
bool UssdChannel::takeTurn()
{
    if (std::exchange(m_keepsTurn, false) && m_turn.isWanted())
        m_turn.leave();
    const bool isOurTurn = m_turn.tryEnter();
    if (!isOurTurn)
        startTurnTimer();
    setWaitsForTurn(!isOurTurn);
    return isOurTurn;
}

/// Ends the turn. If no other program is waiting, this program keeps its turn for a moment. This
/// speeds up a sequence of commands, because the files of the queue are accessed less often.
void UssdChannel::leaveTurn()
{
    m_keepsTurn = m_turn.isInQueue() && !m_waitsForTurn && !m_turn.isWanted();
    if (m_keepsTurn)
        startTurnTimer();
    else
        m_turn.leave();
    setWaitsForTurn(false);
}

void UssdChannel::startTurnTimer()
{
    if (std::exchange(m_isTurnTimerRunning, true))
        return;
    m_thread.after(TURN_PAUSE, [self = weak_from_this()] {
        if (const std::shared_ptr<UssdChannel> alive = self.lock())
            alive->turnTimerElapsed();
    });
}

void UssdChannel::turnTimerElapsed()
{
    m_isTurnTimerRunning = false;
    if (std::exchange(m_keepsTurn, false))
        m_turn.leave();
    else if (m_waitsForTurn && m_next && Clock::now() >= m_turnEnd)
        missTurn();
    else
        startNext();
}

/// Reports the request as failed because the time limit for its turn has expired. A command must
/// not be sent after its client has stopped waiting for the reply.
void UssdChannel::missTurn()
{
    const Request request = *std::exchange(m_next, std::nullopt);
    leaveTurn();
    m_listener.replied(request.token, failedReply(Failure{TKSV_FAILURE_IN_USE, true}));
}

void UssdChannel::setWaitsForTurn(bool waits)
{
    if (std::exchange(m_waitsForTurn, waits) != waits)
        m_listener.changed();
}

/// Starts the call if the session allows it. An answer requires an open session that waits for it,
/// and a code requires an idle session.
void UssdChannel::start(const Request &request)
{
    const bool isAnswer = request.kind == RequestKind::Answer;
    if (isAnswer ? canAnswer() : m_state == IDLE)
        return call(request);
    if (isAnswer)
        return refuse(request);
    m_next = request;
    if (!std::exchange(m_isChecking, true))
        checkSession();
}

/// Queries whether another program's session is still open. If it is, rejects the code immediately.
/// Otherwise, polkit might prompt the user for permission to make a call that cannot succeed.
void UssdChannel::checkSession()
{
    askForState([this](State state) {
        handleState(state);
        m_isChecking = false;
        if (m_state != IDLE && !canAnswer() && m_next)
            refuse(*std::exchange(m_next, std::nullopt));
    });
}

void UssdChannel::refuse(const Request &request)
{
    const TKSV_Failure reason =
        hasForeignSession() ? TKSV_FAILURE_IN_USE : TKSV_FAILURE_ENDED_BY_NETWORK;
    m_listener.replied(request.token, failedReply(Failure{reason, true}));
    startNext();
}

void UssdChannel::call(const Request &request)
{
    const bool isAnswer = request.kind == RequestKind::Answer;
    m_running = request;
    m_replyText.reset();
    m_callStart = Clock::now();
    m_isCallPending = true;
    m_wasActive = false;
    m_isConfirmed = isAnswer; // an answer belongs to a session that is already ours
    m_isConfirming = false;
    m_isChecking = false;
    m_hasNewQuestion = false;
    const auto finishCall =
        isAnswer ? mm_modem_3gpp_ussd_respond_finish : mm_modem_3gpp_ussd_initiate_finish;
    const AsyncDone done = [this, call = ++m_call, finishCall](GObject *ussd,
                                                               GAsyncResult *result) {
        ErrorSlot error;
        GMemory<char> text(finishCall(MM_MODEM_3GPP_USSD(ussd), result, error.slot()));
        callReturned(call, std::move(text), error.get());
    };
    const auto startCall = isAnswer ? mm_modem_3gpp_ussd_respond : mm_modem_3gpp_ussd_initiate;
    startCall(m_ussd.get(), request.text.c_str(), nullptr, runAsyncDone,
              asyncDone(whileAlive(done)));
}

void UssdChannel::callReturned(unsigned call, GMemory<char> text, const GError *error)
{
    if (call != m_call)
        return; // the call was cancelled
    m_isCallPending = false;
    if (error)
        return callFailed(*error);
    m_replyText = textOf(text.get());
    waitForState();
}

/// Ends the command after its call has failed. There is nothing to cancel, because the session has
/// ended or was never opened.
void UssdChannel::callFailed(const GError &error)
{
    if (isServiceLost(error))
        return; // the device event ends the command
    if (m_isCallStuck && isInProgress(error))
        return cancelStuckCall();
    const Failure failure = failureOf(error);
    if (failure.reason == TKSV_FAILURE_NOT_PERMITTED)
        m_listener.notPermitted();
    const bool isInUse = failure.reason == TKSV_FAILURE_IN_USE;
    m_state = isInUse ? m_state : IDLE;
    setOwner(isInUse ? Owner::Foreign : Owner::Nobody);
    if (std::exchange(m_cancelWanted, false)) {
        m_running.reset();
        startNext();
    } else {
        finish(failedReply(failure));
    }
    if (!isInProgress(error)) // a call in progress blocks the modem although its state is idle
        askForStateOfOthers();
}

/// Cancels an earlier call of ours that the daemon has left unfinished, and repeats the request.
void UssdChannel::cancelStuckCall()
{
    if (!m_next && !m_cancelWanted)
        m_next = m_running;
    m_running.reset();
    m_isCallStuck = false; // prevents a second attempt to cancel
    startCancel();
}

Failure UssdChannel::failureOf(const GError &error) const
{
    UssdCallContext context;
    context.seconds = std::chrono::duration<double>(Clock::now() - m_callStart).count();
    context.isOnlyOn4G = m_listener.isOnlyOn4G();
    return failureOfUssdError(error, context);
}

/// Cancels our session. A cancellation ends any open session, including that of another program. A
/// running call is therefore cancelled only after it has been confirmed: the daemon has had enough
/// time to refuse it, and the session has become active and is still active. Until then, the
/// channel waits for a state change or for the end of the call. This may take a long time if polkit
/// prompts the user.
void UssdChannel::cancelWhenOurs()
{
    if (!m_running && !canAnswer()) {
        m_cancelWanted = false;
        return startNext();
    }
    if (!m_running || m_isConfirmed)
        return startCancel();
    if (m_isCallPending)
        confirm();
}

void UssdChannel::confirm()
{
    if (std::exchange(m_isConfirming, true))
        return;
    const auto left = REFUSAL_LIMIT - (Clock::now() - m_callStart);
    if (left <= left.zero())
        return askForStateOfCall();
    const auto pause = std::chrono::duration_cast<std::chrono::milliseconds>(left);
    m_thread.after(pause + std::chrono::milliseconds(1), [self = weak_from_this(), call = m_call] {
        const std::shared_ptr<UssdChannel> alive = self.lock();
        if (alive && alive->m_call == call)
            alive->askForStateOfCall();
    });
}

void UssdChannel::askForStateOfCall()
{
    askForState([this](State state) {
        m_isConfirming = false;
        if (!m_isCallPending)
            return;
        m_isConfirmed = m_isConfirmed || (m_wasActive && state == ACTIVE);
        handleState(state);
        if (m_isConfirmed && m_cancelWanted)
            startNext();
    });
}

/// Cancels the session, which also ends the running call. The call then returns an error, or never
/// returns if the modem's port is blocked.
void UssdChannel::startCancel()
{
    m_cancelWanted = false;
    m_cancelling = true;
    m_isChecking = false;
    const AsyncDone done = [this, call = ++m_call](GObject *ussd, GAsyncResult *result) {
        ErrorSlot error;
        mm_modem_3gpp_ussd_cancel_finish(MM_MODEM_3GPP_USSD(ussd), result, error.slot());
        cancelReturned(call, error.get());
    };
    mm_modem_3gpp_ussd_cancel(m_ussd.get(), nullptr, runAsyncDone, asyncDone(whileAlive(done)));
}

/// Handles the result of the cancellation. Even if the cancellation failed, the daemon is now idle,
/// with two exceptions: the policy denied the cancellation, or the modem is being disabled.
void UssdChannel::cancelReturned(unsigned call, const GError *error)
{
    if (call != m_call)
        return;
    m_cancelling = false;
    m_isCallStuck = error && (m_isCallStuck || (m_running && m_isCallPending));
    m_running.reset();
    m_replyText.reset();
    m_state = IDLE;
    if (error && isNotPermitted(*error))
        m_listener.notPermitted();
    setOwner(Owner::Nobody);
    startNext();
    askForStateOfOthers();
}

AsyncDone UssdChannel::whileAlive(AsyncDone function)
{
    return ifAlive(weak_from_this(), std::move(function));
}

/* ---- the session's state ----------------------------------------------------------------- */

/// Waits until the state reflects the reply. After a reply, the state changes from "active" to
/// "idle" or "user response". If a command finishes quickly, the daemon may not report that the
/// state has been "active" at all. The state is then queried.
void UssdChannel::waitForState()
{
    if (!m_wasActive)
        return askForStateOfReply();
    const State state = mm_modem_3gpp_ussd_get_state(m_ussd.get());
    if (state != ACTIVE)
        return handleState(state);
    if (!std::exchange(m_isLagTimerRunning, true))
        startLagTimer();
}

/// Starts the timer that limits the wait for the state. All commands share this timer, because each
/// pending timer slows down the main loop.
void UssdChannel::startLagTimer()
{
    m_thread.after(STATE_LAG_LIMIT, [self = weak_from_this(), call = m_call] {
        const std::shared_ptr<UssdChannel> alive = self.lock();
        if (!alive)
            return;
        alive->m_isLagTimerRunning = false;
        if (alive->m_replyText)
            alive->m_call == call ? alive->askForStateOfReply() : alive->waitForState();
    });
}

/// Queries the state and passes it to `done`. The answer is dropped if another call has started in
/// the meantime. If the query fails, the state is assumed to be idle.
void UssdChannel::askForState(std::function<void(State)> done)
{
    if (!m_ussd)
        return;
    const AsyncDone answered = [this, call = m_call, done = std::move(done)](GObject *proxy,
                                                                             GAsyncResult *result) {
        ErrorSlot error;
        const GVariantPtr answer(
            g_dbus_proxy_call_finish(G_DBUS_PROXY(proxy), result, error.slot()));
        if (call == m_call)
            done(answer ? stateIn(answer.get()) : IDLE);
    };
    g_dbus_proxy_call(G_DBUS_PROXY(m_ussd.get()), "org.freedesktop.DBus.Properties.Get",
                      g_variant_new("(ss)", MM_DBUS_INTERFACE_MODEM_MODEM3GPP_USSD, "State"),
                      G_DBUS_CALL_FLAGS_NONE, -1, nullptr, runAsyncDone,
                      asyncDone(whileAlive(answered)));
}

void UssdChannel::askForStateOfReply()
{
    askForState([this](State state) {
        m_wasActive = true;
        handleState(state);
    });
}

/// Queries whether another program has a session, because the last known state may still be that of
/// our own session, which has just ended.
void UssdChannel::askForStateOfOthers()
{
    askForState([this](State state) {
        if (!m_running && !m_cancelling)
            handleState(state);
    });
}

/// Handles changed properties. A notification is not reported if its text is the same as before,
/// because the property then does not change.
void UssdChannel::propertiesChanged(GVariant *changed)
{
    const auto alive = shared_from_this();
    if (contains(changed, "NetworkNotification")) {
        const std::string text = textOf(mm_modem_3gpp_ussd_get_network_notification(m_ussd.get()));
        if (!text.empty())
            m_listener.textReceived(UssdReply{UssdFinal, text});
    }
    const bool hasQuestion = contains(changed, "NetworkRequest");
    if (!m_ussd || (!hasQuestion && !contains(changed, "State")))
        return;
    const State state = mm_modem_3gpp_ussd_get_state(m_ussd.get());
    if (hasQuestion)
        m_hasNewQuestion = true;
    else if (!m_running && state != USER_RESPONSE)
        m_hasNewQuestion = false; // the network's prompt is no longer pending
    handleState(state);
}

/// Handles a state that was reported or queried. The state is unknown while the modem is disabled,
/// which means that there is no session.
void UssdChannel::handleState(State reported)
{
    const State state = reported == UNKNOWN ? IDLE : reported;
    const State before = std::exchange(m_state, state);
    if (m_cancelling)
        return;
    if (!m_running)
        return handleStateOfOthers(state);
    if (state == ACTIVE && (before == IDLE || m_running->kind == RequestKind::Answer))
        m_wasActive = true;
    handleStateDuringCall(state);
}

/// Handles a state that arrives while our call is running. Until the call returns, the state may be
/// that of another program's session.
void UssdChannel::handleStateDuringCall(State state)
{
    if (state == ACTIVE) {
        if (m_isCallPending && m_wasActive && m_cancelWanted && !m_isConfirmed)
            confirm();
        return;
    }
    if (!m_replyText)
        sessionEndedDuringCall();
    else if (m_wasActive)
        replyIsWhole(state == USER_RESPONSE);
}

/// Handles the end of a session while our call is running. The session was ours if it ended after
/// the time in which the daemon would have refused the call.
void UssdChannel::sessionEndedDuringCall()
{
    const bool hadTime = Clock::now() - m_callStart >= REFUSAL_LIMIT;
    m_isConfirmed = m_isConfirmed || (m_wasActive && hadTime);
    m_wasActive = false;
}

/// Handles a state that is not related to a call of ours. A new prompt from the network means that
/// the network opened the session. If the new prompt is identical to the previous one, the property
/// does not change. Such a prompt cannot be distinguished from another program's menu and is
/// treated as one.
void UssdChannel::handleStateOfOthers(State state)
{
    const bool hasNewQuestion = m_hasNewQuestion && state == USER_RESPONSE;
    if (state == IDLE)
        setOwner(Owner::Nobody);
    else if (hasNewQuestion && !hasForeignSession())
        reportQuestion();
    else if (state == ACTIVE || !canAnswer())
        setOwner(Owner::Foreign);
    startNext();
}

/// Ends the command once its reply and the resulting state are known. If the command has been
/// cancelled in the meantime, ends its session instead.
void UssdChannel::replyIsWhole(bool waits)
{
    if (!m_cancelWanted)
        return finish(UssdReply{waits ? UssdWaitsForAnswer : UssdFinal, *m_replyText});
    m_running.reset();
    m_replyText.reset();
    setOwner(waits ? Owner::Ours : Owner::Nobody);
    startNext();
}

void UssdChannel::finish(const UssdReply &reply)
{
    const Request request = *std::exchange(m_running, std::nullopt);
    m_replyText.reset();
    // If the network sent another prompt immediately after the reply, the current state belongs to
    // that prompt, because the daemon did not report the idle state in between.
    const bool isStateOfQuestion = m_hasNewQuestion && reply.type == UssdWaitsForAnswer;
    UssdReply reported = reply;
    if (isStateOfQuestion)
        reported.type = UssdFinal;
    if (reported.text.empty() && reported.type == UssdFinal)
        reported = failedReply(Failure{TKSV_FAILURE_EMPTY_REPLY});
    if (reply.failure.reason == TKSV_FAILURE_NONE)
        setOwner(reported.type == UssdWaitsForAnswer ? Owner::Ours : Owner::Nobody);
    m_listener.replied(request.token, reported);
    if (isStateOfQuestion)
        reportQuestion();
    startNext();
}

/// Reports a network-initiated message that requires an answer.
void UssdChannel::reportQuestion()
{
    m_hasNewQuestion = false;
    setOwner(Owner::Network);
    const std::string text = textOf(mm_modem_3gpp_ussd_get_network_request(m_ussd.get()));
    m_listener.textReceived(UssdReply{UssdWaitsForAnswer, text});
}

void UssdChannel::setOwner(Owner owner)
{
    const bool hadForeignSession = hasForeignSession();
    m_owner = owner;
    if (hadForeignSession != hasForeignSession())
        m_listener.changed();
}

} // namespace Tksv
