#ifndef DEVICESTATUS_H
#define DEVICESTATUS_H

#include <QString>

/** What the dashboard shows of the device, and the words for it in the user's language. */
struct DeviceStatus {
    bool isSimulated = true;
    int state = 0;          // a TKSV_DeviceState
    int problem = 0;        // a TKSV_DeviceProblem
    int pinRetries = -1;    // PINs that can still be tried; -1 when unknown
    int signalPercent = -1; // 0 to 100; -1 when unknown
    QString operatorName;   // empty when unknown
    QString imsi;           // likewise
    QString homeNetwork;    // MCC and MNC of the SIM's operator, 5 or 6 digits; likewise
    QString simOperator;    // what the SIM calls its operator; likewise
    QString source;         // the scenario file, or the modem's maker and model

    bool operator==(const DeviceStatus &other) const;
    bool operator!=(const DeviceStatus &other) const { return !(*this == other); }

    bool isRegistered() const;
    /// Whether the SIM waits for a PIN that can be tried.
    bool waitsForPin() const;
    /// Whether the device may get ready without anybody doing anything.
    bool mayBecomeReady() const;
    QString operatorText() const;
    QString signalText() const;
    /// The IMSI, or what is missing.
    QString simText() const;
    /// Why no command can be sent; empty when one can.
    QString troubleText() const;
    /// What is wrong and what to do about it; empty when nothing need be done.
    QString adviceText() const;
    /// How many PINs can still be tried, with a warning before the last; empty when unknown.
    QString triesText() const;
    QString sourceText() const;
};

/// Asks the device SDK; returns at once. Any thread.
DeviceStatus readDeviceStatus();

#endif
