#include "UssdChannel.h"

#include <utility>

#include "UssdErrors.h"

namespace tksv
{

namespace
{

/// How long news of the state may lag behind a reply before it is asked for.
const std::chrono::milliseconds STATE_LAG_LIMIT(500);

/// GDBus would give a call up after 25 s; how long a reply may take is the client's to decide.
const int NO_TIME_LIMIT = G_MAXINT;

bool names(GVariant *changed, const char *property)
{
    const GVariantPtr value(g_variant_lookup_value(changed, property, nullptr));
    return value != nullptr;
}

/// In the reply of org.freedesktop.DBus.Properties.Get.
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

/// GLib replaces the proxies of an object that it gets told of twice: the earlier one still makes
/// calls but sees no change of a property any more.
void UssdChannel::setInterface(MMModem3gppUssd *ussd)
{
    if (ussd == m_ussd.get())
        return;
    m_signals.disconnectAll();
    m_ussd = shareObject(ussd);
    if (!m_ussd)
        return interfaceGone();
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(ussd), NO_TIME_LIMIT);
    m_signals.onPropertiesChanged(ussd, [this](GVariant *changed) { propertiesChanged(changed); });
}

/// What the daemon still says of calls on it does not count; perhaps it says nothing.
void UssdChannel::interfaceGone()
{
    giveUp();
    ++m_call;
    m_inCall.reset();
    m_replyText.reset();
    m_cancelWanted = false;
    m_cancelling = false;
    m_askedByNetwork = false;
}

void UssdChannel::catchUp()
{
    if (!m_ussd)
        return;
    stateBecame(mm_modem_3gpp_ussd_get_state(m_ussd.get()));
    step();
}

/* ---- what the client wants --------------------------------------------------------------- */

void UssdChannel::request(RequestToken token, RequestKind kind, const std::string &text)
{
    m_next = Request{token, kind, text, false};
    if (kind == RequestKind::NewSession)
        m_cancelWanted = m_inCall || m_askedByNetwork;
    step();
}

void UssdChannel::endSession()
{
    m_next.reset();
    m_cancelWanted = m_inCall || m_askedByNetwork;
    step();
}

void UssdChannel::giveUp()
{
    const bool isEnding = m_cancelWanted || m_cancelling;
    const std::optional<Request> request = m_next || isEnding ? m_next : m_inCall;
    endSession();
    if (request)
        m_listener.replied(request->token, UssdReply{UssdEndedByNetwork, std::string()});
}

/* ---- calls ------------------------------------------------------------------------------- */

/// Begins what is to be done next, one call at a time.
void UssdChannel::step()
{
    if (!m_ussd || m_cancelling)
        return;
    if (m_cancelWanted)
        return startCancel();
    if (!m_inCall && m_next)
        start(*std::exchange(m_next, std::nullopt));
}

void UssdChannel::start(const Request &request)
{
    m_inCall = request;
    m_replyText.reset();
    m_wasActive = false;
    m_askedByNetwork = false;
    m_questionCame = false;
    const bool isAnswer = request.kind == RequestKind::Answer;
    const auto finishCall =
        isAnswer ? mm_modem_3gpp_ussd_respond_finish : mm_modem_3gpp_ussd_initiate_finish;
    const AsyncDone done = [this, call = ++m_call, request, finishCall](GObject *ussd,
                                                                        GAsyncResult *result) {
        ErrorSlot error;
        GMemory<char> text(finishCall(MM_MODEM_3GPP_USSD(ussd), result, error.slot()));
        callReturned(call, request, std::move(text), error.get());
    };
    const auto begin = isAnswer ? mm_modem_3gpp_ussd_respond : mm_modem_3gpp_ussd_initiate;
    begin(m_ussd.get(), request.text.c_str(), nullptr, runAsyncDone, asyncDone(whileAlive(done)));
}

void UssdChannel::callReturned(unsigned call, const Request &request, GMemory<char> text,
                               const GError *error)
{
    if (call != m_call)
        return; // ended by a cancel
    if (error)
        return failed(request, *error);
    m_replyText = textOf(text.get());
    waitForState();
}

void UssdChannel::failed(const Request &request, const GError &error)
{
    const UssdVerdict verdict = judgeUssdError(error);
    if (verdict.failure == UssdFailure::ServiceLost)
        return; // the command ends with the device
    if (verdict.failure == UssdFailure::NotPermitted)
        m_listener.notPermitted();
    const bool tryAgain = verdict.failure == UssdFailure::SessionOpen && !request.isSecondTry &&
                          request.kind == RequestKind::NewSession;
    if (!tryAgain)
        return finish(UssdReply{verdict.type, std::string()});
    m_inCall.reset();
    m_next = request;
    m_next->isSecondTry = true;
    m_cancelWanted = true;
    step();
}

/// It ends a call that runs, which then returns with an error or, when the port is stuck, never.
void UssdChannel::startCancel()
{
    m_cancelWanted = false;
    m_cancelling = true;
    m_askedByNetwork = false;
    const AsyncDone done = [this, call = ++m_call](GObject *ussd, GAsyncResult *result) {
        ErrorSlot ignored; // the daemon is idle after it in any case
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
    m_inCall.reset();
    m_replyText.reset();
    step();
}

AsyncDone UssdChannel::whileAlive(AsyncDone function)
{
    return ifAlive(weak_from_this(), std::move(function));
}

/* ---- the session's state ----------------------------------------------------------------- */

/// After a reply the state becomes idle or "user response". Should the daemon have put both changes
/// of a quick command into none, it has to be asked.
void UssdChannel::waitForState()
{
    const MMModem3gppUssdSessionState state = mm_modem_3gpp_ussd_get_state(m_ussd.get());
    if (!m_wasActive)
        return askForState();
    if (state != MM_MODEM_3GPP_USSD_SESSION_STATE_ACTIVE)
        return stateBecame(state);
    if (!std::exchange(m_lagTimerRuns, true))
        startLagTimer();
}

/// One timer for all commands, since each that waited would make every turn of the loop longer.
void UssdChannel::startLagTimer()
{
    m_thread.after(STATE_LAG_LIMIT, [self = weak_from_this(), call = m_call] {
        const std::shared_ptr<UssdChannel> alive = self.lock();
        if (!alive)
            return;
        alive->m_lagTimerRuns = false;
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
        stateBecame(answer ? stateIn(answer.get()) : MM_MODEM_3GPP_USSD_SESSION_STATE_IDLE);
    };
    g_dbus_proxy_call(G_DBUS_PROXY(m_ussd.get()), "org.freedesktop.DBus.Properties.Get",
                      g_variant_new("(ss)", MM_DBUS_INTERFACE_MODEM_MODEM3GPP_USSD, "State"),
                      G_DBUS_CALL_FLAGS_NONE, -1, nullptr, runAsyncDone,
                      asyncDone(whileAlive(done)));
}

/// A repeated notification is no change of the property; ModemManager does not tell of it.
void UssdChannel::propertiesChanged(GVariant *changed)
{
    const auto alive = shared_from_this();
    if (names(changed, "NetworkNotification")) {
        const std::string text = textOf(mm_modem_3gpp_ussd_get_network_notification(m_ussd.get()));
        if (!text.empty())
            m_listener.networkSaid(UssdReply{UssdFinal, text});
    }
    if (names(changed, "NetworkRequest")) {
        m_askedByNetwork = false; // another question
        m_questionCame = true;
    }
    if (m_ussd && (names(changed, "State") || names(changed, "NetworkRequest")))
        stateBecame(mm_modem_3gpp_ussd_get_state(m_ussd.get()));
}

void UssdChannel::stateBecame(MMModem3gppUssdSessionState state)
{
    if (state == MM_MODEM_3GPP_USSD_SESSION_STATE_ACTIVE) {
        m_wasActive = true;
        return;
    }
    const bool waits = state == MM_MODEM_3GPP_USSD_SESSION_STATE_USER_RESPONSE;
    if (!waits)
        m_askedByNetwork = false;
    if (m_cancelling || m_cancelWanted)
        return;
    if (m_inCall) {
        if (m_replyText && m_wasActive)
            finish(UssdReply{waits ? UssdWaitsForAnswer : UssdFinal, *m_replyText});
        return;
    }
    if (waits && !m_askedByNetwork)
        networkAsks();
}

void UssdChannel::finish(const UssdReply &reply)
{
    const Request request = *std::exchange(m_inCall, std::nullopt);
    m_replyText.reset();
    // A question of the network's own right behind the reply: it is what waits for an answer, and
    // the state in between, idle, has never been seen.
    const bool isQuestionsState = m_questionCame && reply.type == UssdWaitsForAnswer;
    m_askedByNetwork = reply.type == UssdWaitsForAnswer && !isQuestionsState;
    UssdReply told = reply;
    if (isQuestionsState)
        told.type = UssdFinal;
    if (told.text.empty() && told.type == UssdFinal)
        told.type = UssdEndedByNetwork; // a reply without a text is none
    m_listener.replied(request.token, told);
    if (isQuestionsState)
        networkAsks();
    step();
}

/// The question of a menu that was the reply to somebody's command is not kept by the daemon; its
/// text is empty then.
void UssdChannel::networkAsks()
{
    m_askedByNetwork = true;
    const std::string text = textOf(mm_modem_3gpp_ussd_get_network_request(m_ussd.get()));
    m_listener.networkSaid(UssdReply{UssdWaitsForAnswer, text});
}

} // namespace tksv
