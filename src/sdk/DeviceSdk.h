#ifndef TKSV_INTERNAL_DEVICESDK_H
#define TKSV_INTERNAL_DEVICESDK_H

#include <memory>
#include <mutex>
#include <string>

#include "Backend.h"
#include "EventService.h"
#include "sim/Scenario.h"
#include "SmsRecords.h"
#include "UssdSession.h"

namespace tksv
{

/**
 * What stands behind the C functions: the three services, the session, and the backend in use.
 *
 * Threads: one for each service that has something to tell, started by the first event, and that of
 * the backend. They end when the program exits; the object itself stays, since other threads of
 * the client may be inside a call even then, and the library is never unmapped.
 *
 * Locks: m_switchMutex before UssdSession's before the backend's before the services'; m_mutex is
 * the last of all and held for one assignment.
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
    /// Empty on success, else the complaints. An empty path takes the initial scenario.
    std::string useScenario(const std::string &path);

private:
    DeviceSdk();
    ~DeviceSdk() override = default;
    void stop();

    std::shared_ptr<Backend> backend();
    std::shared_ptr<Backend> currentBackend() const;
    void setBackend(const std::shared_ptr<Backend> &backend);
    void replaceBackend(Scenario scenario);
    std::string switchTo(const std::string &path);

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
    UssdSession m_session;
    SmsRecords m_smsRecords;

    std::mutex m_switchMutex;           // held while one backend takes the place of another
    mutable std::mutex m_mutex;         // guards m_backend
    std::shared_ptr<Backend> m_backend; // null until somebody needs it
};

} // namespace tksv

#endif
