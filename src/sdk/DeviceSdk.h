#ifndef TKSV_INTERNAL_DEVICESDK_H
#define TKSV_INTERNAL_DEVICESDK_H

#include <string>

#include "BackendChoice.h"
#include "base/Backend.h"
#include "EventService.h"
#include "SmsRecords.h"
#include "UssdSession.h"

namespace Tksv
{

/**
 * Implements the C functions. The object owns the services, the session and the current backend.
 *
 * Threads: each service has a thread, which is started by the first event. Each backend has its own
 * thread. All threads end when the program exits. The object itself is never destroyed, because
 * threads of the client may still be using it. For the same reason, the library is never unloaded.
 *
 * Lock order: UssdSession, backend, services. The locks of BackendChoice are documented in that
 * class.
 */
class DeviceSdk : private BackendObserver
{
public:
    static DeviceSdk &instance();

    int request(const std::string &text);
    void release();
    bool cancel();
    bool endForeignSession();
    UssdSession &session() { return m_session; }
    void addUssdCallback(TKSV_EventCallback callback);
    bool removeUssdCallback(TKSV_EventCallback callback);

    void addDeviceCallback(TKSV_EventCallback callback);
    bool removeDeviceCallback(TKSV_EventCallback callback);

    void addSmsCallback(TKSV_EventCallback callback);
    bool removeSmsCallback(TKSV_EventCallback callback);
    SmsRecords &smsRecords() { return m_smsRecords; }
    bool sendSms(const SmsMessage &message);

    DeviceInfo info();
    void setInfoCallback(TKSV_DeviceInfoCallback callback, void *context);
    void setTextCallback(TKSV_NetworkTextCallback callback, void *context);
    bool sendPin(const std::string &pin);
    bool enable();
    bool setModes(const TKSV_Modes &modes);
    BackendChoice &choice() { return m_choice; }

private:
    DeviceSdk();
    ~DeviceSdk() override = default;
    void stop();

    void deliverUntakenTexts(TKSV_NetworkTextCallback callback, void *context);

    void ussdReply(RequestToken token, const UssdReply &reply) override;
    void ussdText(const UssdReply &text) override;
    void deviceLost(int event) override;
    void smsStatusChanged(bool canSend) override;
    void smsFinished(const SmsMessage &message, int result) override;
    void infoChanged() override;

    EventService m_ussdEvents;
    EventService m_deviceEvents;
    EventService m_smsEvents;
    EventService m_infoEvents;
    EventService m_textEvents;
    UssdSession m_session;
    SmsRecords m_smsRecords;

    BackendChoice m_choice;
};

} // namespace Tksv

#endif
