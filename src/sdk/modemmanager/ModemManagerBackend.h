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
 * The backend for modems that ModemManager controls. It runs on the thread of ModemWatch. The
 * functions of the Backend interface post tasks to this thread and derive their return values from
 * the DeviceInfo that was published last.
 */
class ModemManagerBackend : public Backend, public std::enable_shared_from_this<ModemManagerBackend>
{
public:
    /// Creates a backend for the modem with this identifier. An empty identifier selects the first
    /// registered modem, or the first modem if none is registered. `watch` must outlive the
    /// backend.
    ModemManagerBackend(ModemWatch &watch, std::string equipmentId);

    void start(BackendObserver &observer) override;
    void stop() override;
    RequestResult request(RequestToken token, RequestKind kind, const std::string &text) override;
    void endSession() override;
    bool endForeignSession() override;
    bool sendSms(const SmsMessage &message) override;
    bool sendPin(const std::string &pin) override;
    bool enable() override;
    bool setModes(const TKSV_Modes &modes) override;
    DeviceInfo info() const override;

    /// Updates the backend. Must be called from the thread of ModemWatch after every change that
    /// ModemWatch reports.
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

    // The following members are used only on the thread of ModemWatch.
    BackendObserver *m_observer = nullptr; // null before start() and after stop()
    std::shared_ptr<ModemDevice> m_device;
    bool m_wasRegistered = false;     // true if the modem in use has been registered at least once
    bool m_isModemRemoved = false;    // true if the modem was removed and not replaced by another
    std::optional<Request> m_waiting; // held back until ModemManager has reported its modems

    // m_info, m_isInfoKnown and m_lostModemCount are written only by the thread of ModemWatch. This
    // thread can therefore read them without locking the mutex.
    mutable std::mutex m_mutex; // guards all members below
    DeviceInfo m_info;
    bool m_isInfoKnown = false;    // true if m_info has been published at least once
    unsigned m_lostModemCount = 0; // a task posted with a lower count is for an earlier modem
    bool m_stopped = false;
};

/// Returns true if ModemManager can safely insert the string into a quoted argument of an AT
/// command.
bool isSafeForModem(const std::string &text);

} // namespace Tksv

#endif
