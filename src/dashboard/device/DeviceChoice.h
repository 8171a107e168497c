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

    /// The following two functions convert the choice to a string and back: "automatic",
    /// "simulated:FILE" or "modem:IDENTIFIER". Any other string is converted to the automatic
    /// choice.
    QString word() const;
    static DeviceChoice fromWord(const QString &word);

    bool operator==(const DeviceChoice &other) const
    {
        return kind == other.kind && name == other.name;
    }

    /// Selects the chosen device. Returns an empty string on success. On failure, has no effect and
    /// returns the error in the scenario file with its line number.
    QString use() const;
};

} // namespace Dashboard

#endif
