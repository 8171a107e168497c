#ifndef MODEM_H
#define MODEM_H

#include <QList>
#include <QString>

/** A modem that can be chosen. */
struct Modem {
    QString equipmentId;
    QString name; // maker and model; may be that of another one too
    bool isInUse = false;

    bool operator==(const Modem &other) const;
};

/// Asks the device SDK, the one that has been there longest first; returns at once. Any thread.
QList<Modem> readModems();

/// How a modem is called among the others: by its name, with the last digits of its identifier when
/// another one has the same.
QString modemTitle(const Modem &modem, const QList<Modem> &all);

#endif
