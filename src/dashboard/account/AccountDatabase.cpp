#include "AccountDatabase.h"

namespace Dashboard
{

namespace
{

const QList<QList<const char *>> &migrations()
{
    static const QList<QList<const char *>> steps = {
        {"CREATE TABLE entry (id INTEGER PRIMARY KEY, sim TEXT NOT NULL, asked INTEGER NOT NULL, "
         "code TEXT NOT NULL, units INTEGER, decimals INTEGER, currency TEXT, validity TEXT, "
         "number_end TEXT, data_left INTEGER, data_total INTEGER, text TEXT NOT NULL)",
         "CREATE INDEX entry_by_code ON entry (sim, code, asked)",
         "CREATE INDEX entry_with_balance ON entry (sim, asked) WHERE units IS NOT NULL",
         "CREATE INDEX entry_by_age ON entry (asked)",
         // Contains one row for each SIM, day and currency, so that the chart does not have to read
         // all entries.
         "CREATE TABLE day (sim TEXT NOT NULL, day TEXT NOT NULL, currency TEXT NOT NULL, "
         "units INTEGER NOT NULL, decimals INTEGER NOT NULL, lowest INTEGER NOT NULL, "
         "falls INTEGER NOT NULL, rises INTEGER NOT NULL, PRIMARY KEY (sim, day, currency)) "
         "WITHOUT ROWID"},
        // Contains the SIMs whose balance may have changed since it was queried.
        {"CREATE TABLE outdated (sim TEXT PRIMARY KEY, since INTEGER NOT NULL) WITHOUT ROWID"}};
    return steps;
}

const char COLUMNS[] = "SELECT sim, asked, code, units, decimals, currency, validity, number_end, "
                       "data_left, data_total, text FROM entry ";

ReplyReading readingOf(const QSqlQuery &row)
{
    ReplyReading reading;
    if (!row.isNull(3)) {
        Money money;
        money.units = row.value(3).toLongLong();
        money.decimals = row.value(4).toInt();
        money.currency = row.value(5).toString();
        reading.amount = money;
    }
    if (!row.isNull(6))
        reading.date = QDate::fromString(row.value(6).toString(), Qt::ISODate);
    if (!row.isNull(7))
        reading.number = QChar(0x2026) + row.value(7).toString();
    if (!row.isNull(8)) {
        DataVolume volume;
        volume.left = row.value(8).toLongLong();
        volume.total = row.value(9).toLongLong();
        reading.data = volume;
    }
    return reading;
}

AccountEntry entryOf(const QSqlQuery &row)
{
    AccountEntry entry;
    entry.askedAt = QDateTime::fromMSecsSinceEpoch(row.value(1).toLongLong());
    entry.code = row.value(2).toString();
    entry.reading = readingOf(row);
    entry.text = row.value(10).toString();
    return entry;
}

BalanceDay dayOf(const QSqlQuery &row)
{
    BalanceDay day;
    day.day = QDate::fromString(row.value(0).toString(), Qt::ISODate);
    day.last.currency = row.value(1).toString();
    day.last.units = row.value(2).toLongLong();
    day.last.decimals = row.value(3).toInt();
    day.lowest = row.value(4).toLongLong();
    day.falls = row.value(5).toLongLong();
    day.rises = row.value(6).toLongLong();
    return day;
}

QVariantList valuesOf(const QString &sim, const AccountEntry &entry)
{
    const int visibleDigits = 4;
    const ReplyReading &reading = entry.reading;
    const QVariant none;
    return {sim,
            entry.askedAt.toMSecsSinceEpoch(),
            entry.code,
            reading.amount ? QVariant(reading.amount->units) : none,
            reading.amount ? QVariant(reading.amount->decimals) : none,
            reading.amount ? QVariant(reading.amount->currency) : none,
            reading.date ? QVariant(reading.date->toString(Qt::ISODate)) : none,
            reading.number ? QVariant(reading.number->right(visibleDigits)) : none,
            reading.data ? QVariant(reading.data->left) : none,
            reading.data ? QVariant(reading.data->total) : none,
            withoutNumbers(entry.text)};
}

} // namespace

AccountDatabase::AccountDatabase(const QString &file) : UserDatabase(file, migrations()) {}

bool AccountDatabase::add(const QString &sim, const AccountEntry &entry)
{
    return repairing(
        [&] { return inTransaction([&] { return insertDay(sim, entry) && insert(sim, entry); }); });
}

bool AccountDatabase::insert(const QString &sim, const AccountEntry &entry)
{
    return run("INSERT INTO entry (sim, asked, code, units, decimals, currency, validity, "
               "number_end, data_left, data_total, text) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
               valuesOf(sim, entry));
}

/// Adds or updates the row for the day of the entry. The difference from the previous balance in
/// the same currency is added to the falls or to the rises.
bool AccountDatabase::insertDay(const QString &sim, const AccountEntry &entry)
{
    if (!entry.reading.amount)
        return true;
    const Money &now = *entry.reading.amount;
    const AccountEntry before = newestBalance(sim);
    qint64 change = 0;
    if (before.reading.amount && before.reading.amount->currency == now.currency)
        change = now.units - before.reading.amount->units;
    const QString day = entry.askedAt.date().toString(Qt::ISODate);
    return run("INSERT INTO day (sim, day, currency, units, decimals, lowest, falls, rises) "
               "VALUES (?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT (sim, day, currency) DO UPDATE SET "
               "units = excluded.units, decimals = excluded.decimals, "
               "lowest = min(lowest, excluded.lowest), falls = falls + excluded.falls, "
               "rises = rises + excluded.rises",
               {sim, day, now.currency, now.units, now.decimals, now.units,
                qMax(-change, qint64(0)), qMax(change, qint64(0))});
}

/// Returns the entry that the statement selects, or a null entry if there is none.
AccountEntry AccountDatabase::select(const char *statement, const QVariantList &values)
{
    AccountEntry entry;
    if (!isThere())
        return entry;
    repairing([&] {
        return readRows(statement, values, [&entry](const QSqlQuery &row) {
            entry = entryOf(row);
            return true;
        });
    });
    return entry;
}

AccountEntry AccountDatabase::newest(const QString &sim, const QString &code)
{
    static const QByteArray statement =
        QByteArray(COLUMNS) + "WHERE sim = ? AND code = ? ORDER BY asked DESC, id DESC LIMIT 1";
    return select(statement.constData(), {sim, code});
}

AccountEntry AccountDatabase::newestBalance(const QString &sim)
{
    static const QByteArray statement =
        QByteArray(COLUMNS) +
        "WHERE sim = ? AND units IS NOT NULL ORDER BY asked DESC, id DESC LIMIT 1";
    return select(statement.constData(), {sim});
}

QList<BalanceDay> AccountDatabase::days(const QString &sim, const QDate &first)
{
    QList<BalanceDay> days;
    if (!isThere())
        return days;
    repairing([&] {
        return readRows("SELECT day, currency, units, decimals, lowest, falls, rises FROM day "
                        "WHERE sim = ? AND day >= ? ORDER BY day",
                        {sim, first.toString(Qt::ISODate)}, [&days](const QSqlQuery &row) {
                            days << dayOf(row);
                            return true;
                        });
    });
    return days;
}

bool AccountDatabase::forEach(
    const QString &sim, const std::function<bool(const QString &sim, const AccountEntry &)> &use)
{
    if (!isThere())
        return true;
    if (!isOpen())
        return false;
    const QByteArray statement = QByteArray(COLUMNS) + "WHERE sim = ? OR ? = '' ORDER BY asked, id";
    return readRows(statement.constData(), {sim, sim}, [&use](const QSqlQuery &row) {
        return use(row.value(0).toString(), entryOf(row));
    });
}

bool AccountDatabase::setOutdated(const QString &sim, const QDateTime &since)
{
    return repairing([&] {
        return run("INSERT OR REPLACE INTO outdated (sim, since) VALUES (?, ?)",
                   {sim, since.toMSecsSinceEpoch()});
    });
}

bool AccountDatabase::clearOutdated(const QString &sim)
{
    return repairing([&] { return run("DELETE FROM outdated WHERE sim = ?", {sim}); });
}

bool AccountDatabase::isOutdated(const QString &sim)
{
    bool isFound = false;
    if (!isThere())
        return isFound;
    repairing([&] {
        return readRows("SELECT since FROM outdated WHERE sim = ?", {sim},
                        [&isFound](const QSqlQuery &) { return isFound = true; });
    });
    return isFound;
}

bool AccountDatabase::removeBefore(const QDateTime &limit)
{
    if (!isThere())
        return true;
    return repairing([&] {
        return run("DELETE FROM entry WHERE asked < ?", {limit.toMSecsSinceEpoch()}) &&
               run("DELETE FROM day WHERE day < ?", {limit.date().toString(Qt::ISODate)}) &&
               run("DELETE FROM outdated WHERE since < ?", {limit.toMSecsSinceEpoch()});
    });
}

} // namespace Dashboard
