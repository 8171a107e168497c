#ifndef TKSV_INTERNAL_DEVICESDK_H
#define TKSV_INTERNAL_DEVICESDK_H

#include <string>

#include "BackendChoice.h"
#include "base/Backend.h"
#include "EventService.h"
#include "SmsRecords.h"
#include "UssdSession.h"

namespace tksv
{

/**
 * What stands behind the C functions: the services, the session, and the backend in use.
 *
 * Threads: one for each service that has something to tell, started by the first event, and those
 * of the backends. They end when the program exits; the object itself stays, since other threads of
 * the client may be inside a call even then, and the library is never unmapped.
 *
 * Locks: UssdSession's before the backend's before the services'; see BackendChoice for its own.
 */
class DeviceSdk : private BackendObserver
{
public:
    static DeviceSdk &instance();

    int request(const std::string &text);
    void release();
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
    BackendChoice &choice() { return m_choice; }

private:
    DeviceSdk();
    ~DeviceSdk() override = default;
    void stop();

    void tellUntakenTexts(TKSV_NetworkTextCallback callback, void *context);

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

} // namespace tksv

#endif
