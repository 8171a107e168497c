#include "AccountStore.h"

#include "AccountDatabase.h"
#include "base/DashboardText.h"
#include "ProvisionWriter.h"

namespace Dashboard
{

namespace
{

const char FILE_NAME[] = "/account/replies.sqlite";

} // namespace

AccountStore::AccountStore(const QString &file, QObject *parent)
    : QObject(parent), m_file(file), m_database(new AccountDatabase(QString()))
{
}

AccountStore::~AccountStore() = default;

QString AccountStore::userFile()
{
    return Provisioning::userDataHome() + QLatin1String(FILE_NAME);
}

void AccountStore::setSim(const QString &key, Keeping keeping)
{
    if (key == m_sim && keeping == m_keeping)
        return;
    if (keeping != m_keeping)
        begin(keeping);
    m_sim = key;
    emit changed();
}

void AccountStore::begin(Keeping keeping)
{
    m_keeping = keeping;
    const bool isStored = keeping == Keeping::InFile && !m_file.isEmpty();
    m_database.reset(new AccountDatabase(isStored ? m_file : QString()));
}

QString AccountStore::file() const
{
    return m_database->isInMemory() ? QString() : m_file;
}

void AccountStore::add(const AccountEntry &entry)
{
    if (m_sim.isEmpty())
        return;
    if (entry.reading.number)
        m_numbers.insert(m_sim, *entry.reading.number);
    m_database->removeBefore(m_clock().addMonths(-MONTHS_KEPT));
    if (!m_database->add(m_sim, entry) && !m_database->isInMemory()) {
        emit problem(dashboardText(m_database->isOfLaterVersion() ? "ACCOUNT_LATER_VERSION"
                                                                  : "ACCOUNT_NOT_STORED")
                         .arg(m_file));
        begin(Keeping::InMemory);
        m_database->add(m_sim, entry);
    }
    report();
    emit changed();
}

/// Emits problem() if a damaged file has been renamed.
void AccountStore::report() const
{
    const QString damaged = m_database->takeDamagedFile();
    if (!damaged.isEmpty())
        emit const_cast<AccountStore *>(this)->problem(
            dashboardText("ACCOUNT_DAMAGED").arg(damaged));
}

AccountEntry AccountStore::newest(const QString &code) const
{
    if (m_sim.isEmpty() || code.isEmpty())
        return AccountEntry();
    AccountEntry entry = m_database->newest(m_sim, code);
    report();
    return entry;
}

AccountEntry AccountStore::newestBalance() const
{
    return m_sim.isEmpty() ? AccountEntry() : m_database->newestBalance(m_sim);
}

QList<BalanceDay> AccountStore::lastDays() const
{
    QList<BalanceDay> days;
    if (m_sim.isEmpty())
        return days;
    const AccountEntry newest = newestBalance();
    if (!newest.reading.amount)
        return days;
    for (const BalanceDay &day : m_database->days(m_sim, now().date().addDays(-CHART_DAYS))) {
        if (day.last.currency == newest.reading.amount->currency)
            days << day;
    }
    return days;
}

void AccountStore::setOutdated(bool isOutdated)
{
    if (m_sim.isEmpty() || isOutdated == this->isOutdated())
        return;
    if (isOutdated)
        m_database->setOutdated(m_sim, now());
    else
        m_database->clearOutdated(m_sim);
    report();
    emit changed();
}

bool AccountStore::isOutdated() const
{
    return !m_sim.isEmpty() && m_database->isOutdated(m_sim);
}

void AccountStore::removeAll()
{
    m_numbers.clear();
    begin(m_keeping); // closes the file before it is removed
    if (!AccountDatabase(m_file).removeAll())
        emit problem(dashboardText("MESSAGE_NOT_REMOVED").arg(m_file));
    emit changed();
}

} // namespace Dashboard
