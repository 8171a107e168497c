#ifndef FAVOURITES_H
#define FAVOURITES_H

#include <QObject>

#include "AccountCodes.h"
#include "FavouriteFile.h"

namespace Dashboard
{

/**
 * The favourite codes and the chains of each home network, in a file that only its user can read
 * (`docs/ussd.md` describes it). Of a favourite code, the program `ussd` reads the name, but the
 * dashboard shows the names and icons of the current codes.
 */
class Favourites : public QObject
{
    Q_OBJECT
public:
    static const int MOST = 6;

    /// An empty name keeps the favourites in memory.
    explicit Favourites(const QString &file, QObject *parent = nullptr);
    /// Returns the file of the user who runs the program.
    static QString userFile();

    /// Sets the home network, by its MCC and MNC.
    void setNetwork(const QString &network);
    /// Returns the favourites among these codes and the chains. If the user has never selected
    /// favourites, returns the codes that most subscribers need, and then the chains.
    QList<NamedCode> among(const AccountCodes &codes) const;
    /// Selects the favourites, in their order. Returns false if they cannot be stored.
    bool select(const QList<NamedCode> &favourites);

    /// Returns the chains of the home network.
    QList<NamedCode> chains() const;
    /// Returns the chain with this name. A chain without steps means that there is none.
    Chains::Chain chain(const QString &name) const;
    /// Returns true if neither a favourite code nor a chain has this name.
    bool isNameFree(const QString &name) const;
    /// Returns true if the walk is kept under any name.
    bool isKept(const Chains::Chain &walk) const;
    /// Keeps the chain, and makes it a favourite if there is room. Returns false if its name is in
    /// use or if it cannot be stored.
    bool keep(const Chains::Chain &chain);
    /// Returns false if there is no such chain, or if the new name is empty or in use.
    bool rename(const QString &from, const QString &to);
    bool remove(const QString &chain);
    /// Forgets the favourites and chains of all networks, and removes the file.
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
