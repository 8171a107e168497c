#ifndef DEVICESTATUS_H
#define DEVICESTATUS_H

#include <QString>

#include "tksv_device.h"

namespace Dashboard
{

/** The device status that the dashboard shows, and its description in the user's language. */
struct DeviceStatus {
    bool isSimulated = true;
    int state = 0;          // a TKSV_DeviceState
    int problem = 0;        // a TKSV_DeviceProblem
    int pinRetries = -1;    // remaining PIN attempts; -1 if unknown
    int signalPercent = -1; // 0 to 100; -1 if unknown
    QString operatorName;   // empty if unknown
    QString imsi;           // empty if unknown
    QString homeNetwork;    // MCC and MNC of the SIM's operator, 5 or 6 digits; empty if unknown
    QString simOperator;    // service provider name (SPN) stored on the SIM; empty if unknown
    QString source;         // the scenario file, or the modem's manufacturer and model
    bool isLooking = false; // true until ModemManager has reported its modems
    bool hasForeignSession = false; // true if another program has opened a USSD session
    bool waitsForTurn = false; // true if a request is waiting for another program of the same user
    bool isRoaming = false;    // true if the network is not the home network of the SIM
    QString equipmentId;       // identifier of the current modem; empty if there is none
    TKSV_ModesInfo modes = {}; // the network generations that the modem may use

    bool operator==(const DeviceStatus &other) const;
    bool operator!=(const DeviceStatus &other) const { return !(*this == other); }

    bool isRegistered() const;
    /// Returns true if the SIM requires a PIN and allows another attempt.
    bool waitsForPin() const;
    /// Returns true if the device may become ready without user intervention.
    bool mayBecomeReady() const;
    /// Returns true if searching for modems again may solve the problem.
    bool mayBeFound() const;
    QString operatorText() const;
    QString signalText() const;
    /// Returns the IMSI, or the reason why it is not available.
    QString simText() const;
    /// Returns the reason why commands cannot be sent, or an empty string if they can be sent.
    QString troubleText() const;
    /// Returns a message with the number of remaining PIN attempts, which includes a warning before
    /// the last attempt. Returns an empty string if the number is unknown.
    QString triesText() const;
    QString sourceText() const;
};

/// Reads the status from the device SDK without waiting for the device. May be called from any
/// thread.
DeviceStatus readDeviceStatus();

} // namespace Dashboard

#endif
