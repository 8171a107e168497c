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
 * Keeps the replies about the account of each SIM for 12 months. If they must not be stored, or
 * cannot be stored, they are kept in memory until the program ends. Replies of the demonstration
 * are never stored. All functions must be called from the GUI thread.
 */
class AccountStore : public QObject
{
    Q_OBJECT
public:
    static const int MONTHS_KEPT = 12;
    static const int CHART_DAYS = 30;

    /// Where the current entries are kept.
    enum class Keeping { InFile, InMemory, Demonstration };

    /// The file is not opened before an entry is read or added.
    explicit AccountStore(const QString &file, QObject *parent = nullptr);
    ~AccountStore() override;

    /// Returns the file of the user who runs the program.
    static QString userFile();

    /// Sets the SIM whose entries are visible, by its key (see SimKey.h). An empty key means that
    /// the SIM is unknown, so nothing is visible or added.
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
    /// Returns the complete number of the current SIM if the network told it since the program
    /// started. Only its last four digits are stored.
    QString number() const { return m_numbers.value(m_sim); }
    /// Returns the balances of the last 30 days in the currency of the newest balance.
    QList<BalanceDay> lastDays() const;
    /// Returns the file that contains the entries, or an empty string if they are in memory.
    QString file() const;

public slots:
    /// Removes all entries of all SIMs from the file and from memory.
    void removeAll();

signals:
    /// Emitted when there is a new entry, when the SIM has changed, and after removeAll().
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
    QHash<QString, QString> m_numbers; // by SIM
};

} // namespace Dashboard

#endif
