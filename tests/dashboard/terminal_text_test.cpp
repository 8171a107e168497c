#include "TerminalText.h"
#include "UssdTest.h"

class TerminalTextTest : public UssdTest
{
    Q_OBJECT
private slots:
    void readableTextStaysAsItIs_data();
    void readableTextStaysAsItIs();
    void noControlCharacterPasses();
    void noDirectionOverridePasses();
    void lineEndsBecomeLineFeeds_data();
    void lineEndsBecomeLineFeeds();
};

void TerminalTextTest::readableTextStaysAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QString::fromLatin1("  Your balance:\t12.50\n\n*100#  ");
    QTest::newRow("letters") << QString::fromUtf8("Grüße Привет رصيدك 您的余额 €\xc2\xa0");
    QTest::newRow("outside the first plane") << QString::fromUtf8("\xf0\x9f\x98\x80");
    QTest::newRow("left-to-right mark") << QString(QChar(0x200e));
}

void TerminalTextTest::readableTextStaysAsItIs()
{
    QFETCH(QString, text);
    QCOMPARE(HostCore::terminalText(text), text);
}

void TerminalTextTest::noControlCharacterPasses()
{
    for (ushort unit = 0; unit < 0xa0; ++unit) {
        if ((unit >= 0x20 && unit < 0x7f) || unit == '\n' || unit == '\t' || unit == '\r')
            continue;
        const QString text = QLatin1Char('a') + QString(QChar(unit)) + QLatin1Char('z');
        QCOMPARE(HostCore::terminalText(text), QString::fromUtf8("a\xef\xbf\xbdz"));
    }
}

void TerminalTextTest::noDirectionOverridePasses()
{
    for (const ushort unit :
         {0x202a, 0x202b, 0x202c, 0x202d, 0x202e, 0x2066, 0x2067, 0x2068, 0x2069})
        QCOMPARE(HostCore::terminalText(QString(QChar(unit))), QString(QChar(0xfffd)));
}

void TerminalTextTest::lineEndsBecomeLineFeeds_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("CR LF") << QString::fromLatin1("\r\n");
    QTest::newRow("CR") << QString::fromLatin1("\r");
    QTest::newRow("line separator") << QString(QChar(0x2028));
    QTest::newRow("paragraph separator") << QString(QChar(0x2029));
}

void TerminalTextTest::lineEndsBecomeLineFeeds()
{
    QFETCH(QString, end);
    QCOMPARE(HostCore::terminalText(QLatin1String("1") + end + QLatin1String("2")),
             QLatin1String("1\n2"));
}

USSD_TEST_MAIN(TerminalTextTest)
#include "terminal_text_test.moc"
