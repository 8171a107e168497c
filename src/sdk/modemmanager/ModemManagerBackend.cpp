#include "ModemManagerBackend.h"

#include <algorithm>
#include <utility>

#include "../base/Text.h"

namespace Tksv
{

namespace
{

bool canEndAtCommand(unsigned char unit)
{
    return unit < 0x20 || unit == 0x7f || unit == '"';
}

bool takesCommands(const DeviceInfo &info)
{
    return info.state == TKSV_DEVICE_REGISTERED && info.problem != TKSV_PROBLEM_NO_USSD;
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
}

/* ---- functions for any thread ------------------------------------------------------------ */

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
        if (m_device) {
            m_device->ussd().endSession();
            m_device->sms().failPending();
        }
        m_observer = nullptr;
        m_device.reset();
    });
}

int ModemManagerBackend::request(RequestToken token, RequestKind kind, const std::string &text)
{
    if (!isSafeForModem(text))
        return RequestMalformed;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || (m_isInfoKnown && !takesCommands(m_info)))
        return RequestNoDevice;
    post([this, token, kind, text, lostModemCount = m_lostModemCount] {
        if (m_device && lostModemCount == m_lostModemCount && takesCommands(m_info))
            return m_device->ussd().request(token, kind, text);
        if (m_observer) // null if the modem was lost in the meantime or has never existed
            m_observer->ussdReply(token, UssdReply{UssdEndedByNetwork, std::string()});
    });
    return RequestAccepted;
}

void ModemManagerBackend::endSession()
{
    post([this] {
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

DeviceInfo ModemManagerBackend::info() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_info;
}

void ModemManagerBackend::post(std::function<void()> task)
{
    m_watch.thread().post([self = shared_from_this(), task = std::move(task)] { task(); });
}

/* ---- functions for the watch's thread ---------------------------------------------------- */

/// Handles a change to the watch's modem list. The current modem remains in use until it is lost,
/// even if the backend may use any modem.
void ModemManagerBackend::modemsChanged()
{
    if (!m_observer)
        return;
    GObjectPtr<MMObject> wanted = m_watch.findAt(m_device ? m_device->path() : std::string());
    if (m_device && !wanted)
        loseModem();
    if (!m_device && (wanted = m_watch.find(m_equipmentId)))
        adopt(std::move(wanted));
    if (m_device)
        m_device->refresh();
    publish();
}

void ModemManagerBackend::adopt(GObjectPtr<MMObject> object)
{
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

/// Stops using a modem that was unplugged, or whose ModemManager has ended. A restarted
/// ModemManager finds the modem again.
void ModemManagerBackend::loseModem()
{
    const std::shared_ptr<ModemDevice> gone = std::exchange(m_device, nullptr);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_lostModemCount;
    }
    const bool serviceEnded = m_watch.state() != ServiceState::Running;
    m_observer->deviceLost(serviceEnded ? TKSV_DEV_EVENT_RESET : TKSV_DEV_EVENT_GONE);
    gone->sms().failPending();
    publish();
}

void ModemManagerBackend::publish()
{
    if (!m_observer)
        return;
    const DeviceInfo now = currentInfo();
    DeviceInfo before;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        before = std::exchange(m_info, now);
        m_isInfoKnown = true;
    }
    notifyChanges(before, now);
}

/// Reports the changes to the observer. Requests in flight fail if the registration or the USSD
/// interface is lost, because their outcome can no longer arrive.
void ModemManagerBackend::notifyChanges(const DeviceInfo &before, const DeviceInfo &now)
{
    if (before == now)
        return;
    if (takesCommands(before) && !takesCommands(now) && m_device)
        m_device->failPending();
    if (before.canSendSms != now.canSendSms)
        m_observer->smsStatusChanged(now.canSendSms);
    m_observer->infoChanged();
}

DeviceInfo ModemManagerBackend::currentInfo() const
{
    if (m_device)
        return m_device->info();
    DeviceInfo info;
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.problem = problemWithoutModem();
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
        return m_watch.modems().empty() ? TKSV_PROBLEM_NONE : TKSV_PROBLEM_CHOSEN_ABSENT;
    }
}

} // namespace Tksv
