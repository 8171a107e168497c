#ifndef FAVOURITES_H
#define FAVOURITES_H

#include <QObject>

#include "AccountCodes.h"
#include "FavouriteFile.h"

namespace Dashboard
{

/**
 * The favourite codes and the chains of each home network. A chain is a code and the answers to the
 * menus that the code opens. Favourites and chains are stored in a file that only its owner can
 * read; see `docs/ussd.md`. The names of favourite codes in this file are only used by the `ussd`
 * program. The dashboard shows the names and icons of the current codes instead.
 */
class Favourites : public QObject
{
    Q_OBJECT
public:
    static const int MOST = 6;

    /// If `file` is empty, the favourites are only kept in memory.
    explicit Favourites(const QString &file, QObject *parent = nullptr);
    /// Returns the path of the favourites file of the user who runs the program.
    static QString userFile();

    /// Sets the home network whose favourites are used. `network` consists of its MCC and MNC.
    void setNetwork(const QString &network);
    /// Returns the stored favourites of the user that are among the given codes or the chains. If
    /// the user has never selected favourites, returns the codes that most subscribers need,
    /// followed by the chains. At most MOST favourites are returned.
    QList<NamedCode> among(const AccountCodes &codes) const;
    /// Replaces the favourites with the given ones, in the given order. Returns false if they
    /// cannot be stored.
    bool select(const QList<NamedCode> &favourites);

    /// Returns the chains of the home network.
    QList<NamedCode> chains() const;
    /// Returns the chain with this name, or a chain without steps if there is none.
    Chains::Chain chain(const QString &name) const;
    /// Returns true if neither a favourite code nor a chain has this name.
    bool isNameFree(const QString &name) const;
    /// Returns true if a stored chain has the same code and steps as `walk`. The names are not
    /// compared.
    bool isKept(const Chains::Chain &walk) const;
    /// Adds the chain. If the user has selected favourites and there are fewer than MOST, also
    /// makes the chain a favourite. Returns false if the chain is incomplete, its name is in use,
    /// or it cannot be stored.
    bool keep(const Chains::Chain &chain);
    /// Renames a chain. Returns false if there is no chain named `from`, if `to` is empty or in
    /// use, or if the change cannot be stored.
    bool rename(const QString &from, const QString &to);
    bool remove(const QString &chain);
    /// Removes the favourites and chains of all networks, including the file and its damaged
    /// copies.
    void removeAll();

signals:
    void changed();
    /// Emitted with an error message in the user's language.
    void problem(const QString &text);

private:
    std::string key() const;
    Chains::NetworkFavourites current() const;
    bool store(const Chains::NetworkFavourites &favourites);
    void read() const;
    void migrate() const;
    bool write() const;
    bool setAside() const;

    const QString m_file;
    QString m_network;
    mutable bool m_isRead = false;
    mutable Chains::FavouriteFile m_content;
};

} // namespace Dashboard

#endif
