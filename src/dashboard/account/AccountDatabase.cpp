#include "AccountDatabase.h"

#include <QAtomicInt>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>

namespace Dashboard
{

namespace
{

const QFile::Permissions OWNER_ONLY = QFile::ReadOwner | QFile::WriteOwner;

// The result codes of SQLite for a damaged file and for a file that is not a database.
const char CORRUPT[] = "11";
const char NOT_A_DATABASE[] = "26";

// Overwrite deleted entries, and wait if another process is using the file.
const char *const SETTINGS[] = {"PRAGMA secure_delete = ON", "PRAGMA busy_timeout = 2000",
                                "PRAGMA synchronous = FULL"};

// The statements that migrate the schema from each version to the next one. Append new steps to the
// end of the list. Never change an existing step, because it may already have been executed.
const QList<QList<const char *>> &migrations()
{
    static const QList<QList<const char *>> steps = {
        {"CREATE TABLE entry (id INTEGER PRIMARY KEY, sim TEXT NOT NULL, asked INTEGER NOT NULL, "
         "code TEXT NOT NULL, units INTEGER, decimals INTEGER, currency TEXT, validity TEXT, "
         "number_end TEXT, data_left INTEGER, data_total INTEGER, text TEXT NOT NULL)",
         "CREATE INDEX entry_by_code ON entry (sim, code, asked)",
         "CREATE INDEX entry_with_balance ON entry (sim, asked) WHERE units IS NOT NULL",
         "CREATE INDEX entry_by_age ON entry (asked)",
         // Contains one row for each day, so that the chart of 30 days reads at most 30 rows.
         "CREATE TABLE day (sim TEXT NOT NULL, day TEXT NOT NULL, currency TEXT NOT NULL, "
         "units INTEGER NOT NULL, decimals INTEGER NOT NULL, lowest INTEGER NOT NULL, "
         "falls INTEGER NOT NULL, rises INTEGER NOT NULL, PRIMARY KEY (sim, day, currency)) "
         "WITHOUT ROWID"}};
    return steps;
}

const char COLUMNS[] = "SELECT sim, asked, code, units, decimals, currency, validity, number_end, "
                       "data_left, data_total, text FROM entry ";

QString newConnectionName()
{
    static QAtomicInt last;
    return QString::fromLatin1("account-%1").arg(last.fetchAndAddOrdered(1));
}

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

/// Creates the file with private permissions. SQLite would create it with the default permissions,
/// so that other users could read it for a moment.
bool makePrivateFile(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder))
        return false;
    QFile::setPermissions(folder, OWNER_ONLY | QFile::ExeOwner);
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.setPermissions(OWNER_ONLY);
}

QString nameForDamaged(const QString &file)
{
    const QString base =
        file + QLatin1String(".damaged-") + QDate::currentDate().toString(Qt::ISODate);
    QString name = base;
    for (int i = 2; QFile::exists(name); ++i)
        name = base + QString::fromLatin1("-%1").arg(i);
    return name;
}

} // namespace

AccountDatabase::AccountDatabase(const QString &file)
    : m_file(file), m_connection(newConnectionName())
{
}

AccountDatabase::~AccountDatabase()
{
    close();
}

// ---- the file -----------------------------------------------------------------------------------

/// Returns false if there cannot be any entries. In this case, the program does not have to load
/// the database driver.
bool AccountDatabase::isThere() const
{
    return m_isOpen || (!isInMemory() && QFile::exists(m_file));
}

bool AccountDatabase::isOpen()
{
    if (!m_isOpen && !m_isOfLaterVersion)
        m_isOpen = open() || (setAside() && open());
    return m_isOpen;
}

bool AccountDatabase::open()
{
    if (!isInMemory() && !makePrivateFile(m_file))
        return false;
    QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), m_connection);
    database.setDatabaseName(isInMemory() ? QLatin1String(":memory:") : m_file);
    if (database.open() && prepare())
        return true;
    database = QSqlDatabase();
    close();
    return false;
}

/// Migrates the tables to the current version. Returns false if the file is damaged or was written
/// by a later version of the program.
bool AccountDatabase::prepare()
{
    QSqlDatabase database = QSqlDatabase::database(m_connection);
    QSqlQuery query(database);
    for (const char *setting : SETTINGS)
        query.exec(QLatin1String(setting));
    if (!query.exec(QLatin1String("PRAGMA user_version")) || !query.next())
        return handleError(query);
    const int version = query.value(0).toInt();
    query.finish();
    m_isOfLaterVersion = version > migrations().size();
    return !m_isOfLaterVersion && (version == migrations().size() || migrate(version));
}

/// Executes the missing migration steps in a single transaction.
bool AccountDatabase::migrate(int version)
{
    QSqlDatabase database = QSqlDatabase::database(m_connection);
    QSqlQuery query(database);
    // Acquires the write lock immediately, because two processes may try to migrate the file.
    if (!query.exec(QLatin1String("BEGIN IMMEDIATE")))
        return handleError(query);
    query.exec(QLatin1String("PRAGMA user_version"));
    if (query.next())
        version = query.value(0).toInt();
    query.finish();
    for (int step = version; step < migrations().size(); ++step) {
        for (const char *statement : migrations().at(step)) {
            if (!query.exec(QLatin1String(statement)))
                return handleError(query);
        }
    }
    query.exec(QString::fromLatin1("PRAGMA user_version = %1").arg(migrations().size()));
    return query.exec(QLatin1String("COMMIT")) || handleError(query);
}

/// Records whether the error was caused by a damaged file. Always returns false.
bool AccountDatabase::handleError(const QSqlQuery &query)
{
    const QString code = query.lastError().nativeErrorCode();
    m_isDamaged = code == QLatin1String(CORRUPT) || code == QLatin1String(NOT_A_DATABASE);
    return false;
}

/// Renames the file if it is damaged. Returns true if the file was renamed.
bool AccountDatabase::setAside()
{
    if (!m_isDamaged || isInMemory())
        return false;
    close();
    m_isDamaged = false;
    const QString name = nameForDamaged(m_file);
    if (!QFile::rename(m_file, name))
        return false;
    m_damagedFile = name;
    QFile::remove(m_file + QLatin1String("-journal"));
    return true;
}

void AccountDatabase::close()
{
    m_isOpen = false;
    if (QSqlDatabase::contains(m_connection))
        QSqlDatabase::removeDatabase(m_connection);
}

QString AccountDatabase::takeDamagedFile()
{
    QString name;
    name.swap(m_damagedFile);
    return name;
}

/// Executes the step. If the file turns out to be damaged, repeats the step with a new file.
bool AccountDatabase::repairing(const std::function<bool()> &step)
{
    if (!isOpen())
        return false;
    return step() || (setAside() && isOpen() && step());
}

// ---- statements ---------------------------------------------------------------------------------

bool AccountDatabase::run(const char *statement, const QVariantList &values, QSqlQuery *result)
{
    QSqlQuery own(QSqlDatabase::database(m_connection));
    QSqlQuery *query = result ? result : &own;
    query->setForwardOnly(true);
    query->prepare(QLatin1String(statement));
    for (const QVariant &value : values)
        query->addBindValue(value);
    return query->exec() || handleError(*query);
}

bool AccountDatabase::add(const QString &sim, const AccountEntry &entry)
{
    return repairing([&] {
        if (!run("BEGIN IMMEDIATE", {}))
            return false;
        const bool isAdded = insertDay(sim, entry) && insert(sim, entry) && run("COMMIT", {});
        if (!isAdded) {
            const bool isDamaged = m_isDamaged;
            run("ROLLBACK", {});
            m_isDamaged = isDamaged;
        }
        return isAdded;
    });
}

bool AccountDatabase::insert(const QString &sim, const AccountEntry &entry)
{
    return run("INSERT INTO entry (sim, asked, code, units, decimals, currency, validity, "
               "number_end, data_left, data_total, text) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
               valuesOf(sim, entry));
}

/// Updates the row for the day of the entry. The difference from the previous balance in the same
/// currency is added to the falls or to the rises.
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

AccountEntry AccountDatabase::select(const char *statement, const QVariantList &values)
{
    AccountEntry entry;
    if (!isThere())
        return entry;
    repairing([&] {
        QSqlQuery query(QSqlDatabase::database(m_connection));
        if (!run(statement, values, &query))
            return false;
        if (query.next())
            entry = entryOf(query);
        return query.lastError().type() == QSqlError::NoError || handleError(query);
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
        QSqlQuery query(QSqlDatabase::database(m_connection));
        if (!run("SELECT day, currency, units, decimals, lowest, falls, rises FROM day "
                 "WHERE sim = ? AND day >= ? ORDER BY day",
                 {sim, first.toString(Qt::ISODate)}, &query))
            return false;
        while (query.next()) {
            BalanceDay day;
            day.day = QDate::fromString(query.value(0).toString(), Qt::ISODate);
            day.last.currency = query.value(1).toString();
            day.last.units = query.value(2).toLongLong();
            day.last.decimals = query.value(3).toInt();
            day.lowest = query.value(4).toLongLong();
            day.falls = query.value(5).toLongLong();
            day.rises = query.value(6).toLongLong();
            days << day;
        }
        return query.lastError().type() == QSqlError::NoError || handleError(query);
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
    QSqlQuery query(QSqlDatabase::database(m_connection));
    const QByteArray statement = QByteArray(COLUMNS) + "WHERE sim = ? OR ? = '' ORDER BY asked, id";
    if (!run(statement.constData(), {sim, sim.isEmpty() ? QLatin1String("") : sim}, &query))
        return false;
    while (query.next()) {
        if (!use(query.value(0).toString(), entryOf(query)))
            return false;
    }
    return query.lastError().type() == QSqlError::NoError || handleError(query);
}

bool AccountDatabase::removeBefore(const QDateTime &limit)
{
    if (!isThere())
        return true;
    return repairing([&] {
        return run("DELETE FROM entry WHERE asked < ?", {limit.toMSecsSinceEpoch()}) &&
               run("DELETE FROM day WHERE day < ?", {limit.date().toString(Qt::ISODate)});
    });
}

/// Also removes damaged files that were set aside, because they may contain entries.
bool AccountDatabase::removeAll()
{
    close();
    m_isOfLaterVersion = false;
    if (isInMemory())
        return true;
    const QFileInfo file(m_file);
    bool isDone = true;
    for (const QString &name : file.dir().entryList({file.fileName() + QLatin1Char('*')}))
        isDone = file.dir().remove(name) && isDone;
    return isDone;
}

} // namespace Dashboard
