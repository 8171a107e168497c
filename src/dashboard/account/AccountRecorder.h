#ifndef ACCOUNTRECORDER_H
#define ACCOUNTRECORDER_H

#include <QObject>

#include "AccountCodes.h"
#include "AccountEntry.h"
#include "ReplyPatterns.h"

namespace Dashboard
{

class AccountStore;
struct Reply;

/**
 * Extracts and stores the account data of each reply to a code that queries account data,
 * regardless of the window that sent the code. All functions must be called from the GUI thread.
 */
class AccountRecorder : public QObject
{
    Q_OBJECT
public:
    /// `store` must outlive this object.
    explicit AccountRecorder(AccountStore *store, QObject *parent = nullptr);

    void setCodes(const AccountCodes &codes) { m_codes = codes; }
    const AccountCodes &codes() const { return m_codes; }
    /// Sets the operator's patterns for values in replies, which take precedence over the rules of
    /// readReply().
    void setPatterns(const ReplyPatterns &patterns) { m_patterns = patterns; }
    /// Sets the amount below which lowBalance() is emitted. An empty string disables the signal.
    void setLowBalance(const QString &amount) { m_lowBalance = amount; }
    /// Returns true if the balance is below the amount that the user has set.
    bool isLow(const Money &balance) const;

public slots:
    /// Must be called for each reply. Connect it to CommandMonitor::replied().
    void record(const QString &code, const Dashboard::Reply &reply);
    /// Must be called for each code without a reply that the network may have executed. Connect it
    /// to CommandMonitor::leftOpen().
    void recordUnanswered(const QString &code);

signals:
    /// Emitted when the balance of the SIM falls below the amount that the user has set. Emitted
    /// again for the same SIM only after the balance has reached this amount. `shown` is the
    /// balance as displayed to the user.
    void lowBalance(const QString &shown);

private:
    ReplyReading readingOf(const QString &code, const QString &text) const;
    void noteOther(const QString &code);
    void warn(const Money &balance);

    AccountStore *const m_store;
    AccountCodes m_codes;
    ReplyPatterns m_patterns;
    QString m_lowBalance;
    QString m_warnedSim; // the SIM whose low balance has been reported
};

} // namespace Dashboard

#endif
