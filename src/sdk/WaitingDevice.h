#ifndef TKSV_INTERNAL_WAITINGDEVICE_H
#define TKSV_INTERNAL_WAITINGDEVICE_H

#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "base/Backend.h"

namespace tksv
{

/**
 * Stands for the device for the few milliseconds in which it is not known yet which one there is: a
 * request is kept for it.
 */
class WaitingDevice : public Backend
{
public:
    void start(BackendObserver &observer) override;
    void stop() override;
    int request(RequestToken token, RequestKind kind, const std::string &text) override;
    void endSession() override;
    bool sendSms(const SmsMessage &message) override;
    bool sendPin(const std::string &pin) override;
    DeviceInfo info() const override;

    /// Gives the device the request that was kept; later calls go on to it as well. A request that
    /// it refuses ends as one that failed on the device.
    void handOver(const std::shared_ptr<Backend> &device);

private:
    struct Request {
        RequestToken token;
        RequestKind kind;
        std::string text;
    };

    BackendObserver *m_observer = nullptr;
    mutable std::mutex m_mutex; // guards what follows
    std::optional<Request> m_request;
    std::shared_ptr<Backend> m_device;
};

} // namespace tksv

#endif
