#include "Conversation.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

#include "CommandText.h"

namespace Cli
{

namespace
{

/// The time limit for cancelling a request on the device.
const Milliseconds CANCEL_LIMIT(1000);

/// The difference between the library's and the program's own time limit for waiting while another
/// program uses the modem. The library's limit is longer, so that the program always stops waiting
/// first.
const Milliseconds TURN_GRACE(5000);

/// The time for which the program waits for a reply before it registers a call-back for changes to
/// the device. If the reply arrives earlier, the library need not start a thread for the call-back.
const Milliseconds QUICK_REPLY(100);

/** Passes the response from a thread of the library to the main thread. */
class Mailbox
{
public:
    /// Prepares the mailbox for the response to a request. The response will wake `waits`.
    void expect(Waits *waits)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_waits = waits;
        m_isExpected = true;
        m_response.reset();
    }
    /// Discards later responses. Must be called if the request has been given up.
    void expectNothing()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isExpected = false;
    }
    void closeMenu()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isMenuOpen = false;
    }
    /// Stores the response. Returns false if no response is expected.
    bool put(const Outcome &response)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isMenuOpen = response.isMenu();
        if (!std::exchange(m_isExpected, false))
            return false;
        m_response = response;
        m_waits->wake();
        return true;
    }
    bool hasResponse() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_response.has_value();
    }
    Outcome take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return *std::exchange(m_response, std::nullopt);
    }
    bool isExpected() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_isExpected;
    }
    bool isMenuOpen() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_isMenuOpen;
    }

private:
    mutable std::mutex m_mutex;
    Waits *m_waits = nullptr;
    bool m_isExpected = false;
    bool m_isMenuOpen = false;
    std::optional<Outcome> m_response;
};

/// Returns the program's mailbox. It is never destroyed, because a call-back may still run at
/// program exit.
Mailbox &mailbox()
{
    static auto *const only = new Mailbox;
    return *only;
}

bool hasResponse()
{
    return mailbox().hasResponse();
}

/// Returns true if no modem could be found because ModemManager does not respond.
bool isStuck(const TKSV_DeviceInfo &device)
{
    return device.isLooking && device.problem != TKSV_PROBLEM_NONE;
}

TKSV_FailureInfo lastFailure(TKSV_Failure otherwise)
{
    TKSV_FailureInfo failure = {};
    TKSV_Device_GetLastFailure(&failure);
    if (failure.reason == TKSV_FAILURE_NONE)
        failure.reason = otherwise;
    return failure;
}

/* ---- functions that run on threads of the library ---------------------------------------- */

unsigned char takeResponse(int, void *data)
{
    if (!mailbox().isExpected())
        return 0; // a network-initiated message
    const auto *const response = static_cast<const TKSV_USSDResponse *>(data);
    Outcome outcome;
    outcome.type = response->type;
    outcome.text = fromUtf16(response->text);
    if (outcome.text.empty() && outcome.type != 1)
        outcome.failure = lastFailure(TKSV_FAILURE_REFUSED);
    return mailbox().put(outcome) ? 1 : 0;
}

unsigned char takeLoss(int, void *)
{
    Outcome outcome;
    outcome.failure = lastFailure(TKSV_FAILURE_DEVICE_LOST);
    mailbox().put(outcome);
    return 1;
}

} // namespace

Conversation::Conversation(Device &device, Waits &waits, Milliseconds timeout)
    : m_device(device), m_waits(waits), m_timeout(timeout)
{
    // The limit of the library is longer than that of await(), which therefore stops waiting first.
    TKSV_Device_SetTurnLimit(static_cast<unsigned>((timeout + TURN_GRACE).count()));
    TKSV_USSDSrv_RegisterUSSDCallback(takeResponse);
    TKSV_DevSrv_RegisterDevInitEventCallback(takeLoss);
}

Conversation::~Conversation()
{
    end();
    TKSV_DevSrv_UnRegisterDevInitEventCallback(takeLoss);
    TKSV_USSDSrv_UnRegisterUSSDCallback(takeResponse);
}

/// Returns the reason why no string may be sent, or TKSV_FAILURE_NONE.
TKSV_Failure Conversation::reasonNotToSend()
{
    if (m_waits.isEnding())
        return TKSV_FAILURE_CANCELLED;
    const bool isSameModem = m_modem.empty() || m_device.info().equipmentId == m_modem;
    return isSameModem ? TKSV_FAILURE_NONE : TKSV_FAILURE_DEVICE_LOST;
}

Outcome Conversation::send(const std::string &text)
{
    const Clock::time_point start = Clock::now();
    TKSV_USSDRequest request = requestOf(text);
    int status = 0;
    Outcome outcome;
    outcome.failure.reason = reasonNotToSend();
    if (outcome.hasFailed()) {
        outcome.failure.wasNotSent = 1;
        return outcome;
    }
    mailbox().expect(&m_waits);
    if (TKSV_USSDSrv_Request(&request, &status) == 0) {
        outcome = await(start);
        if (m_modem.empty()) // the modem may still be unknown before the first reply
            m_modem = m_device.info().equipmentId;
    } else {
        mailbox().expectNothing();
        outcome.failure = lastFailure(TKSV_FAILURE_NO_DEVICE);
        outcome.failure.wasNotSent = 1;
    }
    outcome.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return outcome;
}

/// Waits for the response and returns the outcome. The time limit starts again whenever the request
/// starts or stops waiting for another program. Stops waiting if ModemManager does not respond.
Outcome Conversation::await(Clock::time_point start)
{
    Clock::time_point end = start + m_timeout;
    if (!m_waits.until(hasResponse, std::min(end, start + QUICK_REPLY)))
        m_device.follow();
    bool isAwaitingTurn = false;
    const auto isStateChanged = [&] {
        const TKSV_DeviceInfo device = m_device.info();
        return (device.waitsForTurn != 0) != isAwaitingTurn || isStuck(device);
    };
    while (m_waits.until([&] { return hasResponse() || isStateChanged(); }, end)) {
        if (hasResponse())
            return mailbox().take();
        if (isStuck(m_device.info()))
            break;
        isAwaitingTurn = !isAwaitingTurn;
        end = Clock::now() + m_timeout;
        if (isAwaitingTurn && m_turnAwaited)
            m_turnAwaited();
    }
    if (m_device.info().isLooking)
        return giveUp(TKSV_FAILURE_NO_DEVICE);
    return giveUp(isAwaitingTurn ? TKSV_FAILURE_IN_USE : TKSV_FAILURE_NO_ANSWER);
}

/// Cancels the request on the device. Returns the reply if it arrives before the cancellation takes
/// effect. Otherwise, returns a failure with this reason, or TKSV_FAILURE_CANCELLED if a signal has
/// arrived.
Outcome Conversation::giveUp(TKSV_Failure reason)
{
    TKSV_Device_CancelRequest();
    m_waits.untilDespiteSignal(hasResponse, CANCEL_LIMIT);
    Outcome outcome;
    if (hasResponse()) {
        outcome = mailbox().take();
    } else {
        TKSV_USSDSrv_Release(nullptr);
        mailbox().expectNothing();
        mailbox().closeMenu();
        outcome.failure.reason = TKSV_FAILURE_CANCELLED;
    }
    if (outcome.failure.reason == TKSV_FAILURE_CANCELLED && !m_waits.signal())
        outcome.failure.reason = reason;
    outcome.hasMissedTurn = outcome.failure.reason == TKSV_FAILURE_IN_USE;
    return outcome;
}

void Conversation::end()
{
    if (!mailbox().isMenuOpen())
        return;
    TKSV_USSDSrv_Release(nullptr);
    mailbox().closeMenu();
}

bool Conversation::isMenuOpen() const
{
    return mailbox().isMenuOpen();
}

} // namespace Cli
