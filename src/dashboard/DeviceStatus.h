#ifndef DEVICESTATUS_H
#define DEVICESTATUS_H

#include <QString>

/** What the dashboard shows of the device, and the words for it in the user's language. */
struct DeviceStatus {
    bool isSimulated = true;
    int state = 0;          // a TKSV_DeviceState
    int signalPercent = -1; // 0 to 100; -1 when unknown
    QString operatorName;   // empty when unknown
    QString imsi;           // likewise
    QString source;         // the scenario file, or the modem's maker and model

    bool operator==(const DeviceStatus &other) const;
    bool operator!=(const DeviceStatus &other) const { return !(*this == other); }

    bool isRegistered() const;
    QString operatorText() const;
    QString signalText() const;
    /// The IMSI, or what is missing.
    QString simText() const;
    /// Why no command can be sent; empty when one can.
    QString troubleText() const;
    QString sourceText() const;
};

/// Asks the device SDK; returns at once. Any thread.
DeviceStatus readDeviceStatus();

#endif
