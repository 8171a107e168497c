#include "UssdChannel.h"

#include <utility>

#include "UssdErrors.h"

namespace Tksv
{

namespace
{

/// The time that the channel waits for the state after a reply before it queries the state.
const std::chrono::milliseconds STATE_LAG_LIMIT(500);

/// There is no time limit, because the client decides how long it waits for a reply. By default,
/// GDBus would cancel the call after 25 seconds.
const int NO_TIME_LIMIT = G_MAXINT;

bool contains(GVariant *changed, const char *property)
{
    const GVariantPtr value(g_variant_lookup_value(changed, property, nullptr));
    return value != nullptr;
}

/// Returns the state from a reply to org.freedesktop.DBus.Properties.Get.
MMModem3gppUssdSessionState stateIn(GVariant *answer)
{
    GVariant *state = nullptr;
    g_variant_get(answer, "(v)", &state);
    const GVariantPtr owned(state);
    return static_cast<MMModem3gppUssdSessionState>(g_variant_get_uint32(state));
}

} // namespace

UssdChannel::UssdChannel(MainLoopThread &thread, Listener listener)
    : m_thread(thread), m_listener(std::move(listener))
{
}

/// Sets the proxy of the interface. If the daemon announces an object twice, GLib replaces the
/// object's proxies. The old proxy can still make calls, but no longer receives property changes.
void UssdChannel::setInterface(MMModem3gppUssd *ussd)
{
    if (ussd == m_ussd.get())
        return;
    m_signals.disconnectAll();
    m_ussd = shareObject(ussd);
    if (!m_ussd)
        return interfaceRemoved();
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(ussd), NO_TIME_LIMIT);
    m_signals.onPropertiesChanged(ussd, [this](GVariant *changed) { propertiesChanged(changed); });
}

/// Clears the state of the interface that was removed. The results of its pending calls may never
/// arrive. If they do, they are ignored.
void UssdChannel::interfaceRemoved()
{
    failPending();
    ++m_call;
    m_running.reset();
    m_replyText.reset();
    m_cancelWanted = false;
    m_cancelling = false;
    m_isQuestionReported = false;
}

void UssdChannel::catchUp()
{
    if (!m_ussd)
        return;
    handleState(mm_modem_3gpp_ussd_get_state(m_ussd.get()));
    startNext();
}

/* ---- requests from the client ------------------------------------------------------------ */

void UssdChannel::request(RequestToken token, RequestKind kind, const std::string &text)
{
    m_next = Request{token, kind, text, false};
    if (kind == RequestKind::NewSession)
        m_cancelWanted = m_running || m_isQuestionReported;
    startNext();
}

void UssdChannel::endSession()
{
    m_next.reset();
    m_cancelWanted = m_running || m_isQuestionReported;
    startNext();
}

void UssdChannel::failPending()
{
    const bool isEnding = m_cancelWanted || m_cancelling;
    const std::optional<Request> request = m_next || isEnding ? m_next : m_running;
    endSession();
    if (request)
        m_listener.replied(request->token, UssdReply{UssdEndedByNetwork, std::string()});
}

/* ---- calls to the daemon ----------------------------------------------------------------- */

/// Starts the next call. Only one call can run at a time.
void UssdChannel::startNext()
{
    if (!m_ussd || m_cancelling)
        return;
    if (m_cancelWanted)
        return startCancel();
    if (!m_running && m_next)
        start(*std::exchange(m_next, std::nullopt));
}

void UssdChannel::start(const Request &request)
{
    m_running = request;
    m_replyText.reset();
    m_wasActive = false;
    m_isQuestionReported = false;
    m_hasNewQuestion = false;
    const bool isAnswer = request.kind == RequestKind::Answer;
    const auto finishCall =
        isAnswer ? mm_modem_3gpp_ussd_respond_finish : mm_modem_3gpp_ussd_initiate_finish;
    const AsyncDone done = [this, call = ++m_call, request, finishCall](GObject *ussd,
                                                                        GAsyncResult *result) {
        ErrorSlot error;
        GMemory<char> text(finishCall(MM_MODEM_3GPP_USSD(ussd), result, error.slot()));
        callReturned(call, request, std::move(text), error.get());
    };
    const auto startCall = isAnswer ? mm_modem_3gpp_ussd_respond : mm_modem_3gpp_ussd_initiate;
    startCall(m_ussd.get(), request.text.c_str(), nullptr, runAsyncDone,
              asyncDone(whileAlive(done)));
}

void UssdChannel::callReturned(unsigned call, const Request &request, GMemory<char> text,
                               const GError *error)
{
    if (call != m_call)
        return; // the call was cancelled
    if (error)
        return callFailed(request, *error);
    m_replyText = textOf(text.get());
    waitForState();
}

void UssdChannel::callFailed(const Request &request, const GError &error)
{
    const UssdVerdict verdict = classifyUssdError(error);
    if (verdict.failure == UssdFailure::ServiceLost)
        return; // the device event ends the command
    if (verdict.failure == UssdFailure::NotPermitted)
        m_listener.notPermitted();
    const bool retry = verdict.failure == UssdFailure::SessionOpen && !request.isRetry &&
                       request.kind == RequestKind::NewSession;
    if (!retry)
        return finish(UssdReply{verdict.type, std::string()});
    m_running.reset();
    m_next = request;
    m_next->isRetry = true;
    m_cancelWanted = true;
    startNext();
}

/// Cancels the session, which ends a running call. The running call then returns an error, or never
/// returns if the modem's port is stuck.
void UssdChannel::startCancel()
{
    m_cancelWanted = false;
    m_cancelling = true;
    m_isQuestionReported = false;
    const AsyncDone done = [this, call = ++m_call](GObject *ussd, GAsyncResult *result) {
        ErrorSlot ignored; // the daemon is idle even after a failed cancellation
        mm_modem_3gpp_ussd_cancel_finish(MM_MODEM_3GPP_USSD(ussd), result, ignored.slot());
        cancelReturned(call);
    };
    mm_modem_3gpp_ussd_cancel(m_ussd.get(), nullptr, runAsyncDone, asyncDone(whileAlive(done)));
}

void UssdChannel::cancelReturned(unsigned call)
{
    if (call != m_call)
        return;
    m_cancelling = false;
    m_running.reset();
    m_replyText.reset();
    startNext();
}

AsyncDone UssdChannel::whileAlive(AsyncDone function)
{
    return ifAlive(weak_from_this(), std::move(function));
}

/* ---- the session's state ----------------------------------------------------------------- */

/// Waits until the state belongs to the reply. After a reply, the state changes from "active" to
/// "idle" or "user response". If a command finishes quickly, the daemon may not report either
/// change. Therefore, the channel queries the state.
void UssdChannel::waitForState()
{
    const MMModem3gppUssdSessionState state = mm_modem_3gpp_ussd_get_state(m_ussd.get());
    if (!m_wasActive)
        return askForState();
    if (state != MM_MODEM_3GPP_USSD_SESSION_STATE_ACTIVE)
        return handleState(state);
    if (!std::exchange(m_isLagTimerRunning, true))
        startLagTimer();
}

/// Starts the timer that limits the wait for the state. All commands share one timer, because every
/// pending timer slows down each iteration of the loop.
void UssdChannel::startLagTimer()
{
    m_thread.after(STATE_LAG_LIMIT, [self = weak_from_this(), call = m_call] {
        const std::shared_ptr<UssdChannel> alive = self.lock();
        if (!alive)
            return;
        alive->m_isLagTimerRunning = false;
        if (alive->m_replyText)
            alive->m_call == call ? alive->askForState() : alive->waitForState();
    });
}

void UssdChannel::askForState()
{
    const AsyncDone done = [this, call = m_call](GObject *proxy, GAsyncResult *result) {
        ErrorSlot error;
        const GVariantPtr answer(
            g_dbus_proxy_call_finish(G_DBUS_PROXY(proxy), result, error.slot()));
        if (call != m_call)
            return;
        m_wasActive = true;
        handleState(answer ? stateIn(answer.get()) : MM_MODEM_3GPP_USSD_SESSION_STATE_IDLE);
    };
    g_dbus_proxy_call(G_DBUS_PROXY(m_ussd.get()), "org.freedesktop.DBus.Properties.Get",
                      g_variant_new("(ss)", MM_DBUS_INTERFACE_MODEM_MODEM3GPP_USSD, "State"),
                      G_DBUS_CALL_FLAGS_NONE, -1, nullptr, runAsyncDone,
                      asyncDone(whileAlive(done)));
}

/// Handles the changed properties. A notification that repeats the previous text exactly does not
/// change a property and is therefore not reported.
void UssdChannel::propertiesChanged(GVariant *changed)
{
    const auto alive = shared_from_this();
    if (contains(changed, "NetworkNotification")) {
        const std::string text = textOf(mm_modem_3gpp_ussd_get_network_notification(m_ussd.get()));
        if (!text.empty())
            m_listener.textReceived(UssdReply{UssdFinal, text});
    }
    if (contains(changed, "NetworkRequest")) {
        m_isQuestionReported = false; // this is a new prompt
        m_hasNewQuestion = true;
    }
    if (m_ussd && (contains(changed, "State") || contains(changed, "NetworkRequest")))
        handleState(mm_modem_3gpp_ussd_get_state(m_ussd.get()));
}

void UssdChannel::handleState(MMModem3gppUssdSessionState state)
{
    if (state == MM_MODEM_3GPP_USSD_SESSION_STATE_ACTIVE) {
        m_wasActive = true;
        return;
    }
    const bool waits = state == MM_MODEM_3GPP_USSD_SESSION_STATE_USER_RESPONSE;
    if (!waits)
        m_isQuestionReported = false;
    if (m_cancelling || m_cancelWanted)
        return;
    if (m_running) {
        if (m_replyText && m_wasActive)
            finish(UssdReply{waits ? UssdWaitsForAnswer : UssdFinal, *m_replyText});
        return;
    }
    if (waits && !m_isQuestionReported)
        reportQuestion();
}

void UssdChannel::finish(const UssdReply &reply)
{
    const Request request = *std::exchange(m_running, std::nullopt);
    m_replyText.reset();
    // The network sent another prompt immediately after the reply. The state belongs to this
    // prompt, and the idle state in between was never reported.
    const bool isStateOfQuestion = m_hasNewQuestion && reply.type == UssdWaitsForAnswer;
    m_isQuestionReported = reply.type == UssdWaitsForAnswer && !isStateOfQuestion;
    UssdReply reported = reply;
    if (isStateOfQuestion)
        reported.type = UssdFinal;
    if (reported.text.empty() && reported.type == UssdFinal)
        reported.type = UssdEndedByNetwork; // a reply without text is a rejection
    m_listener.replied(request.token, reported);
    if (isStateOfQuestion)
        reportQuestion();
    startNext();
}

/// Reports a prompt from the network. The text is empty for a menu that was the reply to another
/// program's command, because the daemon does not store this text.
void UssdChannel::reportQuestion()
{
    m_isQuestionReported = true;
    const std::string text = textOf(mm_modem_3gpp_ussd_get_network_request(m_ussd.get()));
    m_listener.textReceived(UssdReply{UssdWaitsForAnswer, text});
}

} // namespace Tksv
