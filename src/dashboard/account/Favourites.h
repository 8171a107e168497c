#ifndef FAVOURITES_H
#define FAVOURITES_H

#include <QMap>
#include <QStringList>

#include "AccountCodes.h"

namespace Dashboard
{

/**
 * Stores the favourite codes for each home network in a file that only the user can read. The file
 * contains only the codes; their names and icons are taken from the current profiles.
 */
class Favourites
{
public:
    static const int MOST = 6;

    /// If `file` is empty, the favourites are kept in memory.
    explicit Favourites(const QString &file) : m_file(file) {}
    /// Returns the file of the user who runs the program.
    static QString userFile();

    /// Sets the home network (MCC and MNC) whose favourites are used.
    void setNetwork(const QString &network) { m_network = network; }
    /// Returns those of the codes that are favourites. If the user has never selected any
    /// favourites, returns a default selection.
    QList<NamedCode> among(const AccountCodes &codes) const;
    /// Sets the favourites and their order. Returns false if they cannot be stored.
    bool select(const QStringList &codes);
    /// Forgets the favourites of all networks and removes the file.
    void removeAll();

private:
    QString key() const;

    const QString m_file;
    QString m_network;
    QMap<QString, QStringList> m_selected; // keyed by network; used if there is no file
};

} // namespace Dashboard

#endif
