#include "ModemManagerBackend.h"

#include <algorithm>
#include <utility>

#include "../base/Text.h"

namespace Tksv
{

namespace
{

/// The time limit for ending the session when the program exits or switches to another device.
const std::chrono::milliseconds END_LIMIT(300);

bool canEndAtCommand(unsigned char unit)
{
    return unit < 0x20 || unit == 0x7f || unit == '"';
}

/// Returns the reason why the device cannot send commands, or TKSV_FAILURE_NONE if it can.
TKSV_Failure refusalOf(const DeviceInfo &info)
{
    return info.problem == TKSV_PROBLEM_NO_USSD ? TKSV_FAILURE_NOT_SUPPORTED
                                                : Tksv::refusalOf(info.state);
}

bool takesCommands(const DeviceInfo &info)
{
    return refusalOf(info) == TKSV_FAILURE_NONE;
}

UssdReply refusedReply(TKSV_Failure reason)
{
    return failedReply(Failure{reason, true});
}

} // namespace

bool isSafeForModem(const std::string &text)
{
    return std::none_of(text.begin(), text.end(), canEndAtCommand);
}

ModemManagerBackend::ModemManagerBackend(ModemWatch &watch, std::string equipmentId)
    : m_watch(watch), m_equipmentId(std::move(equipmentId))
{
    m_info.backend = TKSV_BACKEND_MODEMMANAGER;
    m_info.isLooking = true; // until the first call to publish()
}

/* ---- functions that may be called from any thread ---------------------------------------- */

void ModemManagerBackend::start(BackendObserver &observer)
{
    post([this, &observer] {
        m_observer = &observer;
        modemsChanged();
    });
}

void ModemManagerBackend::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (std::exchange(m_stopped, true))
            return;
    }
    m_watch.thread().run([this] {
        if (m_waiting && m_observer)
            m_observer->ussdReply(m_waiting->token, refusedReply(TKSV_FAILURE_DEVICE_LOST));
        m_waiting.reset();
        if (m_device) {
            m_device->ussd().leave();
            m_device->sms().failPending();
        }
        m_observer = nullptr;
        if (m_device)
            m_watch.thread().runUntil([this] { return m_device->ussd().isSettled(); }, END_LIMIT);
        m_device.reset();
    });
}

RequestResult ModemManagerBackend::request(RequestToken token, RequestKind kind,
                                           const std::string &text)
{
    if (!isSafeForModem(text))
        return {RequestMalformed, TKSV_FAILURE_NOT_ENCODABLE};
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped)
        return {RequestNoDevice, TKSV_FAILURE_NO_DEVICE};
    if (m_isInfoKnown && !m_info.isLooking && !takesCommands(m_info))
        return {RequestNoDevice, refusalOf(m_info)};
    post([this, request = Request{token, kind, text}, lostModemCount = m_lostModemCount] {
        perform(request, lostModemCount);
    });
    return {};
}

bool ModemManagerBackend::endForeignSession()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || !m_info.hasForeignSession)
        return false;
    post([this, lostModemCount = m_lostModemCount] {
        if (m_device && lostModemCount == m_lostModemCount)
            m_device->ussd().endForeignSession();
    });
    return true;
}

void ModemManagerBackend::endSession()
{
    post([this] {
        m_waiting.reset();
        if (m_device)
            m_device->ussd().endSession();
    });
}

bool ModemManagerBackend::sendSms(const SmsMessage &message)
{
    if (!toUtf8(message.number) || !toUtf8(message.text))
        return false;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || !m_info.canSendSms)
        return false;
    post([this, message, lostModemCount = m_lostModemCount] {
        if (m_device && lostModemCount == m_lostModemCount && m_info.canSendSms)
            return m_device->sms().send(message);
        if (m_observer)
            m_observer->smsFinished(message, SMS_FAILED);
    });
    return true;
}

bool ModemManagerBackend::sendPin(const std::string &pin)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_info.state != TKSV_DEVICE_SIM_LOCKED)
        return false;
    post([this, pin, lostModemCount = m_lostModemCount] {
        if (m_device && lostModemCount == m_lostModemCount)
            m_device->sendPin(pin);
    });
    return true;
}

bool ModemManagerBackend::enable()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_info.state != TKSV_DEVICE_DISABLED)
        return false;
    post([this, lostModemCount = m_lostModemCount] {
        if (m_device && lostModemCount == m_lostModemCount)
            m_device->enable();
    });
    return true;
}

bool ModemManagerBackend::setModes(const TKSV_Modes &modes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_info.state == TKSV_DEVICE_ABSENT)
        return false;
    post([this, modes, lostModemCount = m_lostModemCount] {
        if (m_device && lostModemCount == m_lostModemCount)
            m_device->setModes(modes);
    });
    return true;
}

DeviceInfo ModemManagerBackend::info() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_info;
}

void ModemManagerBackend::post(std::function<void()> task)
{
    m_watch.thread().post([self = shared_from_this(), task = std::move(task)] { task(); });
}

/* ---- functions that run on the thread of ModemWatch -------------------------------------- */

/// Sends the request. If ModemManager has not reported its modems yet, stores the request until it
/// has. The request fails if there is no usable modem, or if the modem was lost after the request
/// had been posted.
void ModemManagerBackend::perform(const Request &request, unsigned lostModemCount)
{
    m_waiting.reset();
    if (!m_device && m_watch.state() == ServiceState::Looking)
        m_waiting = request;
    else if (m_device && lostModemCount == m_lostModemCount && takesCommands(m_info))
        m_device->ussd().request(request.token, request.kind, request.text);
    else if (m_observer)
        m_observer->ussdReply(
            request.token,
            refusedReply(takesCommands(m_info) ? TKSV_FAILURE_DEVICE_LOST : refusalOf(m_info)));
}

/// Selects one of the modems that ModemWatch has found. Unless the user has selected a modem, the
/// first registered modem is used until it is lost.
void ModemManagerBackend::modemsChanged()
{
    if (!m_observer)
        return;
    if (m_device && !m_watch.findAt(m_device->path()))
        loseModem();
    if (m_device && prefersAnotherModem())
        leaveModem();
    if (GObjectPtr<MMObject> wanted = m_device ? nullptr : m_watch.find(m_equipmentId))
        adopt(std::move(wanted));
    if (m_device)
        m_device->refresh();
    publish();
    if (m_waiting && m_watch.state() != ServiceState::Looking)
        perform(*std::exchange(m_waiting, std::nullopt), m_lostModemCount);
}

bool ModemManagerBackend::prefersAnotherModem() const
{
    if (!m_equipmentId.empty() || m_wasRegistered)
        return false;
    const GObjectPtr<MMObject> best = m_watch.find(m_equipmentId);
    return best && textOf(mm_object_get_path(best.get())) != m_device->path() &&
           stateOf(mm_object_peek_modem(best.get())) == TKSV_DEVICE_REGISTERED;
}

/// Releases a modem that has never been registered. Such a modem has neither a session nor
/// requests.
void ModemManagerBackend::leaveModem()
{
    m_device.reset();
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_lostModemCount;
}

void ModemManagerBackend::adopt(GObjectPtr<MMObject> object)
{
    m_wasRegistered = false;
    m_isModemRemoved = false;
    ModemDevice::Listener listener;
    listener.changed = [this] { publish(); };
    listener.replied = [this](RequestToken token, const UssdReply &reply) {
        if (m_observer)
            m_observer->ussdReply(token, reply);
    };
    listener.textReceived = [this](const UssdReply &text) {
        if (m_observer)
            m_observer->ussdText(text);
    };
    listener.smsFinished = [this](const SmsMessage &message, int result) {
        if (m_observer)
            m_observer->smsFinished(message, result);
    };
    m_device = std::make_shared<ModemDevice>(m_watch.thread(), std::move(object), listener);
}

/// Releases the modem after it was unplugged or ModemManager has exited. When ModemManager has been
/// restarted, the modem is found again.
void ModemManagerBackend::loseModem()
{
    const std::shared_ptr<ModemDevice> gone = std::exchange(m_device, nullptr);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_lostModemCount;
    }
    const bool serviceEnded = m_watch.state() != ServiceState::Running;
    m_isModemRemoved = !serviceEnded;
    m_observer->deviceLost(serviceEnded ? TKSV_DEV_EVENT_RESET : TKSV_DEV_EVENT_GONE);
    gone->sms().failPending();
    publish();
}

void ModemManagerBackend::publish()
{
    if (!m_observer)
        return;
    const DeviceInfo now = currentInfo();
    m_wasRegistered = m_wasRegistered || now.state == TKSV_DEVICE_REGISTERED;
    DeviceInfo before;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        before = std::exchange(m_info, now);
        m_isInfoKnown = true;
    }
    notifyChanges(before, now);
}

/// Reports the changes to the observer. If the modem can no longer send commands, the requests in
/// flight fail, because no reply can arrive.
void ModemManagerBackend::notifyChanges(const DeviceInfo &before, const DeviceInfo &now)
{
    if (before == now)
        return;
    if (takesCommands(before) && !takesCommands(now) && m_device)
        m_device->failPending(refusalOf(now));
    if (before.canSendSms != now.canSendSms)
        m_observer->smsStatusChanged(now.canSendSms);
    m_observer->infoChanged();
}

DeviceInfo ModemManagerBackend::currentInfo() const
{
    DeviceInfo info;
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.problem = m_device ? TKSV_PROBLEM_NONE : problemWithoutModem();
    if (m_device)
        info = m_device->info();
    if (info.problem == TKSV_PROBLEM_NONE && m_watch.isSilent())
        info.problem = TKSV_PROBLEM_SERVICE_SILENT;
    info.isLooking = m_watch.state() == ServiceState::Looking;
    return info;
}

TKSV_DeviceProblem ModemManagerBackend::problemWithoutModem() const
{
    switch (m_watch.state()) {
    case ServiceState::NoBus:
        return TKSV_PROBLEM_NO_BUS;
    case ServiceState::NoService:
        return TKSV_PROBLEM_NO_SERVICE;
    default:
        break;
    }
    if (m_isModemRemoved)
        return TKSV_PROBLEM_MODEM_REMOVED;
    return m_watch.modems().empty() ? TKSV_PROBLEM_NONE : TKSV_PROBLEM_CHOSEN_ABSENT;
}

} // namespace Tksv
