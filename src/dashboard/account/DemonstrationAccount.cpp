#include "DemonstrationAccount.h"

#include "AccountStore.h"

namespace Dashboard
{

namespace
{

// The balances of consecutive days in euros, up to yesterday.
const char *const BALANCES[] = {
    "18.00", "17.50", "17.50", "16.00", "14.00", "13.50", "12.00", "10.00", "9.50",  "8.00",
    "6.50",  "5.00",  "15.00", "14.50", "13.00", "12.00", "11.00", "10.00", "9.00",  "7.00",
    "5.50",  "4.50",  "2.50",  "12.50", "22.50", "20.50", "18.50", "16.00", "14.50", "13.50"};
const int DAYS = int(sizeof BALANCES / sizeof *BALANCES);
const int VALID_DAYS = 405;

void add(AccountStore *store, const QString &code, const QString &text, const QDateTime &askedAt)
{
    if (code.isEmpty())
        return;
    AccountEntry entry;
    entry.askedAt = askedAt;
    entry.code = code;
    entry.text = text;
    entry.reading = readReply(text);
    store->add(entry);
}

QString balanceText(const char *amount)
{
    return QString::fromLatin1("Balance: %1 EUR").arg(QLatin1String(amount));
}

} // namespace

void inventAccount(AccountStore *store, const AccountCodes &codes)
{
    if (store->isDemonstration() && store->newestBalance().isNull() && !codes.balance.isEmpty())
        addInventedAccount(store, codes);
}

void addInventedAccount(AccountStore *store, const AccountCodes &codes)
{
    const QDateTime now = store->now();
    for (int i = 0; i < DAYS; ++i)
        add(store, codes.balance, balanceText(BALANCES[i]), now.addDays(i - DAYS));
    const QString end = now.date().addDays(VALID_DAYS).toString(Qt::ISODate);
    add(store, codes.balance, balanceText("12.50"), now);
    add(store, codes.validity, QLatin1String("Valid until ") + end, now);
    add(store, codes.number, QLatin1String("Your number is +999 55 0123456"), now);
    add(store, codes.data, QLatin1String("1.8 GB of 2 GB left"), now);
}

} // namespace Dashboard
