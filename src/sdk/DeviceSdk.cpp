#include "DeviceSdk.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "Records.h"
#include "ScenarioPlace.h"
#include "sim/ScenarioReader.h"
#include "sim/SimulatedNetwork.h"

namespace tksv
{

namespace
{

/// How long the program's exit waits for a call-back that is still running.
const std::chrono::milliseconds ExitLimit(1000);

/// The number of USSD events; their kind is the record's type.
const int UssdEvent = 0;

std::uintptr_t keyOf(TKSV_EventCallback callback)
{
    return reinterpret_cast<std::uintptr_t>(callback);
}

EventService::Handler handlerOf(TKSV_EventCallback callback)
{
    return [callback](int number, void *data) { return callback(number, data) != 0; };
}

/// A device that is not there, in place of a scenario that cannot be used.
Scenario absentDevice(const std::string &source)
{
    Scenario scenario;
    scenario.source = source;
    scenario.state = TKSV_DEVICE_ABSENT;
    return scenario;
}

/// The scenario that the program starts with; what is wrong with it goes to stderr, since nobody
/// has asked for it in a call that could tell.
Scenario initialScenario()
{
    const std::string path = initialScenarioPath();
    ScenarioResult result = readScenarioFile(path);
    if (result.scenario)
        return *std::move(result.scenario);
    std::fprintf(stderr, "%s\n", describe(result.complaints).c_str());
    return absentDevice(path);
}

Event statusEvent(bool canSend)
{
    Event event;
    event.number = TKSV_SMS_EVENT_STATUS_CHANGED;
    event.data = encodeSmsStatus(canSend);
    return event;
}

} // namespace

/// The first call makes it, so that it stops before the static objects that the client had made
/// by then are destroyed: a call-back never finds them gone.
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
      m_infoEvents("tksv-info"), m_session(m_ussdEvents)
{
}

void DeviceSdk::stop()
{
    if (const std::shared_ptr<Backend> current = currentBackend())
        current->stop();
    for (EventService *service : {&m_ussdEvents, &m_deviceEvents, &m_smsEvents, &m_infoEvents})
        service->stop(ExitLimit);
}

/* ---- calls of the client ----------------------------------------------------------------- */

int DeviceSdk::request(const std::string &text)
{
    return m_session.request(*backend(), text);
}

void DeviceSdk::release()
{
    if (const std::shared_ptr<Backend> current = currentBackend())
        m_session.release(*current);
}

void DeviceSdk::addUssdCallback(TKSV_EventCallback callback)
{
    m_ussdEvents.add(keyOf(callback), handlerOf(callback));
    backend();
}

/// Without anybody to read a reply, the session would only be left open in the network.
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
    backend();
}

bool DeviceSdk::removeDeviceCallback(TKSV_EventCallback callback)
{
    return m_deviceEvents.remove(keyOf(callback));
}

/// The status goes to this call-back alone, and only if it still holds when its turn comes: a
/// change in between is told by an event of its own.
void DeviceSdk::addSmsCallback(TKSV_EventCallback callback)
{
    m_smsEvents.add(keyOf(callback), handlerOf(callback));
    Event event = statusEvent(true);
    event.onlyKey = keyOf(callback);
    event.begin = [this] { return info().canSendSms; };
    m_smsEvents.post(std::move(event));
}

bool DeviceSdk::removeSmsCallback(TKSV_EventCallback callback)
{
    return m_smsEvents.remove(keyOf(callback));
}

bool DeviceSdk::sendSms(const SmsMessage &message)
{
    return backend()->sendSms(message);
}

DeviceInfo DeviceSdk::info()
{
    return backend()->info();
}

void DeviceSdk::setInfoCallback(TKSV_DeviceInfoCallback callback, void *context)
{
    EventService::Handler handler;
    if (callback)
        handler = [callback, context](int, void *) {
            callback(context);
            return true;
        };
    const std::uintptr_t onlyKey = 1;
    m_infoEvents.replaceAll(onlyKey, std::move(handler));
}

std::string DeviceSdk::useScenario(const std::string &path)
{
    ScenarioResult result = readScenarioFile(path.empty() ? initialScenarioPath() : path);
    if (!result.scenario)
        return describe(result.complaints);
    replaceBackend(*std::move(result.scenario));
    return std::string();
}

/* ---- the backend in use ------------------------------------------------------------------ */

std::shared_ptr<Backend> DeviceSdk::currentBackend() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_backend;
}

void DeviceSdk::setBackend(const std::shared_ptr<Backend> &backend)
{
    backend->start(*this);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_backend = backend;
}

/// The backend, made on first need.
std::shared_ptr<Backend> DeviceSdk::backend()
{
    if (std::shared_ptr<Backend> current = currentBackend())
        return current;
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    if (!currentBackend())
        setBackend(std::make_shared<SimulatedNetwork>(initialScenario()));
    return currentBackend();
}

/// The old one is silent before the new one begins, and what it had in hand ends with it.
void DeviceSdk::replaceBackend(Scenario scenario)
{
    const std::lock_guard<std::mutex> lock(m_switchMutex);
    const std::shared_ptr<Backend> old = currentBackend();
    if (old) {
        const bool wasThere = old->info().state != TKSV_DEVICE_ABSENT;
        old->stop();
        if (wasThere)
            deviceLost(TKSV_DEV_EVENT_GONE);
    }
    const auto simulator = std::make_shared<SimulatedNetwork>(std::move(scenario));
    smsStatusChanged(simulator->info().canSendSms); // before it tells of a change of its own
    setBackend(simulator);
    infoChanged();
}

/* ---- news of the backend, on its thread -------------------------------------------------- */

void DeviceSdk::ussdReply(RequestToken token, const UssdReply &reply)
{
    m_session.replyCame(token, reply);
}

void DeviceSdk::ussdText(const UssdReply &text)
{
    m_session.textCame(text);
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

} // namespace tksv
