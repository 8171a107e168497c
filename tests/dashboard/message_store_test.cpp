#include <QFileInfo>
#include <QSignalSpy>

#include "Languages.h"
#include "messages/MessageDatabase.h"
#include "messages/MessageStore.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const QDateTime NOON(QDate(2026, 11, 21), QTime(12, 0));
const QString SENDER = QLatin1String("Meridian Mobile");
const QString SIM = QLatin1String("sim-one");

} // namespace

/** Tests that messages are stored, found and removed, and that only their owner can read them. */
class MessageStoreTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override { m_store.reset(); }

private slots:
    void withoutAMessageThereIsNoFile();
    void aMessageIsKept();
    void onlyTheOwnerReadsTheFile();
    void theNewestComesFirst();
    void pagesFollowEachOther();
    void wordsAreFoundInSenderAndText_data();
    void wordsAreFoundInSenderAndText();
    void unreadMessagesAreCounted();
    void oneMessageWaitsForAnAnswer();
    void aStaleQuestionDoesNotWait();
    void eachSimHasItsMessages();
    void messagesBeforeTheSimIsKnownGetTheirSim();
    void oldMessagesAreRemoved();
    void aTextCannotSteerWhatIsShown();
    void aMessageWithoutItsTextIsKept();
    void withoutHistoryNothingIsWritten();
    void everythingIsDeleted();
    void aDamagedFileIsSetAside_data();
    void aDamagedFileIsSetAside();
    void aFileDamagedInTheMiddleIsSetAside();
    void aFileOfALaterVersionIsLeftAlone();
    void aFileThatCannotBeWrittenIsSaid();
    void deletedTextsAreOverwritten();
    void numbersAreInMemoryOnly();

private:
    void open();
    QString file() { return folder() + QLatin1String("/data/messages.sqlite"); }
    Message add(const QString &text, const QDateTime &at = NOON, bool waits = false)
    {
        return m_store->add(SENDER, text, at, waits);
    }
    QStringList texts(const MessageQuery &query = MessageQuery(), const Message &after = Message(),
                      int limit = 100);

    QScopedPointer<MessageStore> m_store;
};

void MessageStoreTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    open();
}

void MessageStoreTest::open()
{
    m_store.reset(); // two stores must not write to the same file
    m_store.reset(new MessageStore(file()));
    m_store->setClock([] { return NOON; });
    m_store->setSim(SIM);
}

QStringList MessageStoreTest::texts(const MessageQuery &query, const Message &after, int limit)
{
    QStringList texts;
    for (const Message &message : m_store->older(query, after, limit))
        texts << message.text;
    return texts;
}

void MessageStoreTest::withoutAMessageThereIsNoFile()
{
    QVERIFY(m_store->newest().isNull());
    QCOMPARE(m_store->unreadCount(), 0);
    QVERIFY(texts().isEmpty());
    QVERIFY(!QFile::exists(file()));
}

void MessageStoreTest::aMessageIsKept()
{
    const Message before = add(QLatin1String("You have used 90 % of your data pack."));
    open();
    const Message after = m_store->newest();
    QCOMPARE(after.id, before.id);
    QCOMPARE(after.text, before.text);
    QCOMPARE(after.sender, SENDER);
    QCOMPARE(after.receivedAt, NOON);
    QVERIFY(after.isUnread);
}

void MessageStoreTest::onlyTheOwnerReadsTheFile()
{
    add(QLatin1String("secret"));
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(QFileInfo(file()).exists());
    QVERIFY(!(QFileInfo(file()).permissions() & others));
    const QFile::Permissions inFolder = QFile::permissions(QFileInfo(file()).path());
    QVERIFY(!(inFolder & (others | QFile::ExeGroup | QFile::ExeOther)));
}

void MessageStoreTest::theNewestComesFirst()
{
    add(QLatin1String("b"), NOON);
    add(QLatin1String("c"), NOON); // received in the same second as "b"
    add(QLatin1String("a"), NOON.addSecs(-60));
    QCOMPARE(texts(), (QStringList{QLatin1String("c"), QLatin1String("b"), QLatin1String("a")}));
    QCOMPARE(m_store->newest().text, QLatin1String("c"));
}

void MessageStoreTest::pagesFollowEachOther()
{
    for (int i = 0; i < 5; ++i)
        add(QString::number(i), NOON.addSecs(i / 2)); // two messages per second
    QStringList all;
    Message last;
    for (QList<Message> page = m_store->older(MessageQuery(), last, 2); !page.isEmpty();
         page = m_store->older(MessageQuery(), last, 2)) {
        last = page.last();
        for (const Message &message : page)
            all << message.text;
    }
    QCOMPARE(all.join(QLatin1Char(' ')), QLatin1String("4 3 2 1 0"));
}

void MessageStoreTest::wordsAreFoundInSenderAndText_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("count");
    QTest::newRow("text") << QString::fromUtf8("data") << 1;
    QTest::newRow("case") << QString::fromUtf8("DATA") << 1;
    QTest::newRow("other letters") << QString::fromUtf8("ТАРИФ") << 1;
    QTest::newRow("sender") << QString::fromUtf8("meridian") << 2;
    QTest::newRow("no wildcard") << QString::fromUtf8("d%ta") << 0;
    QTest::newRow("a percent sign") << QString::fromUtf8("90 %") << 1;
    QTest::newRow("quote") << QString::fromUtf8("'") << 0;
    QTest::newRow("none") << QString::fromUtf8("roaming") << 0;
}

void MessageStoreTest::wordsAreFoundInSenderAndText()
{
    QFETCH(QString, words);
    add(QLatin1String("90 % of your Data pack"));
    add(QString::fromUtf8("Новый Тариф"));
    MessageQuery query;
    query.words = words;
    QTEST(int(texts(query).size()), "count");
}

void MessageStoreTest::unreadMessagesAreCounted()
{
    QSignalSpy counted(m_store.data(), &MessageStore::unreadCountChanged);
    const Message first = add(QLatin1String("1"));
    add(QLatin1String("2"));
    QCOMPARE(m_store->unreadCount(), 2);
    m_store->markRead(first.id);
    QCOMPARE(m_store->unreadCount(), 1);
    MessageQuery unread;
    unread.filter = MessageQuery::Filter::Unread;
    QCOMPARE(texts(unread), QStringList(QLatin1String("2")));
    m_store->markAllRead();
    QCOMPARE(m_store->unreadCount(), 0);
    QCOMPARE(counted.size(), 4);
    open();
    QCOMPARE(m_store->unreadCount(), 0);
}

void MessageStoreTest::oneMessageWaitsForAnAnswer()
{
    const Message question = add(QLatin1String("1 Yes"), NOON, true);
    QCOMPARE(m_store->waiting(), question.id);
    MessageQuery waiting;
    waiting.filter = MessageQuery::Filter::Waiting;
    QCOMPARE(texts(waiting), QStringList(QLatin1String("1 Yes")));
    m_store->endWaiting();
    QCOMPARE(m_store->waiting(), qint64(0));
    QVERIFY(texts(waiting).isEmpty());
    add(QLatin1String("3 Yes"), NOON, true);
    add(QLatin1String("The session has ended."));
    QCOMPARE(m_store->waiting(), qint64(0));
}

void MessageStoreTest::aStaleQuestionDoesNotWait()
{
    add(QLatin1String("1 Yes"), NOON, true);
    open();
    QCOMPARE(m_store->waiting(), qint64(0));
    QCOMPARE(texts().size(), 1);
}

void MessageStoreTest::eachSimHasItsMessages()
{
    const Message question = add(QLatin1String("one"), NOON, true);
    m_store->setSim(QLatin1String("sim-two"));
    QVERIFY(texts().isEmpty());
    QCOMPARE(m_store->unreadCount(), 0);
    add(QLatin1String("two"));
    m_store->setSim(SIM);
    QCOMPARE(texts(), QStringList(QLatin1String("one")));
    QCOMPARE(m_store->message(question.id).text, QLatin1String("one"));
}

void MessageStoreTest::messagesBeforeTheSimIsKnownGetTheirSim()
{
    m_store->setSim(QString());
    const Message question = add(QLatin1String("early"), NOON, true);
    m_store->setSim(SIM);
    QCOMPARE(texts(), QStringList(QLatin1String("early")));
    QCOMPARE(m_store->waiting(), question.id);
    m_store->setSim(QLatin1String("sim-two"));
    QVERIFY(texts().isEmpty());
}

void MessageStoreTest::oldMessagesAreRemoved()
{
    add(QLatin1String("kept"), NOON.addMonths(-12).addSecs(1));
    add(QLatin1String("old"), NOON.addMonths(-12).addSecs(-1));
    add(QLatin1String("new"));
    QCOMPARE(texts(), (QStringList{QLatin1String("new"), QLatin1String("kept")}));
}

void MessageStoreTest::aTextCannotSteerWhatIsShown()
{
    add(QString::fromUtf8("a\xe2\x80\xaegfed\x1b[31m\x07\nb"));
    const QString text = m_store->newest().text;
    QVERIFY(!text.contains(QChar(0x202e)) && !text.contains(QChar(0x1b)));
    QVERIFY(text.endsWith(QLatin1String("\nb")));
    m_store->add(QString::fromUtf8("Op\xe2\x80\xae\nx"), QString(100000, QLatin1Char('W')), NOON,
                 false);
    QCOMPARE(int(m_store->newest().text.size()), MessageStore::LONGEST_TEXT);
    QVERIFY(!m_store->newest().sender.contains(QChar(0x202e)));
    QVERIFY(!m_store->newest().sender.contains(QLatin1Char('\n')));
}

void MessageStoreTest::aMessageWithoutItsTextIsKept()
{
    m_store->add(QString(), QString(), NOON, true);
    QCOMPARE(texts(), QStringList(QString()));
    QVERIFY(!m_store->file().isEmpty());
}

void MessageStoreTest::withoutHistoryNothingIsWritten()
{
    m_store->setStoring(false);
    add(QLatin1String("only here"));
    QCOMPARE(texts(), QStringList(QLatin1String("only here")));
    QVERIFY(m_store->file().isEmpty());
    QVERIFY(!QFile::exists(file()));
    m_store->setStoring(true);
    QVERIFY(texts().isEmpty());
}

void MessageStoreTest::everythingIsDeleted()
{
    add(QLatin1String("one"), NOON, true);
    m_store->setSim(QLatin1String("sim-two"));
    add(QLatin1String("two"));
    QVERIFY(!writeFile(QLatin1String("data/messages.sqlite.damaged-2026-01-01"), "old").isEmpty());
    QSignalSpy reset(m_store.data(), &MessageStore::reset);
    m_store->removeAll();
    QCOMPARE(reset.size(), 1);
    QCOMPARE(m_store->waiting(), qint64(0));
    QCOMPARE(m_store->unreadCount(), 0);
    QVERIFY(QDir(folder() + QLatin1String("/data")).entryList(QDir::Files).isEmpty());
    add(QLatin1String("after"));
    QCOMPARE(texts(), QStringList(QLatin1String("after")));
}

void MessageStoreTest::aDamagedFileIsSetAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray(5000, 'x');
    QTest::newRow("start only") << QByteArray("SQLite format 3\0\x10\0\x01\x01\0\x40\x20\x20", 24);
}

void MessageStoreTest::aDamagedFileIsSetAside()
{
    QFETCH(QByteArray, content);
    m_store.reset();
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/data")));
    writeFile(QLatin1String("data/messages.sqlite"), content);
    m_store.reset(new MessageStore(file()));
    QSignalSpy problem(m_store.data(), &MessageStore::problem);
    m_store->setSim(SIM);
    QVERIFY(texts().isEmpty());
    add(QLatin1String("new"));
    QCOMPARE(texts(), QStringList(QLatin1String("new")));
    const QString aside =
        file() + QLatin1String(".damaged-") + QDate::currentDate().toString(Qt::ISODate);
    QCOMPARE(contentOf(aside), content);
    QCOMPARE(problem.size(), 1);
    QVERIFY(problem.first().first().toString().contains(aside));
}

void MessageStoreTest::aFileDamagedInTheMiddleIsSetAside()
{
    for (int i = 0; i < 500; ++i)
        add(QString(200, QLatin1Char('a')), NOON.addSecs(i));
    m_store.reset();
    QFile damaged(file());
    QVERIFY(damaged.open(QIODevice::ReadWrite));
    const qint64 page = 4096;
    QVERIFY(damaged.size() > 20 * page && damaged.seek(page));
    damaged.write(QByteArray(int(damaged.size() - page), '\xff'));
    damaged.close();
    m_store.reset(new MessageStore(file()));
    QSignalSpy problem(m_store.data(), &MessageStore::problem);
    m_store->setSim(SIM);
    add(QLatin1String("new"));
    QCOMPARE(texts(), QStringList(QLatin1String("new")));
    QCOMPARE(problem.size(), 1);
}

void MessageStoreTest::aFileOfALaterVersionIsLeftAlone()
{
    add(QLatin1String("one"));
    m_store.reset();
    {
        QSqlDatabase later = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), latin1("later"));
        later.setDatabaseName(file());
        QVERIFY(later.open());
        QVERIFY(QSqlQuery(later).exec(QLatin1String("PRAGMA user_version = 99")));
    }
    QSqlDatabase::removeDatabase(latin1("later"));
    const QByteArray before = contentOf(file());
    open();
    QSignalSpy problem(m_store.data(), &MessageStore::problem);
    add(QLatin1String("two"));
    QCOMPARE(texts(), QStringList(QLatin1String("two")));
    QCOMPARE(problem.size(), 1);
    m_store.reset();
    QCOMPARE(contentOf(file()), before);
}

void MessageStoreTest::aFileThatCannotBeWrittenIsSaid()
{
    writeFile(QLatin1String("data"), "a file in place of the folder");
    QSignalSpy problem(m_store.data(), &MessageStore::problem);
    add(QLatin1String("kept in memory"));
    QCOMPARE(texts(), QStringList(QLatin1String("kept in memory")));
    QCOMPARE(problem.size(), 1);
    QVERIFY(problem.first().first().toString().contains(file()));
    add(QLatin1String("second"));
    QCOMPARE(problem.size(), 1);
}

void MessageStoreTest::deletedTextsAreOverwritten()
{
    const Message message = add(QLatin1String("DELETED-TEXT"));
    add(QLatin1String("KEPT-TEXT"));
    m_store->remove(message.id);
    m_store.reset();
    QVERIFY(contentOf(file()).contains("KEPT-TEXT"));
    QVERIFY(!contentOf(file()).contains("DELETED-TEXT"));
}

void MessageStoreTest::numbersAreInMemoryOnly()
{
    const QString text = QLatin1String("Missed call from +999551846203. You have 12.50 EUR.");
    const Message message = add(text);
    QCOMPARE(message.text, text);
    QCOMPARE(m_store->newest().text, text);
    QVERIFY(contentOf(file()).contains("You have 12.50 EUR"));
    QVERIFY(!contentOf(file()).contains("551846203"));
    open();
    QCOMPARE(m_store->newest().text,
             QString::fromUtf8("Missed call from …6203. You have 12.50 EUR."));
}

USSD_TEST_MAIN(MessageStoreTest)
#include "message_store_test.moc"
