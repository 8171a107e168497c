#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QSqlQuery>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "account/AccountDatabase.h"
#include "account/AccountExport.h"
#include "account/AccountStore.h"
#include "account/DemonstrationAccount.h"
#include "account/SimKey.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const char SIM[] = "sim";
const int KILLS = 40;
const int MOST_ENTRIES = 4;       // entries that a writer adds before it is killed
const int LONGEST_REST = 8000000; // maximum time in ns between the last entry and the kill

QString sim()
{
    return QLatin1String(SIM);
}

AccountEntry entry(const QString &text, const QDateTime &askedAt)
{
    AccountEntry result;
    result.askedAt = askedAt;
    result.code = QLatin1String("*100#");
    result.text = text;
    result.reading = readReply(text);
    return result;
}

QDateTime day(int number)
{
    return QDateTime(QDate(2026, 11, 1), QTime(12, 0)).addDays(number);
}

AccountEntry balance(const char *amount, int dayNumber)
{
    return entry(QString::fromLatin1("Balance: %1 EUR").arg(QLatin1String(amount)), day(dayNumber));
}

/// Returns the result of SQLite's integrity check. Sets `orphans` to the difference between the sum
/// of the daily rises and the rise of the balance above its initial value of 10000 units.
QString integrity(const QString &path, int *orphans)
{
    QString result;
    const QString name = QLatin1String("integrity");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), name);
        database.setDatabaseName(path);
        database.open();
        QSqlQuery query(database);
        if (query.exec(QLatin1String("PRAGMA integrity_check")) && query.next())
            result = query.value(0).toString();
        query.exec(QLatin1String("SELECT abs((SELECT coalesce(sum(rises), 0) FROM day) - "
                                 "(SELECT coalesce(max(units), 10000) - 10000 FROM entry))"));
        *orphans = query.next() ? query.value(0).toInt() : 0;
    }
    QSqlDatabase::removeDatabase(name);
    return result;
}

/// Adds entries with an increasing balance until the process is killed. After each entry, writes a
/// byte to `report`.
[[noreturn]] void writeForEver(const QString &file, int report)
{
    AccountDatabase database(file);
    const AccountEntry last = database.newestBalance(sim());
    qint64 units = last.reading.amount ? last.reading.amount->units : 0;
    for (;;) {
        AccountEntry next = balance("1.00", 0);
        units += Money::UNITS;
        next.reading.amount->units = units;
        database.add(sim(), next);
        if (write(report, "+", 1) != 1)
            _exit(1);
    }
}

int anyNumberBelow(int limit)
{
    return QRandomGenerator::global()->bounded(limit);
}

/// Starts a writer and kills it at a random time, possibly in the middle of a system call.
void killWriter(const QString &file)
{
    int ends[2];
    QCOMPARE(pipe(ends), 0);
    const pid_t writer = fork();
    if (writer == 0)
        writeForEver(file, ends[1]);
    QVERIFY(writer > 0);
    char byte = 0;
    for (int i = anyNumberBelow(MOST_ENTRIES); i >= 0; --i)
        QCOMPARE(read(ends[0], &byte, 1), ssize_t(1));
    QElapsedTimer timer;
    timer.start();
    const qint64 rest = anyNumberBelow(LONGEST_REST);
    while (timer.nsecsElapsed() < rest) {
    }
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    close(ends[0]);
    close(ends[1]);
}

} // namespace

/** Tests the database with the replies about the account. */
class AccountStoreTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QDir(m_folder).removeRecursively(); }

private slots:
    void anEntryIsThereTheNextTime();
    void onlyTheUserCanReadIt();
    void readingCreatesNoFile();
    void simsAreApart();
    void numbersAreNotStored();
    void textsKeepAmountsAndDates_data();
    void textsKeepAmountsAndDates();
    void aDayCountsFallsAndRises();
    void anOutdatedBalanceIsRemembered();
    void oldEntriesGo();
    void withoutHistoryNothingIsWritten();
    void theDemonstrationIsNotStored();
    void everythingCanBeDeleted();
    void aDamagedFileIsSetAside();
    void aFileOfALaterVersionStaysAsItIs();
    void aKillKeepsTheFileWhole();
    void theKeyOfASimDoesNotTellIt();
    void entriesAreExported();
    void anExportThatFailsKeepsTheOldFile();
    void anExportReportsADamagedDatabase();
    void theDemonstrationIsFilled();

private:
    const QString m_folder = QDir::homePath() + QLatin1String("/account-test/account");
    const QString m_file = m_folder + QLatin1String("/replies.sqlite");
};

void AccountStoreTest::anEntryIsThereTheNextTime()
{
    const AccountEntry added = entry(
        QLatin1String("Balance: 12.50 EUR. Valid until 31.12.2027. 1.8 GB of 2 GB left"), day(0));
    QVERIFY(added.reading.amount && added.reading.date && added.reading.data);
    QVERIFY(AccountDatabase(m_file).add(sim(), added));
    AccountDatabase database(m_file);
    const AccountEntry found = database.newest(sim(), QLatin1String("*100#"));
    QCOMPARE(found.askedAt, added.askedAt);
    QCOMPARE(found.text, added.text);
    QVERIFY(*found.reading.amount == *added.reading.amount);
    QCOMPARE(found.reading.amount->decimals, 2);
    QVERIFY(*found.reading.date == *added.reading.date);
    QVERIFY(*found.reading.data == *added.reading.data);
    QVERIFY(!found.reading.number);
    QVERIFY(database.newest(sim(), QLatin1String("*101#")).isNull());
}

void AccountStoreTest::onlyTheUserCanReadIt()
{
    QVERIFY(AccountDatabase(m_file).add(sim(), balance("1.00", 0)));
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QCOMPARE(QFile::permissions(m_file) & others, QFile::Permissions());
    QCOMPARE(QFile::permissions(m_folder) & others, QFile::Permissions());
}

void AccountStoreTest::readingCreatesNoFile()
{
    AccountStore store(m_file);
    store.setSim(sim(), AccountStore::Keeping::InFile);
    QVERIFY(store.newest(QLatin1String("*100#")).isNull());
    QVERIFY(store.newestBalance().isNull());
    QVERIFY(store.lastDays().isEmpty());
    QVERIFY(!QFile::exists(m_file));
}

void AccountStoreTest::simsAreApart()
{
    AccountDatabase database(m_file);
    QVERIFY(database.add(sim(), balance("1.00", 0)));
    QVERIFY(database.newestBalance(QLatin1String("other")).isNull());
    QVERIFY(database.days(QLatin1String("other"), QDate(2026, 1, 1)).isEmpty());
}

void AccountStoreTest::numbersAreNotStored()
{
    AccountStore store(m_file);
    store.setSim(sim(), AccountStore::Keeping::InFile);
    store.add(entry(QLatin1String("Your number is +999 55 0123456. PIN 1234567890123"), day(0)));
    QCOMPARE(store.number(), QLatin1String("+999550123456"));
    const AccountEntry found = store.newest(QLatin1String("*100#"));
    QCOMPARE(*found.reading.number, QChar(0x2026) + QString(QLatin1String("3456")));
    for (const char *secret : {"550123456", "55 0123456", "1234567890123", "234567890"})
        QVERIFY2(!contentOf(m_file).contains(secret), secret);
    QVERIFY(contentOf(m_file).contains("Your number is"));
}

void AccountStoreTest::textsKeepAmountsAndDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const QString dots(QChar(0x2026));
    const auto row = [](const char *name, const QString &text, const QString &kept) {
        QTest::newRow(name) << text << kept;
    };
    const auto same = [&row](const char *text) {
        row(text, QLatin1String(text), QLatin1String(text));
    };
    same("Balance: 12.50 EUR, valid until 31.12.2027 23:59");
    same("Valid until 2027-12-31 or 31-12-2027");
    same("Balance 1 234 567 FCFA");
    same("Balance: 12500000 VND");
    same("Balance: Rp 12500000");
    same("Balance: 1.234.567,89 on 01.02.03 at 10.15.30");
    same("Balance: 12500000 US dollars");
    same("1.8 GB of 2 GB, 300 SMS, 120 min");
    row("number", QLatin1String("Call +999 55 0123456 now"),
        QLatin1String("Call ") + dots + QLatin1String("3456 now"));
    row("national", QLatin1String("0550123456"), dots + QLatin1String("3456"));
    row("voucher", QLatin1String("PIN 1234-5678-9012-3456."),
        QLatin1String("PIN ") + dots + QLatin1String("3456."));
    row("points", QLatin1String("Call 06.12.34.56.78."),
        QLatin1String("Call ") + dots + QLatin1String("5678."));
    row("voucher with points", QLatin1String("PIN 1234.5678.9012"),
        QLatin1String("PIN ") + dots + QLatin1String("9012"));
    row("arabic", QString::fromUtf8("رقمك ٠٥٥٠١٢٣٤٥٦"),
        QString::fromUtf8("رقمك ") + dots + QString::fromUtf8("٣٤٥٦"));
}

void AccountStoreTest::textsKeepAmountsAndDates()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    QCOMPARE(withoutNumbers(text), kept);
}

void AccountStoreTest::aDayCountsFallsAndRises()
{
    AccountStore store(m_file);
    store.setClock([] { return day(2); });
    store.setSim(sim(), AccountStore::Keeping::InFile);
    for (const AccountEntry &each : {balance("10.00", 0), balance("7.50", 0), balance("2.50", 1),
                                     balance("12.50", 1), balance("12.00", 2)})
        store.add(each);
    const QList<BalanceDay> days = store.lastDays();
    QCOMPARE(days.size(), 3);
    QCOMPARE(days.at(0).last.units, qint64(75000));
    QCOMPARE(days.at(0).falls, qint64(25000));
    QCOMPARE(days.at(1).lowest, qint64(25000));
    QCOMPARE(days.at(1).falls, qint64(50000));
    QCOMPARE(days.at(1).rises, qint64(100000));
    QCOMPARE(days.at(2).last.units, qint64(120000));
}

void AccountStoreTest::anOutdatedBalanceIsRemembered()
{
    QDateTime now = day(0);
    const auto open = [&](AccountStore &store) {
        store.setClock([&now] { return now; });
        store.setSim(sim(), AccountStore::Keeping::InFile);
    };
    {
        AccountStore store(m_file);
        open(store);
        store.add(balance("12.50", 0));
        store.setOutdated(true);
    }
    AccountStore store(m_file);
    open(store);
    QVERIFY(store.isOutdated());
    store.setSim(QLatin1String("other"), AccountStore::Keeping::InFile);
    QVERIFY(!store.isOutdated());
    store.setSim(sim(), AccountStore::Keeping::InFile);
    now = day(0).addMonths(13);
    store.add(balance("9.00", 400));
    QVERIFY(!store.isOutdated()); // the record has expired, like the entry
    store.setOutdated(true);
    store.removeAll();
    QVERIFY(!store.isOutdated());
}

void AccountStoreTest::oldEntriesGo()
{
    AccountStore store(m_file);
    store.setSim(sim(), AccountStore::Keeping::InFile);
    store.setClock([] { return day(0); });
    store.add(balance("1.00", 0));
    store.setClock([] { return day(0).addMonths(AccountStore::MONTHS_KEPT).addDays(1); });
    AccountEntry other = balance("2.00", 380);
    other.code = QLatin1String("*105#");
    store.add(other);
    QVERIFY(store.newest(QLatin1String("*100#")).isNull());
    QVERIFY(!store.newest(QLatin1String("*105#")).isNull());
    QVERIFY(!contentOf(m_file).contains("Balance: 1.00 EUR"));
}

void AccountStoreTest::withoutHistoryNothingIsWritten()
{
    AccountStore store(m_file);
    store.setSim(sim(), AccountStore::Keeping::InMemory);
    store.add(balance("1.00", 0));
    QVERIFY(!store.newestBalance().isNull());
    QVERIFY(!QFile::exists(m_folder));
}

void AccountStoreTest::theDemonstrationIsNotStored()
{
    AccountStore store(m_file);
    store.setSim(sim(), AccountStore::Keeping::Demonstration);
    store.add(balance("1.00", 0));
    QVERIFY(!QFile::exists(m_folder));
    store.setSim(sim(), AccountStore::Keeping::InFile);
    // Entries of a demonstration are not shown for real SIM cards, even if the key is the same.
    QVERIFY(store.newestBalance().isNull());
}

void AccountStoreTest::everythingCanBeDeleted()
{
    AccountStore store(m_file);
    store.setSim(sim(), AccountStore::Keeping::InFile);
    store.add(balance("1.00", 0));
    QVERIFY(QFile::copy(m_file, m_file + QLatin1String(".damaged-2026-01-01")));
    store.removeAll();
    QVERIFY(store.newestBalance().isNull());
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList());
    store.add(balance("2.00", 1));
    store.setSim(sim(), AccountStore::Keeping::InMemory);
    store.removeAll(); // also deletes the database file, which is not in use
    QVERIFY(!QFile::exists(m_file));
}

void AccountStoreTest::aDamagedFileIsSetAside()
{
    QVERIFY(QDir().mkpath(m_folder));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("This is no database. ").repeated(500));
    file.close();
    AccountStore store(m_file);
    QStringList problems;
    connect(&store, &AccountStore::problem, [&problems](const QString &text) { problems << text; });
    store.setSim(sim(), AccountStore::Keeping::InFile);
    store.add(balance("1.00", 0));
    QVERIFY(!store.newestBalance().isNull());
    const QString name =
        m_file + QLatin1String(".damaged-") + QDate::currentDate().toString(Qt::ISODate);
    QVERIFY(QFile::exists(name));
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().contains(name));
    QCOMPARE(store.file(), m_file);
}

void AccountStoreTest::aFileOfALaterVersionStaysAsItIs()
{
    QVERIFY(AccountDatabase(m_file).add(sim(), balance("1.00", 0)));
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String("later"));
        database.setDatabaseName(m_file);
        QVERIFY(database.open());
        QSqlQuery(database).exec(QLatin1String("PRAGMA user_version = 99"));
    }
    QSqlDatabase::removeDatabase(QLatin1String("later"));
    const QByteArray before = contentOf(m_file);
    AccountStore store(m_file);
    QStringList problems;
    connect(&store, &AccountStore::problem, [&problems](const QString &text) { problems << text; });
    store.setSim(sim(), AccountStore::Keeping::InFile);
    store.add(balance("2.00", 1));
    QCOMPARE(problems.size(), 1);
    QCOMPARE(contentOf(m_file), before);
    // The value is kept only in memory.
    QCOMPARE(store.newestBalance().reading.amount->units, qint64(20000));
}

void AccountStoreTest::aKillKeepsTheFileWhole()
{
    qint64 previous = 0;
    for (int i = 0; i < KILLS; ++i) {
        killWriter(m_file);
        AccountDatabase database(m_file);
        const AccountEntry last = database.newestBalance(sim());
        const qint64 units = last.reading.amount ? last.reading.amount->units : 0;
        QVERIFY(database.takeDamagedFile().isEmpty());
        QVERIFY(units >= previous); // no committed entry has been lost
        previous = units;
        int orphans = 0;
        QCOMPARE(integrity(m_file, &orphans), QLatin1String("ok"));
        QCOMPARE(orphans, 0); // an entry and its daily total are written in one transaction
    }
    QVERIFY(previous > 0);
}

void AccountStoreTest::theKeyOfASimDoesNotTellIt()
{
    const QString imsi = QLatin1String("001010123456789");
    const QString key = simKey(imsi, m_folder);
    QCOMPARE(key.length(), 64);
    QCOMPARE(simKey(imsi, m_folder), key);
    QVERIFY(simKey(QLatin1String("001010123456788"), m_folder) != key);
    QVERIFY(simKey(QString(), m_folder).isEmpty());
    const QString salt = m_folder + QLatin1String("/sim-salt");
    QCOMPARE(QFileInfo(salt).size(), qint64(32));
    QCOMPARE(QFile::permissions(salt) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
    QVERIFY(QFile::remove(salt));
    const QString other = simKey(imsi, m_folder); // a new salt, as in another installation
    QVERIFY(other != key);
    QVERIFY(forgetSimKeys(m_folder));
    QVERIFY(!QFile::exists(salt));
    QVERIFY(simKey(imsi, m_folder) != other);
}

void AccountStoreTest::entriesAreExported()
{
    AccountDatabase database(m_file);
    QVERIFY(database.add(sim(), balance("12.50", 0)));
    QVERIFY(database.add(sim(), entry(QLatin1String("=1+1 \"quoted\", +999550123456"), day(1))));
    const QString csv = folder() + QLatin1String("/a.csv");
    QCOMPARE(exportAccountTo(csv, m_file), QString());
    const QList<QByteArray> lines = contentOf(csv).split('\n');
    QCOMPARE(lines.at(0).trimmed(),
             QByteArray("sim,time,code,amount,currency,valid_until,number_end,data_left_bytes,"
                        "data_total_bytes,reply"));
    QVERIFY(lines.at(1).contains("\"1\",\"2026-11-01T"));
    QVERIFY(lines.at(1).contains("\"*100#\",\"12.50\",\"EUR\""));
    QVERIFY(lines.at(2).contains("\"'=1+1 \"\"quoted\"\""));
    QVERIFY(!contentOf(csv).contains("550123456"));
    QVERIFY(!lines.at(1).contains(SIM));
    QCOMPARE(QFile::permissions(csv) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    const QString json = folder() + QLatin1String("/a.json");
    QCOMPARE(exportAccountTo(json, m_file), QString());
    const QJsonArray array = QJsonDocument::fromJson(contentOf(json)).array();
    QCOMPARE(array.size(), 2);
    QCOMPARE(array.at(0).toObject().value(QLatin1String("amount")).toString(),
             QLatin1String("12.50"));
}

void AccountStoreTest::anExportThatFailsKeepsTheOldFile()
{
    const QString file = writeFile(QLatin1String("a.csv"), "old");
    QVERIFY(QDir().mkpath(m_file)); // a folder in place of the database
    QVERIFY(!exportAccountTo(file, m_file).isEmpty());
    QCOMPARE(contentOf(file), QByteArray("old"));
    QVERIFY(exportAccountTo(folder() + QLatin1String("/a.txt"), m_file)
                .contains(QLatin1String(".csv or .json")));
    QVERIFY(
        !exportAccountTo(QLatin1String("/nonexistent/a.csv"), QLatin1String("/none")).isEmpty());
}

// Tests that an export fails if the database is damaged. Otherwise, the exported file would be
// empty and look as if there had been no entries.
void AccountStoreTest::anExportReportsADamagedDatabase()
{
    QVERIFY(QDir().mkpath(m_folder));
    QFile database(m_file);
    QVERIFY(database.open(QIODevice::WriteOnly));
    database.write(QByteArray("This is no database. ").repeated(500));
    database.close();
    const QString file = folder() + QLatin1String("/a.csv");
    QVERIFY(exportAccountTo(file, m_file).contains(QLatin1String(".damaged-")));
    QVERIFY(!QFile::exists(file));
}

void AccountStoreTest::theDemonstrationIsFilled()
{
    AccountCodes codes;
    codes.balance = QLatin1String("*100#");
    codes.data = QLatin1String("*104#");
    AccountStore store(m_file);
    store.setSim(sim(), AccountStore::Keeping::InFile);
    inventAccount(&store, codes);
    QVERIFY(store.newestBalance().isNull()); // invented entries are not added to real ones
    store.setSim(sim(), AccountStore::Keeping::Demonstration);
    inventAccount(&store, codes);
    QCOMPARE(plainAmount(*store.newestBalance().reading.amount), QLatin1String("12.50"));
    QVERIFY(store.newest(codes.data).reading.data->total > 0);
    QCOMPARE(store.lastDays().size(), 31);
    QVERIFY(!QFile::exists(m_file));
}

USSD_TEST_MAIN(AccountStoreTest)
#include "account_store_test.moc"
