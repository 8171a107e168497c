#ifndef RECORDINGBACKEND_H
#define RECORDINGBACKEND_H

#include <string>
#include <vector>

#include "base/Backend.h"

namespace Tksv
{

/** A backend that records the requests that it accepts. Set `status` to make it reject them. */
class RecordingBackend : public Backend
{
public:
    void start(BackendObserver &) override {}
    void stop() override {}
    RequestResult request(RequestToken token, RequestKind kind, const std::string &text) override
    {
        if (status == RequestAccepted)
            requests.push_back({token, kind, text});
        return {status, refusal};
    }
    void endSession() override { ++ended; }
    bool endForeignSession() override { return false; }
    bool sendSms(const SmsMessage &) override { return false; }
    bool sendPin(const std::string &) override { return false; }
    bool enable() override { return false; }
    bool setModes(const TKSV_Modes &) override { return false; }
    DeviceInfo info() const override { return DeviceInfo(); }

    struct Seen {
        RequestToken token;
        RequestKind kind;
        std::string text;
    };
    std::vector<Seen> requests;
    int ended = 0;
    int status = RequestAccepted;
    TKSV_Failure refusal = TKSV_FAILURE_NONE;
};

} // namespace Tksv

#endif
