#ifndef TKSV_INTERNAL_MODEMDEVICE_H
#define TKSV_INTERNAL_MODEMDEVICE_H

#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <memory>
#include <string>

#include "../base/Backend.h"
#include "GLibPointers.h"
#include "MainLoopThread.h"
#include "SignalConnections.h"
#include "SmsSender.h"
#include "UssdChannel.h"

namespace Tksv
{

/**
 * The modem in use and its current properties. The modem is enabled only on request or after a PIN
 * has unlocked the SIM. All functions must be called from the thread of the main loop.
 */
class ModemDevice : public std::enable_shared_from_this<ModemDevice>
{
public:
    struct Listener {
        std::function<void()> changed; // called when a field of info() has changed
        std::function<void(RequestToken, const UssdReply &)> replied;
        std::function<void(const UssdReply &)> textReceived;
        std::function<void(const SmsMessage &, int result)> smsFinished;
    };

    ModemDevice(MainLoopThread &thread, GObjectPtr<MMObject> object, Listener listener);

    /// Fetches the modem's interfaces. Must be called after construction and after every change to
    /// the interfaces.
    void refresh();
    DeviceInfo info() const;
    std::string path() const { return textOf(mm_object_get_path(m_object.get())); }

    UssdChannel &ussd() { return *m_ussd; }
    SmsSender &sms() { return *m_sms; }
    /// Sends the PIN as soon as the SIM has been fetched.
    void sendPin(const std::string &pin);
    /// Enables the modem. If this fails, info() contains the problem.
    void enable();
    /// Changes the network generations that the modem may use.
    void setModes(const TKSV_Modes &modes);
    /// Reports the request in flight and all messages that are being sent as failed. `reason`
    /// applies to the request.
    void failPending(TKSV_Failure reason);

private:
    template <typename T>
    T *peek(const char *name, T *(*peekInterface)(MMObject *)) const;
    void modemChanged();
    void fetchSimSoon();
    void fetchSim();
    void sendPendingPin();
    void setProblem(TKSV_DeviceProblem problem);
    void clearNotPermitted();
    TKSV_DeviceState state() const;
    TKSV_DeviceProblem problem() const;
    bool isLocked() const;
    bool isRegistrationDenied() const;
    bool isRoaming() const;
    bool isOnlyOn4G() const;
    UssdChannel::Listener ussdListener();
    SmsSender::Listener smsListener();

    MainLoopThread &m_thread;
    const Listener m_listener;
    const GObjectPtr<MMObject> m_object;
    const std::shared_ptr<UssdChannel> m_ussd;
    const std::shared_ptr<SmsSender> m_sms;
    GObjectPtr<MMModem> m_modem;
    GObjectPtr<MMModem3gpp> m_3gpp;
    GObjectPtr<MMSim> m_sim;
    std::string m_simPath; // D-Bus path of the SIM that was requested last
    bool m_isSimFetchPlanned = false;
    std::string m_pendingPin; // the PIN to send once the SIM has been fetched; may be empty
    SignalConnections m_modemSignals;
    SignalConnections m_simSignals;
    bool m_enableWanted = false; // true if the modem must be enabled as soon as possible
    MMModemState m_lastState = MM_MODEM_STATE_UNKNOWN; // most recent state that was at least LOCKED
    bool m_hasModeChangeFailed = false; // true if the most recent call to setModes() has failed
    TKSV_DeviceProblem m_problem = TKSV_PROBLEM_NONE; // problem of the most recent call
};

} // namespace Tksv

#endif
