#ifndef DEVICECHOICE_H
#define DEVICECHOICE_H

#include <QString>

namespace Dashboard
{

/** The user's choice of a device. */
struct DeviceChoice {
    enum Kind {
        Automatic, // the device that TKSV_Device_UseAutomatic() selects
        Simulated, // a demonstration
        Modem
    };

    Kind kind = Automatic;
    QString name; // the scenario file (empty for the default) or the modem's equipment identifier

    static DeviceChoice automatic() { return DeviceChoice(); }
    static DeviceChoice simulated(const QString &file);
    static DeviceChoice modem(const QString &equipmentId);

    /// Returns the choice as "automatic", "simulated:FILE" or "modem:IDENTIFIER". fromWord()
    /// converts such a string back, and any other string to the automatic choice.
    QString word() const;
    static DeviceChoice fromWord(const QString &word);

    bool operator==(const DeviceChoice &other) const
    {
        return kind == other.kind && name == other.name;
    }

    /// Makes the device SDK use the selected device and returns an empty string. If the scenario
    /// file is invalid, keeps the current device and returns the error with its line number.
    QString use() const;
};

} // namespace Dashboard

#endif
