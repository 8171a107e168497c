#include "WaitingDevice.h"

#include <utility>

namespace Tksv
{

void WaitingDevice::start(BackendObserver &observer)
{
    m_observer = &observer;
}

void WaitingDevice::stop()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_request.reset();
}

RequestResult WaitingDevice::request(RequestToken token, RequestKind kind, const std::string &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_device)
        return m_device->request(token, kind, text);
    m_request = Request{token, kind, text};
    return {};
}

void WaitingDevice::endSession()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_device)
        m_device->endSession();
    m_request.reset();
}

bool WaitingDevice::sendSms(const SmsMessage &message)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_device && m_device->sendSms(message);
}

bool WaitingDevice::sendPin(const std::string &pin)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_device && m_device->sendPin(pin);
}

DeviceInfo WaitingDevice::info() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_device)
        return m_device->info();
    DeviceInfo info;
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.state = TKSV_DEVICE_SEARCHING;
    return info;
}

void WaitingDevice::handOver(const std::shared_ptr<Backend> &device)
{
    std::optional<Request> kept;
    RequestResult result;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_device = device;
        kept = std::exchange(m_request, std::nullopt);
        if (kept)
            result = device->request(kept->token, kept->kind, kept->text);
    }
    if (result.status != RequestAccepted)
        m_observer->ussdReply(kept->token, failedReply(Failure{result.refusal, true}));
}

} // namespace Tksv
