#ifndef DEVICESTATUS_H
#define DEVICESTATUS_H

#include <QString>

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
    bool isLooking = false; // ModemManager has not reported its modems yet
    bool hasForeignSession = false; // another program has opened a USSD session
    bool waitsForTurn = false;      // a request waits for another program of the same user

    bool operator==(const DeviceStatus &other) const;
    bool operator!=(const DeviceStatus &other) const { return !(*this == other); }

    bool isRegistered() const;
    /// Returns true if the SIM waits for a PIN and allows another attempt.
    bool waitsForPin() const;
    /// Returns true if the device may become ready without the user's help.
    bool mayBecomeReady() const;
    /// Returns true if looking for modems again may help.
    bool mayBeFound() const;
    QString operatorText() const;
    QString signalText() const;
    /// Returns the IMSI, or the reason why it is not available.
    QString simText() const;
    /// Returns the reason why no commands can be sent, or an empty string if commands can be sent.
    QString troubleText() const;
    /// Returns a description of the problem and of the action that the user can take. Returns an
    /// empty string if the user cannot do anything.
    QString adviceText() const;
    /// Returns a message with the number of remaining PIN attempts, and a warning before the last
    /// attempt. Returns an empty string if the number is unknown.
    QString triesText() const;
    QString sourceText() const;
};

/// Reads the status from the device SDK without waiting for the device. May be called from any
/// thread.
DeviceStatus readDeviceStatus();

} // namespace Dashboard

#endif
