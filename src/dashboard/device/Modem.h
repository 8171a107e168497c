#ifndef MODEM_H
#define MODEM_H

#include <QList>
#include <QString>

namespace Dashboard
{

/** A modem that can be chosen. */
struct Modem {
    QString equipmentId;
    QString name; // manufacturer and model; not unique
    bool isInUse = false;

    bool operator==(const Modem &other) const;
};

/// Returns the modems known to the device SDK, the one present longest first. Does not wait. May be
/// called on any thread.
QList<Modem> readModems();

/// Returns the modem's name, followed by the last digits of its identifier when another modem in
/// `all` has the same name.
QString modemTitle(const Modem &modem, const QList<Modem> &all);

} // namespace Dashboard

#endif
