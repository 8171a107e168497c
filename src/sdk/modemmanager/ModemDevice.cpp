#include "ModemDevice.h"

#include <utility>

#include "ModemWatch.h"
#include "RadioModes.h"
#include "UssdErrors.h"

namespace Tksv
{

namespace
{

const std::chrono::milliseconds SIM_DELAY(20);

/// Returns the number of remaining PIN attempts, or -1 if the number is unknown.
int pinRetriesOf(MMModem *modem)
{
    MMUnlockRetries *retries = mm_modem_peek_unlock_retries(modem);
    const guint left =
        retries ? mm_unlock_retries_get(retries, MM_MODEM_LOCK_SIM_PIN) : MM_UNLOCK_RETRIES_UNKNOWN;
    return left == MM_UNLOCK_RETRIES_UNKNOWN ? -1 : static_cast<int>(left);
}

/// Returns true if the modem has a lock that cannot be removed with the PIN. An unknown lock does
/// not count, because the lock is unknown while the modem verifies a PIN.
bool needsMoreThanPin(MMModemLock lock)
{
    return lock != MM_MODEM_LOCK_SIM_PIN && lock != MM_MODEM_LOCK_NONE &&
           lock != MM_MODEM_LOCK_UNKNOWN;
}

int signalOf(MMModem *modem)
{
    gboolean isRecent = FALSE;
    return static_cast<int>(mm_modem_get_signal_quality(modem, &isRecent));
}

} // namespace

ModemDevice::ModemDevice(MainLoopThread &thread, GObjectPtr<MMObject> object, Listener listener)
    : m_thread(thread), m_listener(std::move(listener)), m_object(std::move(object)),
      m_ussd(std::make_shared<UssdChannel>(thread, equipmentIdOf(m_object.get()), ussdListener())),
      m_sms(std::make_shared<SmsSender>(smsListener()))
{
}

UssdChannel::Listener ModemDevice::ussdListener()
{
    UssdChannel::Listener listener;
    listener.replied = [this](RequestToken token, const UssdReply &reply) {
        if (reply.failure.reason == TKSV_FAILURE_NONE)
            clearNotPermitted();
        m_listener.replied(token, reply);
    };
    listener.textReceived = m_listener.textReceived;
    listener.notPermitted = [this] { setProblem(TKSV_PROBLEM_NOT_PERMITTED); };
    listener.changed = [this] { m_listener.changed(); };
    listener.isOnlyOn4G = [this] { return isOnlyOn4G(); };
    return listener;
}

SmsSender::Listener ModemDevice::smsListener()
{
    SmsSender::Listener listener;
    listener.finished = [this](const SmsMessage &message, int result) {
        if (result == SMS_SENT)
            clearNotPermitted();
        m_listener.smsFinished(message, result);
    };
    listener.notPermitted = [this] { setProblem(TKSV_PROBLEM_NOT_PERMITTED); };
    return listener;
}

/// Returns the interface, or null if the modem does not currently provide it.
template <typename T>
T *ModemDevice::peek(const char *name, T *(*peekInterface)(MMObject *)) const
{
    return hasInterface(m_object.get(), name) ? peekInterface(m_object.get()) : nullptr;
}

void ModemDevice::refresh()
{
    m_modem = shareObject(peek(MM_DBUS_INTERFACE_MODEM, mm_object_peek_modem));
    m_3gpp = shareObject(peek(MM_DBUS_INTERFACE_MODEM_MODEM3GPP, mm_object_peek_modem_3gpp));
    m_modemSignals.disconnectAll();
    for (gpointer proxy : {gpointer(m_modem.get()), gpointer(m_3gpp.get())})
        m_modemSignals.onPropertiesChanged(proxy, [this](GVariant *) { modemChanged(); });
    m_ussd->setInterface(
        peek(MM_DBUS_INTERFACE_MODEM_MODEM3GPP_USSD, mm_object_peek_modem_3gpp_ussd));
    m_sms->setInterface(peek(MM_DBUS_INTERFACE_MODEM_MESSAGING, mm_object_peek_modem_messaging));
    modemChanged();
    m_ussd->catchUp(); // must follow modemChanged(), which publishes that commands can be sent
}

void ModemDevice::modemChanged()
{
    if (!m_modem)
        return;
    const MMModemState now = mm_modem_get_state(m_modem.get());
    if (now > MM_MODEM_STATE_DISABLED || now == MM_MODEM_STATE_FAILED)
        m_enableWanted = false;
    if (now == MM_MODEM_STATE_DISABLED && std::exchange(m_enableWanted, false))
        enable();
    if (now >= MM_MODEM_STATE_LOCKED && now > std::exchange(m_lastState, now))
        m_problem = TKSV_PROBLEM_NONE; // the problem no longer exists in the new state
    fetchSimSoon();
    m_listener.changed();
    if (now == MM_MODEM_STATE_DISABLED)
        m_ussd->abandonCall(); // changed() has already reported its request as failed
}

void ModemDevice::enable()
{
    setProblem(TKSV_PROBLEM_NONE); // cleared, so that a second failure is reported as a change
    const auto done = [this](GObject *modem, GAsyncResult *result) {
        ErrorSlot error;
        mm_modem_enable_finish(MM_MODEM(modem), result, error.slot());
        if (error)
            setProblem(problemOfEnableError(*error.get()));
    };
    mm_modem_enable(m_modem.get(), nullptr, runAsyncDone,
                    asyncDone(ifAlive(weak_from_this(), done)));
}

void ModemDevice::setModes(const TKSV_Modes &modes)
{
    m_hasModeChangeFailed = false;
    const auto done = [this](GObject *modem, GAsyncResult *result) {
        ErrorSlot error;
        mm_modem_set_current_modes_finish(MM_MODEM(modem), result, error.slot());
        m_hasModeChangeFailed = bool(error);
        m_listener.changed();
    };
    mm_modem_set_current_modes(m_modem.get(), toModemMode(modes.allowed),
                               toModemMode(modes.preferred), nullptr, runAsyncDone,
                               asyncDone(ifAlive(weak_from_this(), done)));
}

/// Fetches the SIM after a short delay if the SIM has changed. Reading the SIM requires several
/// calls, which would otherwise delay a program that only sends one command.
void ModemDevice::fetchSimSoon()
{
    if (textOf(mm_modem_get_sim_path(m_modem.get())) == m_simPath ||
        std::exchange(m_isSimFetchPlanned, true))
        return;
    m_thread.after(SIM_DELAY, [self = weak_from_this()] {
        const std::shared_ptr<ModemDevice> alive = self.lock();
        if (!alive)
            return;
        alive->m_isSimFetchPlanned = false;
        if (alive->m_modem)
            alive->fetchSim();
    });
}

void ModemDevice::fetchSim()
{
    const std::string path = textOf(mm_modem_get_sim_path(m_modem.get()));
    m_simPath = path;
    const auto done = [this, path](GObject *modem, GAsyncResult *result) {
        ErrorSlot ignored; // if there is no SIM, the fields of the SIM remain empty
        GObjectPtr<MMSim> sim(mm_modem_get_sim_finish(MM_MODEM(modem), result, ignored.slot()));
        if (path != m_simPath)
            return; // the SIM was replaced while this call was running
        m_sim = std::move(sim);
        m_simSignals.disconnectAll();
        m_simSignals.onPropertiesChanged(m_sim.get(), [this](GVariant *) { m_listener.changed(); });
        m_listener.changed();
        sendPendingPin();
    };
    mm_modem_get_sim(m_modem.get(), nullptr, runAsyncDone,
                     asyncDone(ifAlive(weak_from_this(), done)));
}

void ModemDevice::sendPendingPin()
{
    const std::string pin = std::exchange(m_pendingPin, {});
    if (pin.empty())
        return;
    m_sim ? sendPin(pin) : setProblem(TKSV_PROBLEM_MODEM_FAILED);
}

void ModemDevice::sendPin(const std::string &pin)
{
    setProblem(TKSV_PROBLEM_NONE); // cleared, so that a second wrong PIN is reported as a change
    if (!m_sim) {
        m_pendingPin = pin;
        return;
    }
    const auto done = [this](GObject *sim, GAsyncResult *result) {
        ErrorSlot error;
        mm_sim_send_pin_finish(MM_SIM(sim), result, error.slot());
        m_enableWanted = !error; // the user has entered the PIN in order to use the modem
        setProblem(error ? problemOfPinError(*error.get()) : TKSV_PROBLEM_NONE);
        modemChanged();
    };
    mm_sim_send_pin(m_sim.get(), pin.c_str(), nullptr, runAsyncDone,
                    asyncDone(ifAlive(weak_from_this(), done)));
}

void ModemDevice::failPending(TKSV_Failure reason)
{
    m_ussd->failPending(reason);
    m_sms->failPending();
}

void ModemDevice::setProblem(TKSV_DeviceProblem problem)
{
    m_problem = problem;
    m_listener.changed();
}

void ModemDevice::clearNotPermitted()
{
    if (m_problem == TKSV_PROBLEM_NOT_PERMITTED)
        setProblem(TKSV_PROBLEM_NONE);
}

/* ---- state and properties ---------------------------------------------------------------- */

DeviceInfo ModemDevice::info() const
{
    DeviceInfo info;
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.state = state();
    info.problem = problem();
    info.equipmentId = equipmentIdOf(m_object.get());
    if (!m_modem)
        return info;
    info.source = nameOf(m_modem.get());
    info.pinRetries = isLocked() ? pinRetriesOf(m_modem.get()) : -1;
    if (info.state >= TKSV_DEVICE_SEARCHING)
        info.signalPercent = signalOf(m_modem.get());
    if (info.state == TKSV_DEVICE_REGISTERED && m_3gpp)
        info.operatorName = textOf(mm_modem_3gpp_get_operator_name(m_3gpp.get()));
    info.hasForeignSession = m_ussd->hasForeignSession();
    info.waitsForTurn = m_ussd->waitsForTurn();
    info.canSendSms = info.state == TKSV_DEVICE_REGISTERED && m_sms->isUsable();
    info.isRoaming = isRoaming();
    if (m_modem)
        info.modes = modesOf(m_modem.get());
    info.modes.hasFailed = m_hasModeChangeFailed ? 1 : 0;
    if (m_sim) {
        info.imsi = textOf(mm_sim_get_imsi(m_sim.get()));
        info.simOperatorCode = textOf(mm_sim_get_operator_identifier(m_sim.get()));
        info.simOperatorName = textOf(mm_sim_get_operator_name(m_sim.get()));
    }
    return info;
}

bool ModemDevice::isRoaming() const
{
    switch (m_3gpp ? mm_modem_3gpp_get_registration_state(m_3gpp.get())
                   : MM_MODEM_3GPP_REGISTRATION_STATE_UNKNOWN) {
    case MM_MODEM_3GPP_REGISTRATION_STATE_ROAMING:
    case MM_MODEM_3GPP_REGISTRATION_STATE_ROAMING_SMS_ONLY:
    case MM_MODEM_3GPP_REGISTRATION_STATE_ROAMING_CSFB_NOT_PREFERRED:
        return true;
    default:
        return false;
    }
}

/// Returns true if the modem uses 4G or 5G and is not connected to 2G or 3G.
bool ModemDevice::isOnlyOn4G() const
{
    const guint newer = MM_MODEM_ACCESS_TECHNOLOGY_LTE | MM_MODEM_ACCESS_TECHNOLOGY_LTE_CAT_M |
                        MM_MODEM_ACCESS_TECHNOLOGY_LTE_NB_IOT | MM_MODEM_ACCESS_TECHNOLOGY_5GNR;
    const guint inUse = m_modem ? guint(mm_modem_get_access_technologies(m_modem.get())) : 0;
    return inUse != 0 && (inUse & ~newer) == 0;
}

bool ModemDevice::isLocked() const
{
    return m_modem && mm_modem_get_state(m_modem.get()) == MM_MODEM_STATE_LOCKED;
}

TKSV_DeviceState ModemDevice::state() const
{
    return m_modem ? stateOf(m_modem.get()) : TKSV_DEVICE_ABSENT;
}

TKSV_DeviceProblem ModemDevice::problem() const
{
    const TKSV_DeviceState now = state();
    if (isLocked() && needsMoreThanPin(mm_modem_get_unlock_required(m_modem.get())))
        return TKSV_PROBLEM_PUK_NEEDED;
    if (m_modem && now != TKSV_DEVICE_SIM_MISSING &&
        mm_modem_get_state(m_modem.get()) == MM_MODEM_STATE_FAILED)
        return TKSV_PROBLEM_MODEM_FAILED;
    if (now == TKSV_DEVICE_REGISTERED && !m_ussd->isUsable())
        return TKSV_PROBLEM_NO_USSD;
    if (now == TKSV_DEVICE_SEARCHING && m_problem == TKSV_PROBLEM_NONE && isRegistrationDenied())
        return TKSV_PROBLEM_REGISTRATION_DENIED;
    return m_problem;
}

bool ModemDevice::isRegistrationDenied() const
{
    return m_3gpp && mm_modem_3gpp_get_registration_state(m_3gpp.get()) ==
                         MM_MODEM_3GPP_REGISTRATION_STATE_DENIED;
}

} // namespace Tksv
