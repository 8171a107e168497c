#ifndef MODEM_H
#define MODEM_H

#include <QList>
#include <QString>

namespace Dashboard
{

/** A modem that the user can select. */
struct Modem {
    QString equipmentId;
    QString name; // manufacturer and model; not unique
    bool isInUse = false;
    int state = 0; // a TKSV_DeviceState

    bool operator==(const Modem &other) const;
};

/// Returns the modems that the device SDK reports, in the order in which they were found. Returns
/// immediately. May be called from any thread.
QList<Modem> readModems();

/// Returns the modem's name, or a text with its identifier if it has no name. Appends the last
/// digits of the modem's identifier if another modem in `all` has the same name.
QString modemTitle(const Modem &modem, const QList<Modem> &all);

} // namespace Dashboard

#endif
