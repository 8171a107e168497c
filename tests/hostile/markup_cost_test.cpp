#include "UssdTest.h"

#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>

#include "markup/MarkupCost.h"
#include "markup/SlowText.h"
#include "markup/TranscriptView.h"
#include "PluginConfig.h"

using namespace Formats;

namespace
{

Transcript::Entry entry(const QString &text)
{
    Char look;
    look.yHeight = 200;
    return Transcript::entry(Transcript::Received, look, false, latin1("Received: "), text);
}

int tablesIn(const QTextFrame *frame)
{
    int tables = qobject_cast<const QTextTable *>(frame) ? 1 : 0;
    const QList<QTextFrame *> inside = frame->childFrames();
    for (const QTextFrame *child : inside)
        tables += tablesIn(child);
    return tables;
}

} // namespace

/**
 * Tests which replies are shown as plain text because laying out their markup would take too long.
 */
class MarkupCostTest : public UssdTest
{
    Q_OBJECT

private slots:
    void costIsCounted_data();
    void costIsCounted();
    void countedIsNeverLessThanWhatADocumentMakes_data();
    void countedIsNeverLessThanWhatADocumentMakes();
    void whatANetworkSendsIsMarkup_data();
    void whatANetworkSendsIsMarkup();
    void costlyMarkupIsShownAsLetters_data();
    void costlyMarkupIsShownAsLetters();
    void tablesOfAllEntriesCount();
    void clearingForgetsTheCost();

    void heavyTexts_data();
    void heavyTexts();
    void piecesAreTheText_data();
    void piecesAreTheText();
    void heavyEntryComesInPieces();
    void entriesBehindAHeavyOneKeepTheirOrder();
    void clearingDropsWhatStillWaits();
};

void MarkupCostTest::costIsCounted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("tags");
    QTest::addColumn<int>("tables");
    QTest::addColumn<int>("rules");
    QTest::addColumn<bool>("wide");
    QTest::newRow("nothing") << QString() << 0 << 0 << 0 << false;
    QTest::newRow("letters") << latin1("table style td colspan=999") << 0 << 0 << 0 << false;
    QTest::newRow("bold") << latin1("<b>5</b> EUR") << 2 << 0 << 0 << false;
    QTest::newRow("table") << latin1("<TABLE><tr><td>") << 3 << 1 << 0 << false;
    QTest::newRow("blanks") << latin1("< \n table>") << 1 << 1 << 0 << false;
    QTest::newRow("entity") << latin1("<t&#97;ble>") << 1 << 1 << 1 << true;
    QTest::newRow("quotes") << latin1("<\"table\">") << 1 << 1 << 1 << false;
    QTest::newRow("rules") << latin1("<style>a,b{c:d} e{f:g}</style>") << 2 << 0 << 3 << false;
    QTest::newRow("small span") << latin1("<td colspan=20>") << 1 << 0 << 0 << false;
    QTest::newRow("wide span") << latin1("<td colspan=20480>") << 1 << 0 << 0 << true;
    QTest::newRow("hidden span") << latin1("<th colspan=&#57;99>") << 1 << 0 << 0 << true;
    QTest::newRow("too many") << latin1("<td>").repeated(100) << 100 << 0 << 0 << false;
}

void MarkupCostTest::costIsCounted()
{
    QFETCH(QString, text);
    const MarkupCost cost = markupCost(text);
    QTEST(cost.tags, "tags");
    QTEST(cost.tables, "tables");
    QTEST(cost.rules, "rules");
    QTEST(cost.wide, "wide");
}

void MarkupCostTest::countedIsNeverLessThanWhatADocumentMakes_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"<table><td>", "<TaBlE>", "<  table><td>x", "<\ttable\n><td>", "<t&#97;ble><td>",
          "<&#116;able><td>", "<\"table\"><td>", "<'table'><td>", "<table/><td>", "<table<td>x",
          "<b a='><table><td>'><table><td>", "<!--<table>--><table><td>x", "</table><table><td>"})
        QTest::newRow(text) << latin1(text);
}

void MarkupCostTest::countedIsNeverLessThanWhatADocumentMakes()
{
    QFETCH(QString, text);
    QTextDocument document;
    document.setHtml(text);
    QVERIFY(tablesIn(document.rootFrame()) <= markupCost(text).tables);
}

void MarkupCostTest::whatANetworkSendsIsMarkup_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("many tags") << latin1("<b>x").repeated(45);
    QTest::newRow("line breaks") << latin1("<br>").repeated(45);
    QTest::newRow("table") << latin1("<table><tr><td>1</td><td colspan=2>2</td></tr></table>");
    QTest::newRow("style sheet") << latin1("<style>p{color:red}</style>5 EUR");
    QTest::newRow("picture") << latin1("<img src='a.png' width=100 height=100>");
}

void MarkupCostTest::whatANetworkSendsIsMarkup()
{
    QFETCH(QString, text);
    QVERIFY(text.length() <= 182);
    TranscriptView view;
    view.appendEntry(entry(text));
    QCOMPARE(view.entries(), entry(text).markup);
    QVERIFY(!view.toPlainText().contains(QLatin1Char('<')));
}

void MarkupCostTest::costlyMarkupIsShownAsLetters_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nested tables") << latin1("<table><td>").repeated(16);
    QTest::newRow("floating tables") << latin1("<table style='float:left'>").repeated(9);
    QTest::newRow("wide cell") << latin1("<table><td colspan=20480 rowspan=20480>x");
    QTest::newRow("rules") << latin1("<style>") + latin1("a{b:c}").repeated(9) + latin1("</style>");
    QTest::newRow("tags") << latin1("<i>").repeated(61);
}

void MarkupCostTest::costlyMarkupIsShownAsLetters()
{
    QFETCH(QString, text);
    TranscriptView view;
    view.appendEntry(entry(text));
    QVERIFY(view.toPlainText().contains(text));
    QCOMPARE(tablesIn(view.document()->rootFrame()), 0);
    view.appendEntry(entry(latin1("5 EUR")));
    QVERIFY(view.toPlainText().endsWith(latin1("Received: 5 EUR\n")));
}

void MarkupCostTest::tablesOfAllEntriesCount()
{
    TranscriptView view;
    const QString table = latin1("<table><td>x");
    for (int i = 0; i < 30; ++i)
        view.appendEntry(entry(table));
    QCOMPARE(tablesIn(view.document()->rootFrame()), 8);
    QCOMPARE(view.toPlainText().count(table), 22);
}

void MarkupCostTest::clearingForgetsTheCost()
{
    TranscriptView view;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 8; ++i)
            view.appendEntry(entry(latin1("<table><td>x")));
        QCOMPARE(tablesIn(view.document()->rootFrame()), 8);
        view.clearEntries();
    }
}

// ---- long texts ------------------------------------------------------------------------------

void MarkupCostTest::heavyTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("heavy");
    const QString alternating = latin1("a") + QChar(0x627);
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("letters") << QString(10000, QLatin1Char('x')) << false;
    QTest::newRow("Arabic") << QString(10000, QChar(0x627)) << false;
    QTest::newRow("longest reply of a network") << alternating.repeated(91) << false;
    QTest::newRow("two scripts") << alternating.repeated(1000) << true;
    QTest::newRow("marks") << QString(2000, QChar(0x301)) << true;
    QTest::newRow("very long") << QString(10001, QLatin1Char('x')) << true;
}

void MarkupCostTest::heavyTexts()
{
    QFETCH(QString, text);
    QTEST(SlowText::isHeavy(text), "heavy");
}

void MarkupCostTest::piecesAreTheText_data()
{
    QTest::addColumn<QString>("text");
    QString pairs;
    for (int i = 0; i < 3000; ++i)
        pairs += QString(QChar(0xD83D)) + QChar(0xDE00);
    QTest::newRow("empty") << QString();
    QTest::newRow("letters") << QString(4500, QLatin1Char('x'));
    QTest::newRow("words") << latin1("twelve letters ").repeated(300);
    QTest::newRow("blanks") << QString(3000, QLatin1Char(' '));
    QTest::newRow("pairs") << pairs;
    QTest::newRow("pairs, one unit further") << latin1("x") + pairs;
}

void MarkupCostTest::piecesAreTheText()
{
    QFETCH(QString, text);
    const QStringList pieces = SlowText::pieces(text);
    QCOMPARE(pieces.join(QString()), text);
    for (const QString &piece : pieces) {
        QVERIFY(!piece.isEmpty() && !SlowText::isHeavy(piece));
        QVERIFY(piece == pieces.last() || !piece.at(piece.length() - 1).isHighSurrogate());
    }
}

void MarkupCostTest::heavyEntryComesInPieces()
{
    TranscriptView view;
    const QString text = latin1("twelve letters ").repeated(2000);
    view.appendEntry(entry(latin1("5 EUR")));
    view.appendEntry(entry(text));
    QCOMPARE(view.document()->blockCount(), 1); // no part of the reply has been inserted yet
    QTRY_VERIFY(view.toPlainText().remove(QLatin1Char('\n')).endsWith(text));
    QVERIFY(view.document()->blockCount() > 25);
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next())
        QVERIFY(block.length() <= 1010);
}

void MarkupCostTest::entriesBehindAHeavyOneKeepTheirOrder()
{
    TranscriptView view;
    view.appendEntry(entry(latin1("1 first")));
    view.appendEntry(entry(QString(20000, QLatin1Char('x'))));
    view.appendEntry(entry(latin1("2 <b>second</b>")));
    QTRY_VERIFY(view.toPlainText().contains(latin1("2 <b>second</b>")));
    view.appendEntry(entry(latin1("3 <b>third</b>")));
    const QString shown = view.toPlainText();
    QVERIFY(shown.contains(latin1("3 third")));
    QVERIFY(shown.indexOf(latin1("1 first")) < shown.indexOf(latin1("xxx")));
    QVERIFY(shown.lastIndexOf(latin1("xxx")) < shown.indexOf(latin1("2 <b>")));
    QVERIFY(shown.indexOf(latin1("2 <b>")) < shown.indexOf(latin1("3 third")));
}

void MarkupCostTest::clearingDropsWhatStillWaits()
{
    TranscriptView view;
    view.appendEntry(entry(QString(20000, QLatin1Char('x'))));
    view.clearEntries();
    view.appendEntry(entry(latin1("5 EUR")));
    drainEvents();
    QCOMPARE(view.toPlainText(), latin1("Received: 5 EUR\n"));
}

USSD_TEST_MAIN(MarkupCostTest)
#include "markup_cost_test.moc"
