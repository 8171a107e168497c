#include <QLineEdit>
#include <QRegExp>

#include "QtCompat.h"
#include "SmsLayout.h"
#include "TopUpInputLimits.h"
#include "UssdTest.h"

using namespace Formats;

/**
 * Tests that patterns in a configuration file have the same meaning with every version of Qt. The
 * expected results in the table are those of QRegExp in Qt 5. Other regular expression classes give
 * different results in several cases.
 */
class PatternsTest : public UssdTest
{
    Q_OBJECT

private slots:
    void patternMeansTheSame_data();
    void patternMeansTheSame();
    void fieldTakesWhatTheValidatorAccepts();
    void validatorTakesAnotherPattern();
    void limitsOfTheTopUpField();
    void limitsOfAServiceField();
};

namespace
{

struct Row {
    const char *pattern;
    const char *text;
    bool isValid;
    bool isMatch;
    QValidator::State state;
};

const Row ROWS[] = {
    {"[0-9]{0,16}", "", true, true, QValidator::Acceptable},
    {"[0-9]{0,16}", "12", true, true, QValidator::Acceptable},
    {"[0-9]{0,16}", "1234567890123456", true, true, QValidator::Acceptable},
    {"[0-9]{0,16}", "12345678901234567", true, false, QValidator::Invalid},
    {"[0-9]{0,16}", "12a", true, false, QValidator::Invalid},
    {"[0-9]{0,16}", "\331\243", true, false, QValidator::Invalid},
    {"[0-9]{0,0}", "", true, true, QValidator::Acceptable},
    {"[0-9]{0,0}", "1", true, false, QValidator::Invalid},
    {"[\\d]{0,4}", "12", true, true, QValidator::Acceptable},
    {"[\\d]{0,4}", "\331\243\331\244", true, true, QValidator::Acceptable},
    {"[\\d]{0,4}", "x", true, false, QValidator::Invalid},
    {"[\\w]{0,4}", "a_1", true, true, QValidator::Acceptable},
    {"[\\w]{0,4}", "\303\251\320\266", true, true, QValidator::Acceptable},
    {"[\\w]{0,4}", "-", true, false, QValidator::Invalid},
    {"[\\w]{0,4}", "abcde", true, false, QValidator::Invalid},
    {"[\\D]{0,4}", "ab", true, true, QValidator::Acceptable},
    {"[\\D]{0,4}", "a1", true, false, QValidator::Invalid},
    {"[^0-9]{0,4}", "ab", true, true, QValidator::Acceptable},
    {"[^0-9]{0,4}", "a1", true, false, QValidator::Invalid},
    {"[0-9*#+]{0,8}", "*100#", true, true, QValidator::Acceptable},
    {"[0-9*#+]{0,8}", "+49", true, true, QValidator::Acceptable},
    {"[0-9*#+]{0,8}", "1-2", true, false, QValidator::Invalid},
    {"[]0-9]{0,8}", "1]2", true, true, QValidator::Acceptable},
    {"[]0-9]{0,8}", "[", true, false, QValidator::Invalid},
    {"[a-zA-Z]{0,8}", "aZ", true, true, QValidator::Acceptable},
    {"[a-zA-Z]{0,8}", "a1", true, false, QValidator::Invalid},
    {"[a-zA-Z]{0,8}", "\303\244", true, false, QValidator::Invalid},
    {"[\\x0041-\\x0043]{0,4}", "ABC", true, true, QValidator::Acceptable},
    {"[\\x0041-\\x0043]{0,4}", "D", true, false, QValidator::Invalid},
    {"[0-9 ]{0,5}", "1 2", true, true, QValidator::Acceptable},
    {"[0-9 ]{0,5}", "1\0112", true, false, QValidator::Invalid},
    {"[\\s]{0,5}", " \011", true, true, QValidator::Acceptable},
    {"[\\s]{0,5}", "\302\240", true, true, QValidator::Acceptable},
    {"[\\s]{0,5}", "x", true, false, QValidator::Invalid},
    {"[9-0]{0,4}", "5", true, true, QValidator::Acceptable},
    {"[9-0]{0,4}", "95", true, true, QValidator::Acceptable},
    {"[0-9]{0,1001}", "1", true, true, QValidator::Acceptable},
    {"[0-9]{4,2}", "123", false, false, QValidator::Invalid},
    {"[]{0,4}", "a", false, false, QValidator::Invalid},
    {"[0-9", "1", false, false, QValidator::Invalid},
    {".{0,3}", "abc", true, true, QValidator::Acceptable},
    {".{0,3}", "a\nb", true, true, QValidator::Acceptable},
    {".{0,3}", "abcd", true, false, QValidator::Invalid},
    {"[.]{0,3}", "...", true, true, QValidator::Acceptable},
    {"[.]{0,3}", "a", true, false, QValidator::Invalid},
    {"[\\]\\\\]{0,3}", "]\\", true, true, QValidator::Acceptable},
    {"[\\]\\\\]{0,3}", "[", true, false, QValidator::Invalid},
    {"[0-9-]{0,4}", "1-2", true, true, QValidator::Acceptable},
    {"[0-9-]{0,4}", "+", true, false, QValidator::Invalid},
    {"[\331\240-\331\251]{0,4}", "\331\243", true, true, QValidator::Acceptable},
    {"[\331\240-\331\251]{0,4}", "3", true, false, QValidator::Invalid},
    {"[:digit:]{0,4}", "12", true, false, QValidator::Invalid},
    {"[:digit:]{0,4}", "dig:", true, true, QValidator::Acceptable},
    {"[[:digit:]]{0,4}", "12", false, false, QValidator::Invalid},
    {"[[:digit:]]{0,4}", "d]", false, false, QValidator::Invalid},
    {"\\d{2}", "1", true, false, QValidator::Intermediate},
    {"\\d{2}", "12", true, true, QValidator::Acceptable},
    {"\\d{2}", "123", true, false, QValidator::Invalid},
};

} // namespace

void PatternsTest::patternMeansTheSame_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(sizeof(ROWS) / sizeof(ROWS[0])); ++i)
        QTest::addRow("%s \"%s\"", ROWS[i].pattern, ROWS[i].text) << i;
}

void PatternsTest::patternMeansTheSame()
{
    QFETCH(int, index);
    const Row &row = ROWS[index];
    const QRegExp pattern(QString::fromUtf8(row.pattern), Qt::CaseSensitive);
    const QtCompat::RegExpValidator validator(pattern, nullptr);
    QString text = QString::fromUtf8(row.text);
    int position = 0;
    QCOMPARE(pattern.isValid(), row.isValid);
    QCOMPARE(pattern.exactMatch(text), row.isMatch);
    QCOMPARE(validator.validate(text, position), row.state);
    QCOMPARE(text, QString::fromUtf8(row.text));
    QCOMPARE(position, row.state == QValidator::Invalid ? int(text.size()) : 0);
}

/// Tests that a line edit accepts only the characters that its validator permits. The characters
/// are typed one at a time, as a user would type them.
void PatternsTest::fieldTakesWhatTheValidatorAccepts()
{
    QLineEdit edit;
    QtCompat::RegExpValidator validator(QRegExp(QLatin1String("[0-9]{0,3}")), nullptr);
    edit.setValidator(&validator);
    QTest::keyClicks(&edit, QStringLiteral("1x2-345"));
    QCOMPARE(edit.text(), QStringLiteral("123"));
    QVERIFY(edit.hasAcceptableInput());
}

void PatternsTest::validatorTakesAnotherPattern()
{
    QtCompat::RegExpValidator validator(nullptr);
    QSignalSpy changed(&validator, SIGNAL(changed()));
    validator.setRegExp(QRegExp(QLatin1String("[a-c]{0,2}")));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(validator.regExp().pattern(), QStringLiteral("[a-c]{0,2}"));
    QString text = QStringLiteral("bd");
    int position = 0;
    QCOMPARE(validator.validate(text, position), QValidator::Invalid);
}

void PatternsTest::limitsOfTheTopUpField()
{
    TopUpInputLimits limits;
    limits.length = 16;
    limits.minlenth = 12;
    limits.limitText = QStringLiteral("0-9");
    QVERIFY(isChargeExpressionUsable(limits));
    QVERIFY(QRegExp(chargeExpression(limits)).exactMatch(QStringLiteral("1234567890123456")));
    limits.limitText = QStringLiteral("0-9](a*)*[");
    QVERIFY(!isChargeExpressionUsable(limits));
    limits.limitText = QStringLiteral("^");
    QVERIFY(!isChargeExpressionUsable(limits));
}

void PatternsTest::limitsOfAServiceField()
{
    CWidgetItemInfo control;
    control.length = 4;
    control.limitText = QStringLiteral("\\d");
    const QRegExp pattern = SmsLayoutFile::inputPattern(control);
    QVERIFY(pattern.exactMatch(QStringLiteral("1234")));
    QVERIFY(!pattern.exactMatch(QStringLiteral("12345")));
    control.limitText = QStringLiteral("a]b"); // not a character class; any character is accepted
    QVERIFY(SmsLayoutFile::inputPattern(control).exactMatch(QStringLiteral("a[]b")));
}

USSD_TEST_MAIN(PatternsTest)

#include "patterns_test.moc"
