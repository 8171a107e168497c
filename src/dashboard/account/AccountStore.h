#ifndef ACCOUNTSTORE_H
#define ACCOUNTSTORE_H

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

#include "AccountEntry.h"

namespace Dashboard
{

class AccountDatabase;

/**
 * Stores the account data of each SIM for 12 months. If the user has disabled storing, or if the
 * file cannot be written, the data is kept in memory until the program exits. Data of a
 * demonstration (a simulated network) is never stored in the file. All functions must be called
 * from the GUI thread.
 */
class AccountStore : public QObject
{
    Q_OBJECT
public:
    static const int MONTHS_KEPT = 12;
    static const int CHART_DAYS = 30;

    /// The location in which the entries of the current SIM are kept.
    enum class Keeping { InFile, InMemory, Demonstration };

    /// The file is opened when an entry is first read or added.
    explicit AccountStore(const QString &file, QObject *parent = nullptr);
    ~AccountStore() override;

    /// Returns the path of the database file of the user who runs the program.
    static QString userFile();

    /// Selects the SIM by its key (see SimKey.h). All other functions use the entries of this SIM.
    /// An empty key means that the SIM is unknown: there are no entries, and none can be added.
    void setSim(const QString &key, Keeping keeping);
    QString sim() const { return m_sim; }
    bool isDemonstration() const { return m_keeping == Keeping::Demonstration; }
    /// Replaces the clock.
    void setClock(const std::function<QDateTime()> &clock) { m_clock = clock; }
    QDateTime now() const { return m_clock(); }

    /// Adds an entry for the current SIM. Emits changed() if the SIM is known.
    void add(const AccountEntry &entry);
    AccountEntry newest(const QString &code) const;
    AccountEntry newestBalance() const;
    /// Returns the complete phone number of the current SIM if it has been queried since the
    /// program started. Otherwise, returns an empty string, because only the last four digits are
    /// stored.
    QString number() const { return m_numbers.value(m_sim); }
    /// Returns the balances of the last 30 days. Only balances in the currency of the newest one
    /// are included.
    QList<BalanceDay> lastDays() const;
    /// Records whether the balance may have changed since it was queried. Emits changed().
    void setOutdated(bool isOutdated);
    bool isOutdated() const;
    /// Returns the file that contains the entries, or an empty string if they are in memory.
    QString file() const;

public slots:
    /// Removes all entries of all SIMs from the file and from memory.
    void removeAll();

signals:
    /// Emitted when an entry has been added, when the SIM or the result of isOutdated() has
    /// changed, and after removeAll().
    void changed();
    /// Emitted with a message for the user if entries cannot be stored.
    void problem(const QString &text);

private:
    void begin(Keeping keeping);
    void report() const;

    const QString m_file;
    std::function<QDateTime()> m_clock = QDateTime::currentDateTime;
    std::unique_ptr<AccountDatabase> m_database;
    Keeping m_keeping = Keeping::InMemory;
    QString m_sim;
    QHash<QString, QString> m_numbers; // keyed by SIM
};

} // namespace Dashboard

#endif
