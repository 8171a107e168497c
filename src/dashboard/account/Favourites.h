#ifndef FAVOURITES_H
#define FAVOURITES_H

#include <QMap>
#include <QStringList>

#include "AccountCodes.h"

namespace Dashboard
{

/**
 * The favourite codes of each home network, in a file that only its user can read. They are only
 * the codes that the user has selected; names and icons are those of the current codes.
 */
class Favourites
{
public:
    static const int MOST = 6;

    /// An empty name keeps the favourites in memory.
    explicit Favourites(const QString &file) : m_file(file) {}
    /// Returns the file of the user who runs the program.
    static QString userFile();

    /// Sets the home network, by its MCC and MNC.
    void setNetwork(const QString &network) { m_network = network; }
    /// Returns the favourites among these codes. If the user has never selected favourites, returns
    /// the codes that most subscribers need.
    QList<NamedCode> among(const AccountCodes &codes) const;
    /// Selects the favourites, in their order. Returns false if they cannot be stored.
    bool select(const QStringList &codes);
    /// Forgets the favourites of all networks and removes the file.
    void removeAll();

private:
    QString key() const;

    const QString m_file;
    QString m_network;
    QMap<QString, QStringList> m_selected; // by network, if there is no file
};

} // namespace Dashboard

#endif
