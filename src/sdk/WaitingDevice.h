#ifndef TKSV_INTERNAL_WAITINGDEVICE_H
#define TKSV_INTERNAL_WAITINGDEVICE_H

#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "base/Backend.h"

namespace Tksv
{

/**
 * A placeholder for the device. It is used for the few milliseconds until BackendChoice has found
 * out whether a modem is present. The placeholder keeps a request for the device that replaces it.
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

    /// Passes the kept request and all later calls to the device. If the device rejects the kept
    /// request, the request ends as if it had failed on the device.
    void handOver(const std::shared_ptr<Backend> &device);

private:
    struct Request {
        RequestToken token;
        RequestKind kind;
        std::string text;
    };

    BackendObserver *m_observer = nullptr;
    mutable std::mutex m_mutex; // guards all members below
    std::optional<Request> m_request;
    std::shared_ptr<Backend> m_device;
};

} // namespace Tksv

#endif
