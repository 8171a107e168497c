#ifndef TKSV_INTERNAL_MODEMMANAGERBACKEND_H
#define TKSV_INTERNAL_MODEMMANAGERBACKEND_H

#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "../base/Backend.h"
#include "ModemDevice.h"
#include "ModemWatch.h"

namespace Tksv
{

/**
 * The backend for a modem that ModemManager controls. The backend runs on the watch's thread, and
 * the functions of the Backend interface post tasks to this thread. The return values of these
 * functions are based on the DeviceInfo that the thread published last.
 */
class ModemManagerBackend : public Backend, public std::enable_shared_from_this<ModemManagerBackend>
{
public:
    /// Uses the modem with the given identifier. If the identifier is empty, uses the first modem
    /// that is registered, or the first modem as long as no modem is registered. The watch must
    /// outlive the backend.
    ModemManagerBackend(ModemWatch &watch, std::string equipmentId);

    void start(BackendObserver &observer) override;
    void stop() override;
    RequestResult request(RequestToken token, RequestKind kind, const std::string &text) override;
    void endSession() override;
    bool endForeignSession() override;
    bool sendSms(const SmsMessage &message) override;
    bool sendPin(const std::string &pin) override;
    bool enable() override;
    DeviceInfo info() const override;

    /// Handles a change that the watch has reported. Must be called from the watch's thread after
    /// each such change.
    void modemsChanged();

private:
    struct Request {
        RequestToken token;
        RequestKind kind;
        std::string text;
    };

    void post(std::function<void()> task);
    void perform(const Request &request, unsigned lostModemCount);
    bool prefersAnotherModem() const;
    void leaveModem();
    void loseModem();
    void adopt(GObjectPtr<MMObject> object);
    void publish();
    DeviceInfo currentInfo() const;
    TKSV_DeviceProblem problemWithoutModem() const;
    void notifyChanges(const DeviceInfo &before, const DeviceInfo &now);

    ModemWatch &m_watch;
    const std::string m_equipmentId;

    // The following members are used only on the watch's thread.
    BackendObserver *m_observer = nullptr; // null before start() and after stop()
    std::shared_ptr<ModemDevice> m_device;
    bool m_wasRegistered = false;     // the modem in use has been registered at least once
    bool m_isModemRemoved = false;    // the modem in use was removed and has not been replaced yet
    std::optional<Request> m_waiting; // waits until ModemManager has reported its modems

    // Only the watch's thread writes m_info, m_isInfoKnown and m_lostModemCount. This thread
    // therefore reads them without locking the mutex.
    mutable std::mutex m_mutex; // guards all members below
    DeviceInfo m_info;
    bool m_isInfoKnown = false;    // true once the thread has published m_info
    unsigned m_lostModemCount = 0; // tasks posted with a lower count are for an earlier modem
    bool m_stopped = false;
};

/// Returns true if ModemManager can safely insert the string between the quotes of an AT command.
bool isSafeForModem(const std::string &text);

} // namespace Tksv

#endif
