/*
 * Measures the time to open the front page with a large database of replies, compared with a small
 * one.
 */
#include <QApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <memory>

#include "account/AccountDatabase.h"
#include "account/AccountRecorder.h"
#include "account/AccountStore.h"
#include "account/Favourites.h"
#include "Benchmark.h"
#include "pages/HomePage.h"

using namespace Dashboard;

namespace
{

const int MANY_ENTRIES = 100000;
const int FEW_ENTRIES = 100;
const int DAYS = 365;
const char SIM[] = "sim";
const char CODE[] = "*100#";
const QDateTime NOW(QDate(2026, 11, 21), QTime(14, 32));

AccountEntry entryAt(const QDateTime &time)
{
    AccountEntry entry;
    entry.askedAt = time;
    entry.code = QLatin1String(CODE);
    entry.text = QLatin1String("Balance: 12.50 EUR. Valid until 31.12.2027.");
    entry.reading = readReply(entry.text);
    return entry;
}

/// Fills the database with `count` entries. The program itself creates the schema and one entry per
/// day of the last year. A single SQL statement then adds copies of the latest entry, because
/// the program would need a transaction for each entry, which waits for the disk.
void fill(const QString &file, int count)
{
    {
        AccountDatabase database(file);
        for (int day = DAYS; day >= 0; --day)
            database.add(QLatin1String(SIM), entryAt(NOW.addDays(-day)));
    }
    const QString name = QLatin1String("fill");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), name);
        database.setDatabaseName(file);
        QSqlQuery query(database.open() ? database : QSqlDatabase());
        const QString columns = QLatin1String("sim, code, units, decimals, currency, validity, "
                                              "number_end, data_left, data_total, text");
        query.exec(QLatin1String("DELETE FROM entry WHERE id > ") + QString::number(count));
        const bool isFilled = query.exec(
            QString::fromLatin1(
                "WITH RECURSIVE n(i) AS (SELECT %1 UNION ALL SELECT i + 1 FROM n WHERE i < %2) "
                "INSERT INTO entry (asked, %3) SELECT (SELECT max(asked) FROM entry) - i * 300000, "
                "%3 FROM n, (SELECT * FROM entry ORDER BY id DESC LIMIT 1)")
                .arg(qMin(DAYS + 2, count))
                .arg(count)
                .arg(columns));
        if (!isFilled || !query.exec(QLatin1String("SELECT count(*) FROM entry")) || !query.next())
            qFatal("cannot fill the database");
        if (qAbs(query.value(0).toInt() - count) > 2)
            qFatal("%d entries instead of %d", query.value(0).toInt(), count);
    }
    QSqlDatabase::removeDatabase(name);
}

/** A front page that shows the replies in a database file. */
class Front
{
public:
    explicit Front(const QString &file)
        : m_store(file), m_recorder(&m_store), m_favourites(QString())
    {
        m_store.setClock([] { return NOW; });
        m_store.setSim(QLatin1String(SIM), AccountStore::Keeping::InFile);
        HomePage::Parts parts;
        parts.store = &m_store;
        parts.recorder = &m_recorder;
        parts.favourites = &m_favourites;
        m_page.reset(new HomePage(parts));
        AccountCodes codes;
        codes.balance = QLatin1String(CODE);
        m_page->setCodes(codes);
        Situation situation;
        situation.canSend = true;
        m_page->setSituation(situation);
        m_page->resize(1000, 700);
    }

    void open()
    {
        m_page->show();
        QCoreApplication::processEvents();
        m_page->grab();
        if (m_store.newestBalance().isNull())
            qFatal("the page has no balance");
    }

private:
    AccountStore m_store;
    AccountRecorder m_recorder;
    Favourites m_favourites;
    std::unique_ptr<HomePage> m_page;
};

double open(const QString &file)
{
    Front front(file);
    return Benchmark::microseconds([&front] { front.open(); });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Benchmark::dropMessages();
    const QTemporaryDir folder;
    const QString many = folder.filePath(QLatin1String("many/replies.sqlite"));
    const QString few = folder.filePath(QLatin1String("few/replies.sqlite"));
    fill(many, MANY_ENTRIES);
    fill(few, FEW_ENTRIES);
    Benchmark::compare(
        Benchmark::Title("front page opened with 100,000 replies", "with 100 replies", 1.2),
        [&many] { return open(many); }, [&few] { return open(few); });
    return 0;
}
