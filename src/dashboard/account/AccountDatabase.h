#ifndef ACCOUNTDATABASE_H
#define ACCOUNTDATABASE_H

#include "AccountEntry.h"
#include "base/UserDatabase.h"

namespace Dashboard
{

/**
 * The entries of all SIMs. Each entry is stored in the same transaction as the balance of its day.
 */
class AccountDatabase : public UserDatabase
{
public:
    /// If `file` is empty, the database is kept in memory.
    explicit AccountDatabase(const QString &file);

    /// Adds the entry and updates the balance of its day. Returns false if the entry cannot be
    /// stored.
    bool add(const QString &sim, const AccountEntry &entry);
    /// Returns the newest entry with this code, or a null entry if there is none.
    AccountEntry newest(const QString &sim, const QString &code);
    /// Returns the newest entry that contains a balance, or a null entry if there is none.
    AccountEntry newestBalance(const QString &sim);
    /// Returns the balances of all days since `first`, starting with the oldest day.
    QList<BalanceDay> days(const QString &sim, const QDate &first);
    /// Calls the function for each entry of the SIM, or of all SIMs if `sim` is empty, starting
    /// with the oldest entry. If the function returns false, no more entries are read. forEach()
    /// returns false in this case, and also if the entries cannot be read.
    bool forEach(const QString &sim,
                 const std::function<bool(const QString &sim, const AccountEntry &)> &use);
    /// Records that the network answered another code at the time `since`, so the stored balance
    /// may be outdated. clearOutdated() removes this record.
    bool setOutdated(const QString &sim, const QDateTime &since);
    bool clearOutdated(const QString &sim);
    bool isOutdated(const QString &sim);
    bool removeBefore(const QDateTime &limit);

private:
    bool insert(const QString &sim, const AccountEntry &entry);
    bool insertDay(const QString &sim, const AccountEntry &entry);
    AccountEntry select(const char *statement, const QVariantList &values);
};

} // namespace Dashboard

#endif
