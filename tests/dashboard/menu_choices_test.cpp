#include <QTextLayout>

#include "plugin/MenuChoices.h"
#include "UssdTest.h"

using namespace Dashboard;

/** Tests which lines of a menu are choices, and which key each choice sends. */
class MenuChoicesTest : public UssdTest
{
    Q_OBJECT
private slots:
    void choicesAreRead_data();
    void choicesAreRead();
    void theKeyStandsBeforeItsText();
};

void MenuChoicesTest::choicesAreRead_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("choices"); // "key=text", separated by "|"; empty if there are none
    const auto row = [](const char *name, const char *menu, const char *choices) {
        QTest::newRow(name) << QString::fromUtf8(menu) << QString::fromUtf8(choices);
    };
    row("blank", "Meridian\n1 My account\n2 Data packs\n3 Help",
        "1=My account|2=Data packs|3=Help");
    row("dot", "1. One\n2. Two", "1=One|2=Two");
    row("bracket", "1) One\n2)Two", "1=One|2=Two");
    row("colon", "1: One\n2:Two", "1=One|2=Two");
    row("dash", "1 - One\n2 - Two", "1=One|2=Two");
    row("en dash", "1 – One\n2 – Two", "1=One|2=Two");
    row("no blank", "1.One\n2.Two", "1=One|2=Two");
    row("indented", "  1 One \r\n\t2 Two\r\n", "1=One|2=Two");
    row("back at the end", "1 One\n2 Two\n0 Back", "1=One|2=Two|0=Back");
    row("all last keys", "1 One\n0 Back\n00 Main menu\n* More\n# End",
        "1=One|0=Back|00=Main menu|*=More|#=End");
    row("only last keys", "Thank you\n0 Back\n00 Main menu", "0=Back|00=Main menu");
    row("gaps", "1 One\n3 Three\n9 Nine", "1=One|3=Three|9=Nine");
    row("ten and more", "9 Nine\n10 Ten\n11 Eleven", "9=Nine|10=Ten|11=Eleven");
    row("text between", "Choose:\n1 One\nfor 2.00 EUR\n2 Two\nThank you", "1=One|2=Two");
    row("number in the text", "1 1 GB for 2 EUR\n2 5 GB for 7 EUR",
        "1=1 GB for 2 EUR|2=5 GB for 7 EUR");
    row("Arabic digits", "١ حسابي\n٢ مساعدة", "1=حسابي|2=مساعدة");
    row("Persian digits", "۱) حساب\n۲) راهنما\n۰) بازگشت", "1=حساب|2=راهنما|0=بازگشت");
    row("right-to-left marks", "\u200f1. حسابي\n\u202b2. مساعدة\u202c", "1=حسابي|2=مساعدة");
    row("Chinese marks", "1、余额\n2：流量", "1=余额|2=流量");

    row("offer", "1 GB for 2 EUR", "");
    row("offer with yes", "1 GB for 2 EUR?\n1 Yes\n2 No", "");
    row("one choice", "Continue?\n1 Yes", "");
    row("no menu", "Type the number of your friend", "");
    row("empty", "", "");
    row("same key twice", "1 One\n1 Two", "");
    row("descending", "2 Two\n1 One", "");
    row("number after the last key", "0 Back\n1 One", "");
    row("amounts", "12.50 EUR\n3.00 EUR", "");
    row("ascending amounts", "3.50 EUR\n12.00 EUR", "");
    row("times", "10:30 start\n11:45 end", "");
    row("date", "31.12.2027\nends", "");
    row("code", "*100# Balance\n*101# Number", "");
    row("number of a phone", "+49 170\n1234567 calls", "");
    row("keys only", "1\n2\n3", "");
    row("negative", "-1 EUR\n-2 EUR", "");
}

void MenuChoicesTest::choicesAreRead()
{
    QFETCH(QString, menu);
    QFETCH(QString, choices);
    QStringList read;
    for (const MenuChoice &choice : menuChoices(menu))
        read << choice.key + QLatin1Char('=') + choice.text;
    QCOMPARE(read.join(QLatin1Char('|')), choices);
}

/// Tests that, in a right-to-left window, the key precedes the text, and the text is displayed in
/// its own direction.
void MenuChoicesTest::theKeyStandsBeforeItsText()
{
    const QString text = QLatin1String("1 GB for 20 EUR");
    const QString shown = MenuChoice{QLatin1String("3"), text}.buttonText();
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    QTextLayout layout(shown);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    const int start = shown.indexOf(text);
    const auto place = [&line, start](const char *part, const QString &whole) {
        // Uses the position after the first character of the part, because a position between text
        // of different directions has two coordinates.
        return line.cursorToX(start + int(whole.indexOf(QLatin1String(part))) + 1);
    };
    QVERIFY(line.cursorToX(shown.indexOf(QLatin1Char('3'))) > place("EUR", text));
    QVERIFY(place("1", text) < place("GB", text));
    QVERIFY(place("GB", text) < place("20", text));
    QCOMPARE((MenuChoice{QLatin1String("1"), QLatin1String("A & B")}.buttonText().count(
                 QLatin1Char('&'))),
             2);
}

USSD_TEST_MAIN(MenuChoicesTest)
#include "menu_choices_test.moc"
