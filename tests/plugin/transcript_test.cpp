#include "UssdTest.h"

#include <QFile>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>

#include <functional>
#include <random>

#include <sys/stat.h>

#include "markup/Transcript.h"
#include "markup/TranscriptView.h"
#include "PluginConfig.h"

using namespace Formats;

using Transcript::Received;
using Transcript::Sent;

namespace
{

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

Char look(int yHeight, int red, int green, int blue)
{
    Char result;
    result.yHeight = yHeight;
    result.red = red;
    result.green = green;
    result.blue = blue;
    return result;
}

QString markup(Transcript::Direction direction, const Char &look, bool rightToLeft,
               const QString &text)
{
    return Transcript::entry(direction, look, rightToLeft, latin1("Caption: "), text).markup;
}

/// Returns the expected content of the view: the result of setting the complete markup with
/// setHtml().
QString setAtOnce(const QString &entries)
{
    TranscriptView view;
    view.setHtml(Transcript::document(entries));
    return view.toHtml();
}

quint32 seedOfThisRun()
{
    const QByteArray chosen = qgetenv("USSD_TEST_SEED");
    const quint32 seed = chosen.isEmpty() ? 20260103u : chosen.toUInt();
    qInfo("seed: USSD_TEST_SEED=%u", seed);
    return seed;
}

// The pieces for random texts, grouped by the kind of problem that they can cause.
const char *const WORDS[] = {"Balance", "12.50 EUR", "*100#", "1) Yes", "a", "%s", "%1", "-", "0"};
const char *const ARABIC[] = {"رصيدك", "١٢٣", "اضغط 1", "ل", "\u200f", "\u200e"};
const char *const BREAKS[] = {"\n", "\n\n", "\r", "\r\n", "\n ", " \n"};
const char *const BLANKS[] = {" ", "  ", "\t", "   ", "\u00a0", "\u2003", "\u200b", "\t ", " \t"};
const char *const CONTROLS[] = {"\x01", "\x07",     "\x08", "\x0b",
                                "\x0c", "\x1b[31m", "\x7f", "\u0085"};
const char *const SEPARATORS[] = {"\u2028", "\u2029", "\ufffc", "\ufdd0",
                                  "\ufdd1", "\ufffd", "\ufeff"};
const char *const ENTITIES[] = {"&amp;",    "&lt;",     "&nbsp;",   "&#10;", "&#x2028;",
                                "&",        "&x",       "&bogus;",  "&#0;",  "&#x2029;",
                                "&#xfdd0;", "&#xfffc;", "&lt;b&gt;"};
const char *const CLOSED[] = {"<b>bold</b>",
                              "<i>i</i>",
                              "<br>",
                              "<br/>",
                              "<!-- comment -->",
                              "<font color='red'>r</font>",
                              "<a href='http://example.com/'>link</a>",
                              "<img src='/dev/zero'>",
                              "<img src='nothing.png' width='20'/>",
                              "<hr>",
                              "<ul><li>one</li><li>two</li></ul>",
                              "<table border='1'><tr><td>1</td><td>2</td></tr></table>",
                              "<p>paragraph</p>",
                              "<div align='right'>d</div>",
                              "<pre>  pre\n formatted </pre>",
                              "<h1>head</h1>",
                              "<sup>2</sup>",
                              "<style>p { color: red }</style>",
                              "<center>c</center>"};
const char *const OPEN[] = {"<b>",     "<i",       "</b>",   "</span>",     "</p>",    "<table>",
                            "<td>",    "<ul>",     "<li>",   "<!--",        "<pre>",   "<p",
                            "</html>", "<body>",   "<html>", "<a href='x",  "<",       ">",
                            "<div>",   "</table>", "<h1>",   "<style>p {",  "<title>", "<script>",
                            "<img",    "\"",       "'",      "<font size=", "</body>", "<head>"};

template <int Count>
QString oneOf(const char *const (&pieces)[Count], std::mt19937 &random)
{
    return QString::fromUtf8(pieces[random() % Count]);
}

typedef std::function<QString(std::mt19937 &)> Piece;

template <int Count>
Piece anyOf(const char *const (&pieces)[Count])
{
    return [&pieces](std::mt19937 &random) { return oneOf(pieces, random); };
}

/// Returns a random text. About one piece in three has one of the given kinds.
QString randomText(const QVector<Piece> &kinds, std::mt19937 &random)
{
    QString text;
    for (int i = int(random() % 6); i > 0; --i) {
        if (!kinds.isEmpty() && random() % 3 == 0)
            text += kinds.at(int(random() % uint(kinds.count())))(random);
        else
            text += oneOf(WORDS, random) + (random() % 2 ? latin1(" ") : QString());
    }
    return text;
}

struct RandomEntries {
    QVector<Piece> kinds;
    bool leftToRight;
    bool rightToLeft;
    int oftenBlank; ///< on average, one of this many captions is blank
    std::mt19937 &random;

    bool isRightToLeft() { return rightToLeft && (!leftToRight || random() % 2 == 0); }

    Transcript::Entry next()
    {
        static const char *const captions[] = {"Sent: ", "Received: ", "أُرسل: \u200e"};
        const Transcript::Direction direction = random() % 2 ? Sent : Received;
        const Char entryLook =
            look(random() % 64 == 0 ? 0 : 200, int(random() % 256), int(random() % 256), 16);
        const bool isRightToLeft = this->isRightToLeft();
        const QString caption =
            random() % uint(oftenBlank) == 0 ? latin1(" ") : oneOf(captions, random);
        return Transcript::entry(direction, entryLook, isRightToLeft, caption,
                                 randomText(kinds, random));
    }
};

QVector<Piece> kindsNamed(const QByteArray &name)
{
    const QVector<Piece> text{anyOf(ARABIC), anyOf(BREAKS), anyOf(BLANKS)};
    const QVector<Piece> odd{anyOf(CONTROLS), anyOf(SEPARATORS)};
    if (name == "words")
        return {};
    if (name == "texts")
        return text;
    if (name == "odd characters")
        return text + odd;
    if (name == "entities" || name == "no captions")
        return {anyOf(ENTITIES), anyOf(BLANKS)};
    if (name == "closed markup")
        return {anyOf(CLOSED), anyOf(BREAKS)};
    if (name == "open markup")
        return {anyOf(OPEN)};
    return text + odd + QVector<Piece>{anyOf(ENTITIES), anyOf(CLOSED), anyOf(OPEN)};
}

/// Returns true if entries of this kind can usually be inserted into the document. For all other
/// kinds, each new entry sets the complete markup again, which is slower, so fewer entries are
/// tested.
bool isInsertedAsARule(const QByteArray &kind)
{
    return kind == "words" || kind == "texts" || kind == "odd characters" || kind == "entities";
}

int blankCaptions(const QByteArray &kind)
{
    return kind == "no captions" ? 2 : 1000000;
}

} // namespace

class TranscriptTest : public UssdTest
{
    Q_OBJECT

private slots:
    // ---- markup
    void entryIsWrittenExactly();
    void receivedEntryEndsWithABreak();
    void rightToLeftParagraphSaysSo();
    void height200And219Are10Points_data();
    void height200And219Are10Points();
    void coloursAreSixHexDigits_data();
    void coloursAreSixHexDigits();
    void offsetIsNotUsed();
    void lineBreakBecomesBr();
    void textGoesInAsItIs();
    void textBehindABracketThatBeginsNoTagIsShown_data();
    void textBehindABracketThatBeginsNoTagIsShown();
    void tagBehindABracketStaysMarkup();
    void tagThatQtKnowsStaysMarkup_data();
    void tagThatQtKnowsStaysMarkup();
    void bracketAsALetterReachesNotOn();
    void documentIsOneHtmlElement();

    // ---- view
    void randomEntriesEqualTheWholeTextSetAtOnce_data();
    void randomEntriesEqualTheWholeTextSetAtOnce();
    void fewEntriesEqualTheWholeTextSetAtOnce_data();
    void fewEntriesEqualTheWholeTextSetAtOnce();
    void plainEntryIsInsertedBehindTheOthers();
    void afterClearingEntriesAreInsertedAgain();
    void newestEntryIsVisible();
    void clearingShowsNothing();
    void entriesAfterClearingAreLikeTheFirst();
    void entriesHoldsTheMarkupOfAll();

    // ---- resources
    void deviceThatNeverEndsIsNotRead_data();
    void deviceThatNeverEndsIsNotRead();
    void pictureOfARealFileIsNotShown();
    void styleSheetOfARealFileIsNotUsed();
    void resourcesAreAnsweredWithoutAFile_data();
    void resourcesAreAnsweredWithoutAFile();

private:
    void compareWhileGrowing(RandomEntries &source, int count, int every);
    int firstChangeBy(TranscriptView &view, const Transcript::Entry &entry);
};

// ---- markup ----------------------------------------------------------------------------------

void TranscriptTest::entryIsWrittenExactly()
{
    QCOMPARE(markup(Sent, look(200, 0, 128, 255), false, latin1("*100#")),
             latin1("<p style=\" margin-top:0px; margin-bottom:0px;\"><span style=\"color : #"
                    "0080ff;\" style=\"font-size : 10pt;\">Caption: *100#</span></p>"));
}

void TranscriptTest::receivedEntryEndsWithABreak()
{
    QCOMPARE(markup(Received, look(240, 0, 0, 0), false, latin1("x")),
             latin1("<p style=\" margin-top:0px; margin-bottom:0px;\"><span style=\"color : #"
                    "000000;\" style=\"font-size : 12pt;\">Caption: x<br></span></p>"));
}

void TranscriptTest::rightToLeftParagraphSaysSo()
{
    QCOMPARE(markup(Sent, look(200, 1, 2, 3), true, latin1("x")),
             latin1("<p dir='rtl' style=\" margin-top:0px; margin-bottom:0px;\">"
                    "<span style=\"color : #"
                    "010203;\" style=\"font-size : 10pt;\">Caption: x</span></p>"));
}

void TranscriptTest::height200And219Are10Points_data()
{
    QTest::addColumn<int>("yHeight");
    QTest::addColumn<QString>("size");
    QTest::newRow("200") << 200 << latin1("10pt");
    QTest::newRow("219") << 219 << latin1("10pt");
    QTest::newRow("220") << 220 << latin1("11pt");
    QTest::newRow("199") << 199 << latin1("9pt");
    QTest::newRow("19") << 19 << latin1("0pt");
    QTest::newRow("0") << 0 << latin1("0pt");
}

void TranscriptTest::height200And219Are10Points()
{
    QFETCH(int, yHeight);
    QFETCH(QString, size);
    QVERIFY(markup(Sent, look(yHeight, 0, 0, 0), false, QString())
                .contains(latin1(";\" style=\"font-size : ") + size + latin1(";\">")));
}

void TranscriptTest::coloursAreSixHexDigits_data()
{
    QTest::addColumn<int>("red");
    QTest::addColumn<int>("green");
    QTest::addColumn<int>("blue");
    QTest::addColumn<QString>("digits");
    QTest::newRow("255/0/16") << 255 << 0 << 16 << latin1("ff0010");
    QTest::newRow("black") << 0 << 0 << 0 << latin1("000000");
    QTest::newRow("low digits") << 1 << 10 << 15 << latin1("010a0f");
    QTest::newRow("beyond a byte") << 256 << 0 << 0 << latin1("1000000"); // the output of "%02x"
    QTest::newRow("negative") << -1 << 0 << 0 << latin1("ffffffff0000");
}

void TranscriptTest::coloursAreSixHexDigits()
{
    QFETCH(int, red);
    QFETCH(int, green);
    QFETCH(int, blue);
    QFETCH(QString, digits);
    QVERIFY(markup(Sent, look(200, red, green, blue), false, QString())
                .contains(latin1("color : #") + digits + latin1(";\"")));
}

void TranscriptTest::offsetIsNotUsed()
{
    Char shifted = look(200, 1, 2, 3);
    const QString before = markup(Sent, shifted, false, latin1("x"));
    shifted.yOffset = 99;
    QCOMPARE(markup(Sent, shifted, false, latin1("x")), before);
}

void TranscriptTest::lineBreakBecomesBr()
{
    const QString entry = Transcript::entry(Received, look(200, 0, 0, 0), false, latin1("To\n"),
                                            latin1("a\nb\n\nc\r\nd"))
                              .markup;
    QVERIFY(entry.contains(latin1(">To<br>a<br>b<br><br>c\r<br>d<br></span></p>")));
    QVERIFY(!entry.contains(QLatin1Char('\n')));
}

void TranscriptTest::textGoesInAsItIs()
{
    QVERIFY(markup(Sent, look(200, 0, 0, 0), false, latin1("<b>&amp;%1%s</b>"))
                .endsWith(latin1(">Caption: <b>&amp;%1%s</b></span></p>")));
}

/// Returns the visible text of a reply that is shown between two other replies.
static QString shown(const QString &text)
{
    TranscriptView view;
    for (const QString &reply : {latin1("before"), text, latin1("behind")})
        view.appendEntry(
            Transcript::entry(Received, look(200, 0, 0, 0), false, latin1("R: "), reply));
    return view.toPlainText();
}

void TranscriptTest::textBehindABracketThatBeginsNoTagIsShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("blank behind") << latin1("Balance < 5 EUR");
    QTest::newRow("number behind") << latin1("Balance <5 EUR, 3>2");
    QTest::newRow("at the end") << latin1("Balance <");
    QTest::newRow("unknown name") << latin1("Dial <number> now");
    QTest::newRow("name that only begins like a tag") << latin1("<body1> <bb> <tdx> <blockquotes>");
    QTest::newRow("name with a slash in it") << latin1("1<b/2>3");
    QTest::newRow("tag without its end") << latin1("a <b and c");
    QTest::newRow("tag without its end behind a whole one") << latin1("2>1 but 1<b");
    QTest::newRow("line feed before a name") << latin1("5 <\na > 3");
    QTest::newRow("line feed in a tag") << latin1("5 <a\nb> 3");
    QTest::newRow("quote that is not closed") << latin1("<font color=\"red>Balance 5 EUR");
    QTest::newRow("another tag before the end") << latin1("1 <b 5 EUR <x>");
    QTest::newRow("closing tag of an unknown name") << latin1("</number>");
    QTest::newRow("comment") << latin1("now <!-- soon --> later");
    QTest::newRow("declaration") << latin1("<!wow> <?xml?>");
    QTest::newRow("arrow") << latin1("<-- 1 <= 2 <> 3 << 4");
    QTest::newRow("name in quotes") << latin1("<'b'> <\"i\">");
    QTest::newRow("many") << QString(200, QLatin1Char('<'));
}

void TranscriptTest::textBehindABracketThatBeginsNoTagIsShown()
{
    QFETCH(QString, text);
    QCOMPARE(shown(text), latin1("R: before\n\nR: ") + text + latin1("\n\nR: behind\n"));
}

void TranscriptTest::tagBehindABracketStaysMarkup()
{
    QCOMPARE(shown(latin1("1 <b 5 EUR, see <b>offer</b>")),
             latin1("R: before\n\nR: 1 <b 5 EUR, see offer\n\nR: behind\n"));
}

void TranscriptTest::tagThatQtKnowsStaysMarkup_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("pair") << latin1("<b>bold</b>");
    QTest::newRow("capitals") << latin1("<B>bold</B>");
    QTest::newRow("blank before the name") << latin1("< b>bold</b>");
    QTest::newRow("attribute") << latin1("<font color='red'>bold</font>");
    QTest::newRow("bracket in a quote") << latin1("<a href='x>y'>bold</a>");
    QTest::newRow("apostrophe in a word") << latin1("<a it's>bold</a>");
    QTest::newRow("closed in itself") << latin1("bold<img/>");
    QTest::newRow("closing only") << latin1("bold</b>");
}

void TranscriptTest::tagThatQtKnowsStaysMarkup()
{
    QFETCH(QString, text);
    QVERIFY(markup(Received, look(200, 0, 0, 0), false, text).contains(text));
    QVERIFY(shown(text).contains(latin1("bold")));
    QVERIFY(!shown(text).contains(QLatin1Char('<')));
}

void TranscriptTest::bracketAsALetterReachesNotOn()
{
    const Char sent = look(200, 0, 0, 0);
    QVERIFY(!Transcript::entry(Sent, sent, false, latin1("S: "), latin1("1 < 2")).mayReachOn);
    QVERIFY(Transcript::entry(Sent, sent, false, latin1("S: "), latin1("1 <b> 2")).mayReachOn);
}

void TranscriptTest::documentIsOneHtmlElement()
{
    QCOMPARE(Transcript::document(latin1("<p>x</p>")), latin1("<html><p>x</p></html>"));
}

// ---- the view --------------------------------------------------------------------------------

void TranscriptTest::compareWhileGrowing(RandomEntries &source, int count, int every)
{
    TranscriptView view;
    QString all;
    for (int i = 1; i <= count; ++i) {
        const Transcript::Entry entry = source.next();
        view.appendEntry(entry);
        all += entry.markup;
        if (i % every != 0 && i != count)
            continue;
        const QString expected = setAtOnce(all);
        QVERIFY2(view.toHtml() == expected,
                 qPrintable(QString::number(i) + latin1(" entries:\n") + all + latin1("\ngive\n") +
                            view.toHtml() + latin1("\nin place of\n") + expected));
    }
    QCOMPARE(view.entries(), all);
}

static void addKindsAndDirections()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<bool>("leftToRight");
    QTest::addColumn<bool>("rightToLeft");
    for (const char *kind : {"words", "texts", "odd characters", "entities", "no captions",
                             "closed markup", "open markup", "everything"}) {
        const QByteArray name(kind);
        QTest::newRow(name + ", left to right") << name << true << false;
        QTest::newRow(name + ", right to left") << name << false << true;
        QTest::newRow(name + ", both") << name << true << true;
    }
}

void TranscriptTest::randomEntriesEqualTheWholeTextSetAtOnce_data()
{
    addKindsAndDirections();
}

void TranscriptTest::randomEntriesEqualTheWholeTextSetAtOnce()
{
    QFETCH(QByteArray, kind);
    QFETCH(bool, leftToRight);
    QFETCH(bool, rightToLeft);
    allowWarning("Point size <= 0"); // the entries come from a configuration without sizes
    std::mt19937 random(seedOfThisRun());
    RandomEntries source = {kindsNamed(kind), leftToRight, rightToLeft, blankCaptions(kind),
                            random};
    compareWhileGrowing(source, isInsertedAsARule(kind) ? 400 : 100, 50);
}

void TranscriptTest::fewEntriesEqualTheWholeTextSetAtOnce_data()
{
    addKindsAndDirections();
}

/// Tests that unclosed markup in an entry does not hide later entries, even in a long transcript.
void TranscriptTest::fewEntriesEqualTheWholeTextSetAtOnce()
{
    QFETCH(QByteArray, kind);
    QFETCH(bool, leftToRight);
    QFETCH(bool, rightToLeft);
    allowWarning("Point size <= 0"); // the entries come from a configuration without sizes
    std::mt19937 random(seedOfThisRun());
    RandomEntries source = {kindsNamed(kind), leftToRight, rightToLeft, blankCaptions(kind),
                            random};
    for (int round = 0; round < 60 && !QTest::currentTestFailed(); ++round)
        compareWhileGrowing(source, 5, 1);
}

/// Adds an entry. Returns the position of the first changed character, or -1 if nothing has
/// changed.
int TranscriptTest::firstChangeBy(TranscriptView &view, const Transcript::Entry &entry)
{
    int first = -1;
    const auto connection =
        connect(view.document(), &QTextDocument::contentsChange, this, [&](int position, int, int) {
            first = first < 0 ? position : qMin(first, position);
        });
    view.appendEntry(entry);
    disconnect(connection);
    return first;
}

void TranscriptTest::plainEntryIsInsertedBehindTheOthers()
{
    TranscriptView view;
    const Transcript::Entry entry =
        Transcript::entry(Received, look(200, 0, 0, 0), false, latin1("R: "), utf8("رصيد 12\nEUR"));
    QVERIFY(entry.isPlain);
    for (int i = 0; i < 20; ++i)
        view.appendEntry(entry);
    const int length = view.document()->characterCount();
    const int first = firstChangeBy(view, entry);
    QVERIFY2(first >= length - 2, qPrintable(QString::number(first)));
}

void TranscriptTest::afterClearingEntriesAreInsertedAgain()
{
    TranscriptView view;
    const Transcript::Entry plain =
        Transcript::entry(Sent, look(200, 0, 0, 0), false, latin1("S: "), latin1("*100#"));
    view.appendEntry(
        Transcript::entry(Received, look(200, 0, 0, 0), false, latin1("R: "), latin1("<b>")));
    view.appendEntry(plain);
    QCOMPARE(firstChangeBy(view, plain), 0); // after markup, the complete transcript is set again
    view.clearEntries();
    view.appendEntry(plain);
    QVERIFY(firstChangeBy(view, plain) > 0);
}

void TranscriptTest::newestEntryIsVisible()
{
    TranscriptView view;
    view.resize(200, 100);
    view.show();
    for (int i = 0; i < 40; ++i) {
        view.appendEntry(Transcript::entry(i % 2 ? Sent : Received, look(200, 0, 0, 0), false,
                                           latin1("R: "), QString::number(i)));
        QVERIFY(view.textCursor().atEnd());
        QVERIFY(!view.textCursor().hasSelection());
    }
    QVERIFY(view.verticalScrollBar()->maximum() > view.viewport()->height());
    QVERIFY(view.viewport()->rect().contains(view.cursorRect()));
}

void TranscriptTest::clearingShowsNothing()
{
    TranscriptView view;
    view.appendEntry(
        Transcript::entry(Sent, look(200, 0, 0, 0), false, latin1("S: "), latin1("<b>x")));
    QVERIFY(!view.toPlainText().isEmpty());
    view.clearEntries();
    QCOMPARE(view.toPlainText(), QString());
    QCOMPARE(view.entries(), QString());
}

void TranscriptTest::entriesAfterClearingAreLikeTheFirst()
{
    TranscriptView view;
    view.appendEntry(Transcript::entry(Received, look(500, 255, 0, 0), true, latin1("R: "),
                                       latin1("<table><b>left open")));
    view.clearEntries();
    QString all;
    for (const char *text : {"one", "two", "three"}) {
        const Transcript::Entry entry =
            Transcript::entry(Sent, look(200, 0, 0, 255), false, latin1("S: "), latin1(text));
        view.appendEntry(entry);
        all += entry.markup;
        QCOMPARE(view.toHtml(), setAtOnce(all));
    }
}

void TranscriptTest::entriesHoldsTheMarkupOfAll()
{
    TranscriptView view;
    const Transcript::Entry first =
        Transcript::entry(Sent, look(200, 0, 0, 0), false, latin1("S: "), latin1("*1#"));
    const Transcript::Entry second =
        Transcript::entry(Received, look(200, 0, 0, 0), true, latin1("R: "), latin1("<i>"));
    view.appendEntry(first);
    view.appendEntry(second);
    QCOMPARE(view.entries(), first.markup + second.markup);
}

// ---- no resource is loaded -------------------------------------------------------------------

void TranscriptTest::deviceThatNeverEndsIsNotRead_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("picture") << latin1("<img src='") << latin1("'>");
    QTest::newRow("picture by address") << latin1("<img src='file://") << latin1("'>");
    QTest::newRow("style sheet") << latin1("<link rel='stylesheet' href='") << latin1("'>");
    QTest::newRow("style sheet, css")
        << latin1("<link rel=\"stylesheet\" type=\"text/css\" href=\"") << latin1("\">");
    QTest::newRow("import") << latin1("<style>@import url('") << latin1("');</style>");
    QTest::newRow("background") << latin1("<div style=\"background-image: url(") << latin1(")\">x");
    QTest::newRow("body") << latin1("<body background='") << latin1("'>");
    QTest::newRow("cell") << latin1("<table><tr><td background='")
                          << latin1("'>x</td></tr></table>");
    QTest::newRow("object") << latin1("<object data='") << latin1("'></object>");
    QTest::newRow("source") << latin1("<source src='") << latin1("'>");
    QTest::newRow("list") << latin1("<ul style=\"list-style-image: url(")
                          << latin1(")\"><li>x</ul>");
}

/// Tests that a named pipe is not opened. Opening it would block until the watchdog ends the test.
void TranscriptTest::deviceThatNeverEndsIsNotRead()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const QString pipe = folder() + latin1("/pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    TranscriptView view;
    view.resize(300, 200);
    view.show();
    for (const QString &path : {pipe, latin1("/dev/zero")}) {
        for (bool rightToLeft : {false, true})
            view.appendEntry(Transcript::entry(Received, look(200, 0, 0, 0), rightToLeft,
                                               latin1("R: "), before + path + after));
    }
    view.appendEntry(
        Transcript::entry(Sent, look(200, 0, 0, 0), false, latin1("S: "), latin1("plain")));
    QVERIFY(!view.grab().isNull());
}

void TranscriptTest::pictureOfARealFileIsNotShown()
{
    QImage red(60, 40, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QString file = folder() + latin1("/red.png");
    QVERIFY(red.save(file));
    TranscriptView view;
    view.resize(300, 200);
    view.show();
    for (const QString &name : {file, latin1("file://") + file})
        view.appendEntry(Transcript::entry(Received, look(200, 0, 0, 0), false, latin1("R: "),
                                           latin1("<img src='") + name + latin1("'>")));
    const QImage shown = view.grab().toImage();
    int redPixels = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x)
            redPixels += shown.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
    }
    QCOMPARE(redPixels, 0);
}

void TranscriptTest::styleSheetOfARealFileIsNotUsed()
{
    const QString file = writeFile(latin1("red.css"), "b { background-color: #ff0000 }");
    TranscriptView view;
    view.appendEntry(Transcript::entry(Received, look(200, 0, 0, 0), false, latin1("R: "),
                                       latin1("<link rel='stylesheet' type='text/css' href='") +
                                           file + latin1("'><b>bold</b>")));
    QVERIFY(!view.toHtml().contains(latin1("ff0000")));
}

void TranscriptTest::resourcesAreAnsweredWithoutAFile_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("html") << int(QTextDocument::HtmlResource);
    QTest::newRow("picture") << int(QTextDocument::ImageResource);
    QTest::newRow("style sheet") << int(QTextDocument::StyleSheetResource);
    QTest::newRow("markdown") << int(QTextDocument::MarkdownResource);
    QTest::newRow("user's") << int(QTextDocument::UserResource);
}

void TranscriptTest::resourcesAreAnsweredWithoutAFile()
{
    QFETCH(int, type);
    const QUrl url =
        QUrl::fromLocalFile(writeFile(latin1("real"), "p { color: red } <b>content</b>"));
    TranscriptView view;
    const QVariant answer = view.document()->resource(type, url);
    QVERIFY(!answer.isNull()); // with a null answer, Qt would open the file
    if (type == QTextDocument::ImageResource)
        QCOMPARE(answer.value<QImage>().size(), QSize(1, 1));
    else
        QCOMPARE(answer.toString(), QString());
}

USSD_TEST_MAIN(TranscriptTest)

#include "transcript_test.moc"
