#include "UssdTest.h"

#include <QRegExp>

#include "TopUpInputLimits.h"
#include "windows/OnlineLink.h"
#include "windows/PostpaidReply.h"

using namespace Formats;

namespace
{

TopUpInputLimits rules(int length, int minlenth, const char *limitText = "0-9")
{
    TopUpInputLimits result;
    result.length = length;
    result.minlenth = minlenth;
    result.limitText = QString::fromLatin1(limitText);
    return result;
}

} // namespace

/** Tests the rules of the account window without creating the window. */
class PrepaidRulesTest : public UssdTest
{
    Q_OBJECT

private slots:
    void chargeNeedsTheSmallerOfLengthAndMinlenth_data();
    void chargeNeedsTheSmallerOfLengthAndMinlenth();
    void longestChargeIsNeverNegative();
    void chargeExpressionIsMadeOfItsPieces();
    void chargeExpressionCanBeBroken_data();
    void chargeExpressionCanBeBroken();
    void onlyACountedClassIsUsable_data();
    void onlyACountedClassIsUsable();
    void hostileLimitTextIsRefusedAtOnce();
    void enormousLengthIsCutToWhatCanBeCounted();

    void addressGetsASchemeUnlessItHasOne_data();
    void addressGetsASchemeUnlessItHasOne();
    void linkSaysNoMoreThanItsAddress();

    void replyTellsPostpaid_data();
    void replyTellsPostpaid();
};

void PrepaidRulesTest::chargeNeedsTheSmallerOfLengthAndMinlenth_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("minlenth");
    QTest::addColumn<int>("needed");
    QTest::newRow("16, 12") << 16 << 12 << 12;
    QTest::newRow("8, 12") << 8 << 12 << 8;
    QTest::newRow("12, 12") << 12 << 12 << 12;
    QTest::newRow("0, 12") << 0 << 12 << 0;
    QTest::newRow("-4, 12") << -4 << 12 << 0;
    QTest::newRow("16, 0") << 16 << 0 << 0;
}

void PrepaidRulesTest::chargeNeedsTheSmallerOfLengthAndMinlenth()
{
    QFETCH(int, length);
    QFETCH(int, minlenth);
    QFETCH(int, needed);
    QVERIFY(isChargeLongEnough(rules(length, minlenth), needed));
    QVERIFY(!isChargeLongEnough(rules(length, minlenth), needed - 1));
}

void PrepaidRulesTest::longestChargeIsNeverNegative()
{
    QCOMPARE(longestCharge(rules(16, 12)), 16);
    QCOMPARE(longestCharge(rules(-1, 12)), 0);
}

void PrepaidRulesTest::chargeExpressionIsMadeOfItsPieces()
{
    QCOMPARE(chargeExpression(rules(16, 12)), QStringLiteral("[0-9]{0,16}"));
    QVERIFY(QRegExp(chargeExpression(rules(16, 12))).isValid());
}

void PrepaidRulesTest::chargeExpressionCanBeBroken_data()
{
    QTest::addColumn<QByteArray>("limitText");
    QTest::addColumn<int>("length");
    QTest::newRow("empty") << QByteArray() << 16;
    QTest::newRow("half an escape") << QByteArray("0-9\\") << 16;
    QTest::newRow("another class") << QByteArray("0-9](") << 16;
    QTest::newRow("negative length") << QByteArray("0-9") << -1;
}

void PrepaidRulesTest::chargeExpressionCanBeBroken()
{
    QFETCH(QByteArray, limitText);
    QFETCH(int, length);
    QVERIFY(!QRegExp(chargeExpression(rules(length, 0, limitText.constData()))).isValid());
}

void PrepaidRulesTest::onlyACountedClassIsUsable_data()
{
    QTest::addColumn<QByteArray>("limitText");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("usable");
    QTest::newRow("digits") << QByteArray("0-9") << 16 << true;
    QTest::newRow("bracket in the first place") << QByteArray("]0-9") << 16 << true;
    QTest::newRow("nothing but") << QByteArray("^0-9") << 16 << true;
    QTest::newRow("no length") << QByteArray("0-9") << 0 << true;
    QTest::newRow("negative length") << QByteArray("0-9") << -1 << false;
    QTest::newRow("empty") << QByteArray() << 16 << false;
    QTest::newRow("half an escape") << QByteArray("0-9\\") << 16 << false;
    // A valid regular expression, but not a single character class.
    QTest::newRow("two classes") << QByteArray("0-9]|[a-z") << 16 << false;
    QTest::newRow("back reference") << QByteArray("a](b*)*\\1[c") << 16 << false;
    QTest::newRow("very long") << QByteArray(1001, '7') << 16 << false;
}

void PrepaidRulesTest::onlyACountedClassIsUsable()
{
    QFETCH(QByteArray, limitText);
    QFETCH(int, length);
    QTEST(isChargeExpressionUsable(rules(length, 0, limitText.constData())), "usable");
}

/// Tests that a limit text that would expand to a billion characters is rejected.
void PrepaidRulesTest::hostileLimitTextIsRefusedAtOnce()
{
    QVERIFY(!isChargeExpressionUsable(rules(16, 12, "a]|((a{1000}){1000}){1000}|[b")));
}

void PrepaidRulesTest::enormousLengthIsCutToWhatCanBeCounted()
{
    for (int length : {1025, 100000, 2147483647}) {
        QCOMPARE(chargeExpression(rules(length, 12)), QStringLiteral("[0-9]{0,1024}"));
        QVERIFY(isChargeExpressionUsable(rules(length, 12)));
    }
    QCOMPARE(chargeExpression(rules(1024, 12)), QStringLiteral("[0-9]{0,1024}"));
}

void PrepaidRulesTest::addressGetsASchemeUnlessItHasOne_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QString>("address");
    const char *const rows[][2] = {{"www.example.com", "http://www.example.com"},
                                   {"http://example.com", "http://example.com"},
                                   {"https://example.com", "https://example.com"},
                                   {"HTTPS://Example.com", "HTTPS://Example.com"},
                                   {"hTtPs://example.com", "hTtPs://example.com"},
                                   {"httpd.example.com", "httpd.example.com"},
                                   {"http", "http://http"},
                                   {"ftp://example.com", "http://ftp://example.com"},
                                   {"javascript:alert(1)", "http://javascript:alert(1)"},
                                   {"", "about:blank"},
                                   {" \n\t", "about:blank"},
                                   {"about:blank", "about:blank"},
                                   {" About:BLANK ", "About:BLANK"},
                                   {"  example.com\n", "http://example.com"}};
    for (const auto &row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
}

void PrepaidRulesTest::addressGetsASchemeUnlessItHasOne()
{
    QFETCH(QString, configured);
    QTEST(onlineAddress(configured), "address");
}

void PrepaidRulesTest::linkSaysNoMoreThanItsAddress()
{
    QCOMPARE(onlineLinkMarkup(QStringLiteral("http://a?b=%2&c=1"), QStringLiteral("http://a?b…")),
             QStringLiteral("<a href=\"http://a?b=%2&amp;c=1\">http://a?b…</a>"));
    QCOMPARE(onlineLinkMarkup(QStringLiteral("x\"><img src=\"y"), QStringLiteral("<b>")),
             QStringLiteral("<a href=\"x&quot;&gt;&lt;img src=&quot;y\">&lt;b&gt;</a>"));
}

void PrepaidRulesTest::replyTellsPostpaid_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("isPostpaid");
    const QString digit = QStringLiteral("\"\\d\"");
    const QString word = QStringLiteral("PREPAID");
    QTest::newRow("digit") << digit << QStringLiteral("Balance 5") << false;
    QTest::newRow("arabic digit") << digit << QStringLiteral("رصيدك ٥") << false;
    QTest::newRow("no digit") << digit << QStringLiteral("Contract") << true;
    QTest::newRow("empty reply") << digit << QString() << true;
    QTest::newRow("equal") << word << word << false;
    QTest::newRow("not equal") << word << QStringLiteral("PREPAID.") << true;
    QTest::newRow("other case") << word << QStringLiteral("Prepaid") << true;
    QTest::newRow("pattern without quotes") << QStringLiteral("\\d") << QStringLiteral("5") << true;
    QTest::newRow("no pattern") << QString() << QStringLiteral("5") << true;
}

void PrepaidRulesTest::replyTellsPostpaid()
{
    QFETCH(QString, pattern);
    QFETCH(QString, reply);
    QTEST(isPostpaidReply(reply, pattern), "isPostpaid");
}

USSD_TEST_MAIN(PrepaidRulesTest)

#include "prepaid_rules_test.moc"
