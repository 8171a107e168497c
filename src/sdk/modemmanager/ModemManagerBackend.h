#ifndef TKSV_INTERNAL_MODEMMANAGERBACKEND_H
#define TKSV_INTERNAL_MODEMMANAGERBACKEND_H

#include <memory>
#include <mutex>
#include <string>

#include "../base/Backend.h"
#include "ModemDevice.h"
#include "ModemWatch.h"

namespace tksv
{

/**
 * One of ModemManager's modems as the device. The calls of Backend leave a task for the thread of
 * the watch and decide by the last picture that it has left of the modem; that thread is the
 * backend's own.
 */
class ModemManagerBackend : public Backend, public std::enable_shared_from_this<ModemManagerBackend>
{
public:
    /// Takes the modem of that identifier, for an empty one whichever comes first. The watch
    /// outlives the backend.
    ModemManagerBackend(ModemWatch &watch, std::string equipmentId);

    void start(BackendObserver &observer) override;
    void stop() override;
    int request(RequestToken token, RequestKind kind, const std::string &text) override;
    void endSession() override;
    bool sendSms(const SmsMessage &message) override;
    bool sendPin(const std::string &pin) override;
    DeviceInfo info() const override;

    /// On the thread, whenever the watch has told of a change.
    void modemsChanged();

private:
    void post(std::function<void()> task);
    void drop();
    void take(GObjectPtr<MMObject> object);
    void publish();
    DeviceInfo picture() const;
    TKSV_DeviceProblem problemWithoutModem() const;
    void compare(const DeviceInfo &before, const DeviceInfo &now);

    ModemWatch &m_watch;
    const std::string m_equipmentId;

    // The thread's own.
    BackendObserver *m_observer = nullptr; // null before start() and after stop()
    std::shared_ptr<ModemDevice> m_device;

    // The thread, which alone writes the first three, reads them without the mutex.
    mutable std::mutex m_mutex; // guards what follows
    DeviceInfo m_info;
    bool m_hasLooked = false;  // m_info is what the thread has found
    unsigned m_lostModems = 0; // what was meant for one that has gone is not for the next
    bool m_stopped = false;
};

/// Whether a text may reach a modem: the daemon can put it between quotes into an AT command.
bool isSaneForModem(const std::string &text);

} // namespace tksv

#endif
