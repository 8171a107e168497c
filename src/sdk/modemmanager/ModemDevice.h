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

namespace tksv
{

/**
 * The modem in use: switched on once, and followed by its properties. The thread of the main loop
 * only.
 */
class ModemDevice : public std::enable_shared_from_this<ModemDevice>
{
public:
    struct Listener {
        std::function<void()> changed; // something of info()
        std::function<void(RequestToken, const UssdReply &)> replied;
        std::function<void(const UssdReply &)> networkSaid;
        std::function<void(const SmsMessage &, int result)> smsFinished;
    };

    ModemDevice(MainLoopThread &thread, GObjectPtr<MMObject> object, Listener listener);

    /// Looks at the modem's interfaces; once after making it, and whenever ModemManager tells of
    /// others.
    void refresh();
    DeviceInfo info() const;
    std::string path() const { return textOf(mm_object_get_path(m_object.get())); }

    UssdChannel &ussd() { return *m_ussd; }
    SmsSender &sms() { return *m_sms; }
    void sendPin(const std::string &pin);
    /// What the client had in hand fails.
    void giveUp();

private:
    template <typename T>
    T *peek(const char *name, T *(*peekInterface)(MMObject *)) const;
    void modemChanged();
    void enable();
    void fetchSim();
    void sendWaitingPin();
    void problemIs(TKSV_DeviceProblem problem);
    void wasPermitted();
    TKSV_DeviceState state() const;
    TKSV_DeviceProblem problem() const;
    bool isLocked() const;

    const Listener m_listener;
    const GObjectPtr<MMObject> m_object;
    const std::shared_ptr<UssdChannel> m_ussd;
    const std::shared_ptr<SmsSender> m_sms;
    GObjectPtr<MMModem> m_modem;
    GObjectPtr<MMModem3gpp> m_3gpp;
    GObjectPtr<MMSim> m_sim;
    std::string m_simPath;    // of the SIM that was asked for
    std::string m_waitingPin; // for the SIM's arrival; empty when none does
    SignalConnections m_modemSignals;
    SignalConnections m_simSignals;
    bool m_enableTried = false;
    MMModemState m_lastState = MM_MODEM_STATE_UNKNOWN; // that told how far the modem has got
    TKSV_DeviceProblem m_problem = TKSV_PROBLEM_NONE;  // what the last call has met
};

} // namespace tksv

#endif
