#ifndef ACCOUNTDATABASE_H
#define ACCOUNTDATABASE_H

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantList>

#include <functional>

#include "AccountEntry.h"

namespace Dashboard
{

/**
 * Stores the account entries of all SIMs in an SQLite file that only the user can read, or in
 * memory. The file is opened when it is first needed, and created when the first entry is added. A
 * damaged file is renamed and replaced with a new one. Each entry is added in a transaction, so a
 * crash cannot leave an incomplete entry.
 */
class AccountDatabase
{
public:
    /// If `file` is empty, the database is kept in memory.
    explicit AccountDatabase(const QString &file);
    ~AccountDatabase();
    AccountDatabase(const AccountDatabase &) = delete;
    AccountDatabase &operator=(const AccountDatabase &) = delete;

    bool isInMemory() const { return m_file.isEmpty(); }
    /// Adds the entry and updates its day. Returns false if the entry cannot be stored.
    bool add(const QString &sim, const AccountEntry &entry);
    /// Returns the newest entry with this code.
    AccountEntry newest(const QString &sim, const QString &code);
    /// Returns the newest entry that contains a balance.
    AccountEntry newestBalance(const QString &sim);
    /// Returns the balances of all days since `first`, in ascending order.
    QList<BalanceDay> days(const QString &sim, const QDate &first);
    /// Calls the function for each entry of the SIM, or of all SIMs if `sim` is empty, in ascending
    /// order. The function returns false to stop. Returns false if the entries cannot be read.
    bool forEach(const QString &sim,
                 const std::function<bool(const QString &sim, const AccountEntry &)> &use);
    bool removeBefore(const QDateTime &limit);
    /// Removes all entries of all SIMs, and the file with its journal and its damaged versions.
    bool removeAll();

    /// Returns the new name of the file if it was damaged and has been renamed since the last call.
    /// Otherwise, returns an empty string.
    QString takeDamagedFile();
    /// Returns true if the file was written by a later version of the program. Such a file is
    /// neither read nor changed.
    bool isOfLaterVersion() const { return m_isOfLaterVersion; }

private:
    bool isThere() const;
    bool isOpen();
    bool open();
    bool prepare();
    bool migrate(int version);
    bool repairing(const std::function<bool()> &step);
    bool run(const char *statement, const QVariantList &values, QSqlQuery *query = nullptr);
    bool insert(const QString &sim, const AccountEntry &entry);
    bool insertDay(const QString &sim, const AccountEntry &entry);
    AccountEntry select(const char *statement, const QVariantList &values);
    bool handleError(const QSqlQuery &query);
    bool setAside();
    void close();

    const QString m_file;
    const QString m_connection; // the name of the Qt database connection
    QString m_damagedFile;
    bool m_isDamaged = false;
    bool m_isOfLaterVersion = false;
    bool m_isOpen = false;
};

} // namespace Dashboard

#endif
