#ifndef DEVICECHOICE_H
#define DEVICECHOICE_H

#include <QString>

/** Which device the user wants. */
struct DeviceChoice {
    enum Kind {
        Automatic, // a modem when there is one, otherwise a simulated network
        Simulated,
        Modem
    };

    Kind kind = Automatic;
    QString name; // the scenario file, empty for the default; the modem's equipment identifier

    static DeviceChoice automatic() { return DeviceChoice(); }
    static DeviceChoice simulated(const QString &file);
    static DeviceChoice modem(const QString &equipmentId);

    /// As one word, and back: "automatic", "simulated:FILE", "modem:IDENTIFIER". Anything else is
    /// automatic.
    QString word() const;
    static DeviceChoice fromWord(const QString &word);

    bool operator==(const DeviceChoice &other) const
    {
        return kind == other.kind && name == other.name;
    }

    /// Makes it the device. Returns what is wrong with the scenario file and where, and then
    /// nothing has changed; empty when it is in use.
    QString use() const;
};

#endif
