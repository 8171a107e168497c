#include "AccountRecorder.h"

#include "AccountStore.h"
#include "plugin/ReplyTap.h"

namespace Dashboard
{

AccountRecorder::AccountRecorder(AccountStore *store, QObject *parent)
    : QObject(parent), m_store(store)
{
}

void AccountRecorder::record(const QString &code, const Reply &reply)
{
    if (code.isEmpty() || reply.text.trimmed().isEmpty())
        return;
    // A reply that requires an answer is a menu and does not contain account data.
    if (!m_codes.asksForAccount(code) || reply.asksForAnswer)
        return noteOther(code);
    AccountEntry entry;
    entry.askedAt = m_store->now();
    entry.code = code;
    entry.text = reply.text;
    entry.reading = readingOf(code, reply.text);
    m_store->add(entry);
    if (code == m_codes.balance)
        m_store->setOutdated(false);
    if (entry.reading.amount)
        warn(*entry.reading.amount);
}

/// Records that another code was answered, which may have changed the balance. The amount in such a
/// reply is not used, because it may be a price.
void AccountRecorder::noteOther(const QString &code)
{
    if (code != m_codes.paidType && !m_store->newest(m_codes.balance).isNull())
        m_store->setOutdated(true);
}

/// Extracts only those values that a reply to this code can contain. For example, an amount in the
/// reply to the data code is ignored, because it may be a price.
ReplyReading AccountRecorder::readingOf(const QString &code, const QString &text) const
{
    ReplyReading reading = m_patterns.read(text);
    if (code != m_codes.balance)
        reading.amount.reset();
    if (code != m_codes.balance && code != m_codes.validity)
        reading.date.reset();
    if (code != m_codes.number)
        reading.number.reset();
    return reading;
}

bool AccountRecorder::isLow(const Money &balance) const
{
    Money limit;
    return readPlainAmount(m_lowBalance, &limit) && balance.units < limit.units;
}

void AccountRecorder::warn(const Money &balance)
{
    if (!isLow(balance)) {
        m_warnedSim.clear();
    } else if (m_warnedSim != m_store->sim()) {
        m_warnedSim = m_store->sim();
        emit lowBalance(moneyText(balance));
    }
}

} // namespace Dashboard
