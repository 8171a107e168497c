#include "DeviceSdk.h"

#include <cstdlib>
#include <utility>

#include "base/Records.h"

namespace Tksv
{

namespace
{

/// The maximum time to wait for a running call-back at program exit.
const std::chrono::milliseconds EXIT_LIMIT(1000);

/// The key of the listener in a service with a single listener.
const std::uintptr_t ONLY_KEY = 1;

std::uintptr_t keyOf(TKSV_EventCallback callback)
{
    return reinterpret_cast<std::uintptr_t>(callback);
}

EventService::Handler handlerOf(TKSV_EventCallback callback)
{
    return [callback](int number, void *data) { return callback(number, data) != 0; };
}

Event statusEvent(bool canSend)
{
    Event event;
    event.number = TKSV_SMS_EVENT_STATUS_CHANGED;
    event.data = encodeSmsStatus(canSend);
    return event;
}

} // namespace

/// Returns the object. The first call creates it and registers an exit handler that stops it. Exit
/// handlers and destructors of static objects run in reverse order of registration. The call-backs
/// therefore end before static objects that the client created earlier are destroyed.
DeviceSdk &DeviceSdk::instance()
{
    static DeviceSdk *const sdk = [] {
        auto *made = new DeviceSdk;
        std::atexit([] { instance().stop(); });
        return made;
    }();
    return *sdk;
}

DeviceSdk::DeviceSdk()
    : m_ussdEvents("tksv-ussd"), m_deviceEvents("tksv-device"), m_smsEvents("tksv-sms"),
      m_infoEvents("tksv-info"), m_textEvents("tksv-text"),
      m_session([this](Event event) { m_ussdEvents.post(std::move(event)); },
                [this] { m_textEvents.post(Event()); }, [this] { infoChanged(); }),
      m_choice(*this)
{
}

void DeviceSdk::stop()
{
    m_choice.stop();
    for (EventService *service :
         {&m_ussdEvents, &m_deviceEvents, &m_smsEvents, &m_infoEvents, &m_textEvents})
        service->stop(EXIT_LIMIT);
}

/* ---- calls from the client --------------------------------------------------------------- */

int DeviceSdk::request(const std::string &text)
{
    return m_session.request(*m_choice.backend(), text);
}

void DeviceSdk::release()
{
    if (const std::shared_ptr<Backend> current = m_choice.current())
        m_session.release(*current);
}

bool DeviceSdk::cancel()
{
    const std::shared_ptr<Backend> current = m_choice.current();
    return current && m_session.cancel(*current);
}

bool DeviceSdk::endForeignSession()
{
    return m_choice.backend()->endForeignSession();
}

void DeviceSdk::addUssdCallback(TKSV_EventCallback callback)
{
    m_ussdEvents.add(keyOf(callback), handlerOf(callback));
    m_choice.backend();
}

/// Removes the call-back. Returns false if the call-back was not registered. Ends the session if
/// this was the last call-back, because nothing would receive the network's replies.
bool DeviceSdk::removeUssdCallback(TKSV_EventCallback callback)
{
    const bool found = m_ussdEvents.remove(keyOf(callback));
    if (found && m_ussdEvents.isEmpty())
        release();
    return found;
}

void DeviceSdk::addDeviceCallback(TKSV_EventCallback callback)
{
    m_deviceEvents.add(keyOf(callback), handlerOf(callback));
    m_choice.backend();
}

bool DeviceSdk::removeDeviceCallback(TKSV_EventCallback callback)
{
    return m_deviceEvents.remove(keyOf(callback));
}

/// Adds the call-back. If short messages can be sent, posts this status for this call-back only. If
/// the status changes before delivery, the event is dropped, because the change raises its own
/// event.
void DeviceSdk::addSmsCallback(TKSV_EventCallback callback)
{
    m_smsEvents.add(keyOf(callback), handlerOf(callback));
    if (!info().canSendSms)
        return; // the next status change raises an event
    Event event = statusEvent(true);
    event.onlyKey = keyOf(callback);
    event.beforeDelivery = [this] { return info().canSendSms; };
    m_smsEvents.post(std::move(event));
}

bool DeviceSdk::removeSmsCallback(TKSV_EventCallback callback)
{
    return m_smsEvents.remove(keyOf(callback));
}

bool DeviceSdk::sendSms(const SmsMessage &message)
{
    return m_choice.backend()->sendSms(message);
}

DeviceInfo DeviceSdk::info()
{
    return m_choice.backend()->info();
}

void DeviceSdk::setInfoCallback(TKSV_DeviceInfoCallback callback, void *context)
{
    EventService::Handler handler;
    if (callback)
        handler = [callback, context](int, void *) {
            callback(context);
            return true;
        };
    m_infoEvents.replaceAll(ONLY_KEY, std::move(handler));
}

/// Sets the call-back and posts an event that delivers the stored messages to it.
void DeviceSdk::setTextCallback(TKSV_NetworkTextCallback callback, void *context)
{
    EventService::Handler handler;
    if (callback)
        handler = [this, callback, context](int, void *) {
            deliverUntakenTexts(callback, context);
            return true;
        };
    m_textEvents.replaceAll(ONLY_KEY, std::move(handler));
    m_textEvents.post(Event());
}

void DeviceSdk::deliverUntakenTexts(TKSV_NetworkTextCallback callback, void *context)
{
    for (const UntakenText &text : m_session.takeUntakenTexts()) {
        TKSV_NetworkText record = {};
        record.receivedAt = std::chrono::system_clock::to_time_t(text.receivedAt);
        record.waitsForAnswer = text.reply.type == UssdWaitsForAnswer ? 1 : 0;
        record.text = text.reply.text.c_str();
        callback(context, &record);
    }
}

bool DeviceSdk::sendPin(const std::string &pin)
{
    return m_choice.backend()->sendPin(pin);
}

bool DeviceSdk::enable()
{
    return m_choice.backend()->enable();
}

bool DeviceSdk::setModes(const TKSV_Modes &modes)
{
    return m_choice.backend()->setModes(modes);
}

/* ---- events from the backend, called from the backend's thread --------------------------- */

void DeviceSdk::ussdReply(RequestToken token, const UssdReply &reply)
{
    m_session.handleReply(token, reply);
}

void DeviceSdk::ussdText(const UssdReply &text)
{
    m_session.handleText(text);
}

void DeviceSdk::deviceLost(int event)
{
    m_session.deviceLost();
    Event lost;
    lost.number = event;
    m_deviceEvents.post(std::move(lost));
}

void DeviceSdk::smsStatusChanged(bool canSend)
{
    m_smsEvents.post(statusEvent(canSend));
}

void DeviceSdk::smsFinished(const SmsMessage &message, int result)
{
    Event event;
    event.number = TKSV_SMS_EVENT_SEND_RESULT;
    event.data = encodeSmsResult(message, result);
    m_smsEvents.post(std::move(event));
}

void DeviceSdk::infoChanged()
{
    if (!m_infoEvents.isEmpty())
        m_infoEvents.post(Event());
}

} // namespace Tksv
