#include <QDir>
#include <QSignalSpy>

#include "account/AccountRecorder.h"
#include "account/AccountStore.h"
#include "Languages.h"
#include "plugin/CodeForms.h"
#include "plugin/ReplyTap.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

Reply reply(const char *text)
{
    Reply result;
    result.text = QString::fromUtf8(text);
    result.isReceived = true;
    return result;
}

QString code(const char *text)
{
    return QLatin1String(text);
}

} // namespace

/** Tests which replies are stored, and which values are read from them. */
class AccountRecorderTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override
    {
        m_files.configuration = latin1(CONFIGURATION);
        m_files.systemProfiles = latin1(PROFILES);
        m_store.reset(new AccountStore(QString()));
        m_store->setSim(QLatin1String("sim"), AccountStore::Keeping::InMemory);
        m_recorder.reset(new AccountRecorder(m_store.data()));
        m_recorder->setCodes(readAccountCodes(m_files, PaidType::Prepaid));
    }

private slots:
    void codesOfThePrepaidAccount();
    void codesOfThePostpaidAccount();
    void codesOfAnUnknownContract();
    void codesOfThePlainFolder();
    void ownCodesAreAdded();
    void everyCodeIsATemplate();
    void namesFollowTheLanguage();
    void aReplyToTheBalanceCodeIsKept();
    void otherRepliesAreNotKept();
    void anotherCodeMayChangeTheBalance_data();
    void anotherCodeMayChangeTheBalance();
    void aCodeWithoutAReplyMayChangeTheBalance();
    void eachCodeTellsItsOwnValues();
    void aLowBalanceIsReportedOnce();
    void aLimitIsNeeded();
    void patternsWin();
    void aBadPatternIsIgnored();

private:
    CodeFiles m_files;
    QScopedPointer<AccountStore> m_store;
    QScopedPointer<AccountRecorder> m_recorder;
};

void AccountRecorderTest::codesOfThePrepaidAccount()
{
    const AccountCodes codes = readAccountCodes(m_files, PaidType::Prepaid);
    QCOMPARE(codes.balance, code("*100#"));
    QCOMPARE(codes.number, code("*102#"));
    QCOMPARE(codes.data, code("*104#"));
    QCOMPARE(codes.validity, code("*105#"));
    QVERIFY(codes.hasTopUp);
    QCOMPARE(codes.all.size(), 11);
    QVERIFY(codes.all.last().takesNumber());
}

void AccountRecorderTest::codesOfThePostpaidAccount()
{
    QCOMPARE(readAccountCodes(m_files, PaidType::Postpaid).balance, code("*110#"));
}

void AccountRecorderTest::codesOfAnUnknownContract()
{
    QCOMPARE(readAccountCodes(m_files, PaidType::Unknown).balance, code("*100#"));
}

void AccountRecorderTest::codesOfThePlainFolder()
{
    m_files.configuration = latin1(PLAIN_CONFIGURATION);
    m_files.systemProfiles = latin1(PLAIN_PROFILES);
    const AccountCodes codes = readAccountCodes(m_files, PaidType::Prepaid);
    QVERIFY(codes.balance.isEmpty());
    QVERIFY(codes.number.isEmpty());
    QVERIFY(!codes.hasTopUp);
    QVERIFY(!codes.asksForAccount(QString()));
}

void AccountRecorderTest::ownCodesAreAdded()
{
    m_files.userProfiles = writeFile(
        QLatin1String("own.xml"),
        "<tksvdoc><item><name>My pack</name><value>*555*1#</value><readonly>false</readonly>"
        "<showButton>false</showButton><langID></langID><desLangID></desLangID></item>"
        "<item><name>Twin</name><value>*100#</value><readonly>false</readonly>"
        "<showButton>false</showButton><langID></langID><desLangID></desLangID></item></tksvdoc>");
    const AccountCodes codes = readAccountCodes(m_files, PaidType::Prepaid);
    QCOMPARE(codes.all.size(), 12);
    QCOMPARE(codes.all.last().name, QLatin1String("My pack"));
    QVERIFY(codes.all.last().isOwn);
}

/// Tests that the codes by which the history decides which digits to hide include all codes.
void AccountRecorderTest::everyCodeIsATemplate()
{
    m_files.userProfiles =
        writeFile(QLatin1String("own.xml"),
                  "<tksvdoc><item><name>Mine</name><value>*7*%s#</value><readonly>false</readonly>"
                  "<showButton>false</showButton><langID></langID><desLangID></desLangID></item>"
                  "</tksvdoc>");
    QFile configuration(latin1(CONFIGURATION));
    QVERIFY(configuration.open(QIODevice::ReadOnly));
    m_files.configuration =
        writeFile(QLatin1String("configuration.xml"), configuration.readAll()
                                                          .replace("*101*%s#", "*191*%s#")
                                                          .replace("*100#", "*100*1234#")
                                                          .replace("*102#", "*102*1234#"));
    const QStringList codes = readTemplates(m_files);
    QVERIFY2(codes.contains(code("*140*%s#")), qPrintable(codes.join(QLatin1Char(' '))));
    QVERIFY(codes.contains(code("*7*%s#")));
    QVERIFY2(codes.contains(code("*191*%s#")), qPrintable(codes.join(QLatin1Char(' '))));
    for (const char *fixed : {"*100#", "*100*1234#", "*102*1234#"})
        QVERIFY2(codes.contains(code(fixed)), fixed);
    QCOMPARE(codeWithoutNumbers(code("*100*1234#"), codes), QLatin1String("*100*1234#"));
    QCOMPARE(codeWithoutNumbers(code("*191*12#"), codes), QString::fromUtf8("*191*…#"));
}

void AccountRecorderTest::namesFollowTheLanguage()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("de")));
    const QString german = readAccountCodes(m_files, PaidType::Prepaid).all.first().name;
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QCOMPARE(readAccountCodes(m_files, PaidType::Prepaid).all.first().name,
             QLatin1String("Balance"));
    QVERIFY(german != QLatin1String("Balance"));
}

void AccountRecorderTest::aReplyToTheBalanceCodeIsKept()
{
    m_recorder->record(code("*100#"), reply("Balance: 12.50 EUR"));
    QCOMPARE(m_store->newest(code("*100#")).reading.amount->units, qint64(125000));
    m_recorder->record(code("*100#"), reply("Please try later."));
    QVERIFY(!m_store->newest(code("*100#")).reading.amount);
    QCOMPARE(m_store->newest(code("*100#")).text, QLatin1String("Please try later."));
    QCOMPARE(m_store->newestBalance().reading.amount->units, qint64(125000));
}

void AccountRecorderTest::otherRepliesAreNotKept()
{
    QSignalSpy changed(m_store.data(), &AccountStore::changed);
    m_recorder->record(code("*101*123456789012#"), reply("Balance: 12.50 EUR"));
    m_recorder->record(code("*123#"), reply("Balance: 12.50 EUR"));
    m_recorder->record(QString(), reply("Balance: 12.50 EUR"));
    m_recorder->record(code("*100#"), reply(""));
    Reply menu = reply("Balance: 12.50 EUR\n1 More");
    menu.asksForAnswer = true;
    m_recorder->record(code("*100#"), menu);
    QCOMPARE(changed.size(), 0);
}

void AccountRecorderTest::anotherCodeMayChangeTheBalance_data()
{
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isMenu");
    QTest::addColumn<bool>("isOutdated");
    const auto row = [](const char *sent, const char *text, bool isOutdated, bool isMenu = false) {
        QTest::addRow("%s%s", *sent ? sent : "message", isMenu ? ", a menu" : "")
            << code(sent) << code(text) << isMenu << isOutdated;
    };
    row("*101*123456789012#", "Balance: 22.50 EUR", true);
    row("*101*123456789012#", "Thank you.\n1 Buy a pack\n2 End", true, true);
    row("*124*1#", "Booked.", true);
    row("*123#", "1 Day\n2 Week", false, true);
    row("*102#", "1 Your number\n2 Other numbers", false, true);
    row("1", "Booked.\n0 Back\n# End", true, true); // an answer may already have bought something
    row("2", "A week booked. Balance: 7.50 EUR", true); // the answer to a menu
    row("*199#", "", false);                            // refused
    row("", "Balance: 7.50 EUR", false);                // a network-initiated message
    row("*102#", "Your number is +999551846203", false);
    row("*104#", "1.8 GB of 2 GB left", false);
    row("*103#", "Prepaid account", false); // the dashboard may send this query automatically
}

/// Tests that the reply to another code marks the balance as outdated, but that the amount in this
/// reply never replaces the balance.
void AccountRecorderTest::anotherCodeMayChangeTheBalance()
{
    QFETCH(QString, sent);
    QFETCH(QString, text);
    QFETCH(bool, isMenu);
    QFETCH(bool, isOutdated);
    Reply received = reply(text.toUtf8().constData());
    received.asksForAnswer = isMenu;
    m_recorder->record(sent, received);
    QVERIFY(!m_store->isOutdated()); // the balance has not been queried yet
    m_recorder->record(code("*100#"), reply("Balance: 12.50 EUR"));
    QVERIFY(!m_store->isOutdated());
    m_recorder->record(sent, received);
    QCOMPARE(m_store->isOutdated(), isOutdated);
    QCOMPARE(m_store->newestBalance().reading.amount->units, qint64(125000));
    m_recorder->record(code("*100#"), reply("Please try later."));
    QVERIFY(!m_store->isOutdated()); // the card shows the new reply instead of a balance
}

void AccountRecorderTest::aCodeWithoutAReplyMayChangeTheBalance()
{
    m_recorder->record(code("*100#"), reply("Balance: 12.50 EUR"));
    for (const char *harmless : {"*100#", "*102#", "*103#", ""})
        m_recorder->recordUnanswered(code(harmless));
    QVERIFY(!m_store->isOutdated());
    m_recorder->recordUnanswered(code("*124*1#"));
    QVERIFY(m_store->isOutdated());
}

void AccountRecorderTest::eachCodeTellsItsOwnValues()
{
    const char text[] = "Your number +999550123456 has a balance of 12.50 EUR valid until "
                        "2027-12-31. You have 1.8 GB left.";
    for (const char *asked : {"*100#", "*102#", "*104#", "*105#"})
        m_recorder->record(code(asked), reply(text));
    const auto reading = [this](const char *asked) { return m_store->newest(code(asked)).reading; };
    QVERIFY(reading("*100#").amount && reading("*100#").date && !reading("*100#").number);
    QVERIFY(!reading("*102#").amount && !reading("*102#").date && reading("*102#").number);
    QVERIFY(!reading("*104#").amount && !reading("*104#").date && reading("*104#").data);
    QVERIFY(!reading("*105#").amount && reading("*105#").date);
}

void AccountRecorderTest::aLowBalanceIsReportedOnce()
{
    QSignalSpy low(m_recorder.data(), &AccountRecorder::lowBalance);
    m_recorder->setLowBalance(QLatin1String("5"));
    m_recorder->record(code("*100#"), reply("Balance: 5.00 EUR"));
    QCOMPARE(low.size(), 0);
    m_recorder->record(code("*100#"), reply("Balance: 4.99 EUR"));
    m_recorder->record(code("*100#"), reply("Balance: 4.50 EUR"));
    QCOMPARE(low.size(), 1);
    QVERIFY(low.first().first().toString().contains(QLatin1String("4.99")));
    m_recorder->record(code("*100#"), reply("Balance: 20.00 EUR"));
    m_recorder->record(code("*100#"), reply("Balance: 1.00 EUR"));
    QCOMPARE(low.size(), 2);
}

void AccountRecorderTest::aLimitIsNeeded()
{
    QSignalSpy low(m_recorder.data(), &AccountRecorder::lowBalance);
    for (const char *limit : {"", "no amount"}) {
        m_recorder->setLowBalance(QLatin1String(limit));
        m_recorder->record(code("*100#"), reply("Balance: 0.00 EUR"));
    }
    QCOMPARE(low.size(), 0);
}

void AccountRecorderTest::patternsWin()
{
    const ReplyPatterns patterns = ReplyPatterns::fromFile(
        writeFile(QLatin1String("replies.patterns"), "# USSD reply patterns\n"
                                                     "balance = Konto (?<value>[0-9,]+)\n"
                                                     "currency = EUR\n"
                                                     "validity = bis (?<value>[0-9.]+)\n"
                                                     "validity-format = dd.MM.yy\n"
                                                     "data-left = Rest (?<value>[0-9.]+ MB)\n"));
    const ReplyReading reading =
        patterns.read(QLatin1String("Balance 9.99 EUR Konto 12,50 bis 31.12.27 Rest 512 MB"));
    QCOMPARE(plainAmount(*reading.amount), QLatin1String("12.50"));
    QCOMPARE(reading.amount->currency, QLatin1String("EUR"));
    QCOMPARE(*reading.date, QDate(2027, 12, 31));
    QCOMPARE(reading.data->left, qint64(512) << 20);
    // The operator's pattern replaces the general rules, so no balance is read from this reply.
    QVERIFY(!patterns.read(QLatin1String("Balance: 9.99 EUR")).amount);
    QVERIFY(patterns.read(QLatin1String("+999550123456")).number);
}

void AccountRecorderTest::aBadPatternIsIgnored()
{
    const ReplyPatterns patterns = ReplyPatterns::fromFile(
        writeFile(QLatin1String("replies.patterns"), "balance = Konto (?<value>[0-9,]+\n"
                                                     "validity = ([0-9.]+)\nno line\n"));
    QVERIFY(patterns.read(QLatin1String("Balance: 9.99 EUR")).amount);
    QVERIFY(patterns.read(QLatin1String("Valid until 31.12.2027")).date);
    const ReplyPatterns none = ReplyPatterns::fromFile(QLatin1String("/nonexistent"));
    QVERIFY(none.read(QLatin1String("Balance: 9.99 EUR")).amount);
}

USSD_TEST_MAIN(AccountRecorderTest)
#include "account_recorder_test.moc"
