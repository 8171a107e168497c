#include "FileCheck.h"
#include "ForwardTrace.h"
#include "ForwardXml.h"
#include "ProviderChoice.h"
#include "ProvisionFiles.h"
#include "USSDProfile.h"
#include "UssdTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Formats;
using namespace Provisioning;
using namespace Tools;

/// Tests the findings for valid, incorrect, malformed and malicious configuration files.
class ConfigCheckTest : public UssdTest
{
    Q_OBJECT

private slots:
    void shippedFilesAreWithoutFindings_data();
    void shippedFilesAreWithoutFindings();
    void provisionedFilesAreWithoutFindings();
    void configurationMistakes_data();
    void configurationMistakes();
    void mistakenCodes_data();
    void mistakenCodes();
    void mistakenAreas_data();
    void mistakenAreas();
    void profileMistakes_data();
    void profileMistakes();
    void oneMoreCodeIsForeseen_data();
    void oneMoreCodeIsForeseen();
    void scenarioMistakesHaveTheirLine();
    void everyMistakeOfAScenarioIsFound_data();
    void everyMistakeOfAScenarioIsFound();
    void misspeltNetworkHasOneFinding_data();
    void misspeltNetworkHasOneFinding();
    void placeIsThatOfTheStartTag();
    void missingThirdItemShowsWhoseValuesAreTaken();
    void everyMissingLineIsFound_data();
    void everyMissingLineIsFound();
    void longestCommandIsCountedWithItsInput_data();
    void longestCommandIsCountedWithItsInput();
    void nearlyFullFilesWithFindingsStillHaveTables();
    void misspeltNameHasOneFinding_data();
    void misspeltNameHasOneFinding();
    void oneCauseHasOneFinding_data();
    void oneCauseHasOneFinding();
    void brokenProfilesHaveOneFinding_data();
    void brokenProfilesHaveOneFinding();
    void itemWithoutElementsHasOneFinding();
    void layoutAloneIsChecked();
    void unusableContent_data();
    void unusableContent();
    void unknownEntityEndsTheReading_data();
    void unknownEntityEndsTheReading();
    void everyPrefixIsChecked();
    void traceWalksAsThePluginDoes();
    void patternMistakes_data();
    void patternMistakes();
    void goodPatternsAreWithoutFindings();
    void jsonIsParsedBack_data();
    void jsonIsParsedBack();
    void jsonHoldsFindingsAndTables();
};

namespace
{
QByteArray shipped(const char *name)
{
    return contentOf(QLatin1String(USSD_SOURCE_DIR "/plugins/USSDUIPlugin/") + QLatin1String(name));
}

QByteArray configuration()
{
    return shipped("USSDPluginConfig.xml");
}

QByteArray profiles()
{
    return shipped("ussdsysprofile.xml");
}

QString findingsText(const CheckReport &report)
{
    CheckReport bare = report;
    bare.tables.clear();
    return reportText(bare);
}

QStringList rulesOf(const CheckReport &report)
{
    QStringList rules;
    for (const CheckFinding &finding : report.findings)
        rules << finding.rule;
    return rules;
}

/// Returns the number of the first line that contains the text. The first line has the number 1.
qint64 lineOf(const QByteArray &content, const QByteArray &text)
{
    const int at = content.indexOf(text);
    return at < 0 ? 0 : content.left(at).count('\n') + 1;
}

CheckReport check(const QByteArray &content)
{
    return checkContent(content, QLatin1String("file"));
}

QStringList tableRow(const CheckReport &report, const char *title, const char *name)
{
    for (const CheckTable &table : report.tables) {
        for (const QStringList &row : table.rows) {
            if (table.title == QLatin1String(title) && row.first() == QLatin1String(name))
                return row;
        }
    }
    return QStringList();
}

void addMistakeColumns()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasLine");
}

void addMistake(const char *title, const char *before, const char *after, const char *rule,
                const char *text, bool hasLine = true)
{
    QTest::newRow(title) << QByteArray(before) << QByteArray(after) << QString::fromLatin1(rule)
                         << QString::fromLatin1(text) << hasLine;
}

/// Replaces the last letter of a name. `at` is the index of the character before the name. For an
/// element, the name in the end tag is also changed.
QString misspelt(const QString &whole, int at, const QString &name, bool isElement)
{
    const QString other = name.left(name.length() - 1) + QLatin1Char('q');
    QString changed = whole;
    changed.replace(at + 1, name.length(), other);
    const QChar last = whole.at(whole.indexOf(QLatin1Char('>'), at) - 1);
    const int end = whole.indexOf(QLatin1String("</") + name + QLatin1Char('>'), at);
    if (isElement && last != QLatin1Char('/'))
        changed.replace(end + 2, name.length(), other);
    return changed;
}

/// Adds a test row for each name in the file, except for those in the root element.
void addMisspeltRows(const QByteArray &content)
{
    QString whole = QString::fromUtf8(content);
    const QRegularExpression comment(QLatin1String("<!--.*?-->"),
                                     QRegularExpression::DotMatchesEverythingOption);
    for (QRegularExpressionMatch match = comment.match(whole); match.hasMatch();
         match = comment.match(whole)) {
        const QString lines(match.captured().count(QLatin1Char('\n')), QLatin1Char('\n'));
        whole.replace(match.capturedStart(), match.capturedLength(), lines);
    }
    QRegExp name(QLatin1String("<([A-Za-z]+)[ />]| ([A-Za-z]+)=\""));
    const int root = whole.indexOf(QRegularExpression(QLatin1String("<[A-Za-z]")));
    for (int at = name.indexIn(whole, whole.indexOf(QLatin1Char('>'), root)); at >= 0;
         at = name.indexIn(whole, at + 1)) {
        const QString found = name.cap(1) + name.cap(2);
        const int line = whole.left(at).count(QLatin1Char('\n')) + 1;
        QTest::newRow(qPrintable(QString::fromLatin1("%1 %2 %3").arg(at).arg(line).arg(found)))
            << misspelt(whole, at, found, !name.cap(1).isEmpty()).toUtf8() << line;
    }
}

/// Replaces the first occurrence of `before` in the file. Checks that there is a finding with the
/// expected rule and text, and with the number of the changed line unless the change has removed
/// this line.
void checkMistake(QByteArray content)
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, rule);
    QFETCH(QString, text);
    QFETCH(bool, hasLine);
    const int at = content.indexOf(before);
    QVERIFY(at >= 0);
    content.replace(at, before.size(), after);
    const CheckReport report = check(content);
    QCOMPARE(report.error, QString());
    const qint64 line = hasLine ? lineOf(content, after) : 0;
    for (const CheckFinding &finding : report.findings) {
        if (finding.rule == rule && finding.text.contains(text) && (!line || finding.line == line))
            return;
    }
    QFAIL(qPrintable(findingsText(report)));
}
} // namespace

void ConfigCheckTest::shippedFilesAreWithoutFindings_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char *path, const char *kind) {
        QTest::newRow(path) << QLatin1String(USSD_SOURCE_DIR) + QLatin1String(path)
                            << QString::fromLatin1(kind);
    };
    row("/plugins/USSDUIPlugin/USSDPluginConfig.xml", "configuration");
    row("/plugins/USSDUIPlugin/ussdsysprofile.xml", "profiles");
    row("/scenarios/default.scenario", "scenario");
    row("/scenarios/postpaid.scenario", "scenario");
    row("/scenarios/weak-signal.scenario", "scenario");
    row("/src/dashboard/tour/tour.scenario", "scenario");
}

void ConfigCheckTest::shippedFilesAreWithoutFindings()
{
    QFETCH(QString, path);
    QFETCH(QString, kind);
    const CheckReport report = checkFile(path);
    QVERIFY2(report.findings.isEmpty() && report.error.isEmpty(), qPrintable(findingsText(report)));
    QCOMPARE(report.kind, kind);
    QVERIFY(!report.tables.isEmpty());
}

void ConfigCheckTest::provisionedFilesAreWithoutFindings()
{
    const ProviderDatabase database = readProviderDatabaseFile(installedProviderDatabase());
    int checked = 0;
    for (const Provider &provider : database.providers) {
        const ProvisionPlan plan = provisionPlan(provider);
        if (plan.isEmpty())
            continue;
        const ProvisionFiles files = provisionFiles(plan, configuration());
        for (const QByteArray &content : {files.configuration, files.profiles}) {
            const CheckReport report = check(content);
            QVERIFY2(report.findings.isEmpty() && report.error.isEmpty(),
                     qPrintable(provider.name() + findingsText(report)));
        }
        ++checked;
    }
    QVERIFY(checked > 100);
}

void ConfigCheckTest::configurationMistakes_data()
{
    addMistakeColumns();
    addMistake("capital true", "PrePostDiffer value=\"true\"", "PrePostDiffer value=\"TRUE\"",
               "bool", "only \"true\" is true");
    addMistake("one for true", "item name=\"Charge\" value=\"true\"",
               "item name=\"Charge\" value=\"1\"", "bool", "\"1\" reads as false");
    addMistake("no value", "item name=\"Charge\" value=\"true\"", "item name=\"Charge\"", "bool",
               "value is missing");
    addMistake("no number", "<length>16</length>", "<length>16x</length>", "number",
               "\"16x\" is no number");
    addMistake("decimal", "<yHeight>200", "<yHeight>20.5", "number", "\"20.5\"");
    addMistake("empty number", "<UpdateButton>1", "<UpdateButton>", "number", "UpdateButton \"\"");
    addMistake("pos", "pos=\"3\"", "pos=\"third\"", "number", "pos \"third\"");
    addMistake("same place", "pos=\"3\"", "pos=\"1\"", "position",
               "Charge and MSISDN have the same pos 1", false);
    addMistake("colour", "red=\"0\" green=\"51\"", "red=\"256\" green=\"51\"", "colour", "256");
    addMistake("size", "<yHeight>200", "<yHeight>0", "size", "not above 0");
    addMistake("huge letters", "<yHeight>200", "<yHeight>2147483640", "size",
               "a font size of 107374182 points");
    addMistake("misspelt section", "<recevie>", "<receive>", "name", "is <recevie> meant", false);
    addMistake("section in small letters", "<Postpaid>", "<postpaid>", "name",
               "is <Postpaid> meant");
    addMistake("attribute", "pos=\"3\"", "poss=\"3\"", "name",
               "attribute poss is not read; is pos");
    addMistake("other attribute", "pos=\"3\"", "pos=\"3\" note=\"a\"", "name",
               "attribute note is not read");
    addMistake("misspelt child", "<minlenth>12</minlenth>", "<minlength>12</minlength>", "name",
               "is <minlenth> meant");
    addMistake("component", "item name=\"Balance\"", "item name=\"balance\"", "items",
               "there is no component \"balance\"");
    addMistake("component twice", "item name=\"MSISDN\"", "item name=\"Balance\"", "items",
               "already given in line", false);
    addMistake("no command", "<command>*100#</command>", "<command></command>", "command",
               "Balance is shown and has no command", false);
    addMistake("no placeholder", "<command>*101*%s#</command>", "<command>*101#</command>",
               "command", "has no \"%s\"", false);
    addMistake("limit text", "<LimitText>0-9<", "<LimitText>0-9\\<", "expression",
               "no class of characters");
    addMistake("no limit text", "<LimitText>0-9</LimitText>", "", "order", "<LimitText> of <item>",
               false);
    addMistake("nothing to enter for a service", "<length>15</length>", "<length>0</length>",
               "length", "nothing can be entered", false);
    addMistake("limit text that ends the class", "<LimitText>0-9<", "<LimitText>0]+[9<",
               "expression", "no class of characters");
    addMistake("length beyond the expression", "<length>16<", "<length>4000<", "expression", "4000",
               false);
    addMistake("minimum", "<length>16</length>", "<length>8</length>", "length", "exactly 8");
    addMistake("nothing to enter", "<length>16</length>", "<length>0</length>", "length",
               "nothing can be entered");
    addMistake("pattern", "<ReturnPattern>\"\\d\"<", "<ReturnPattern>\\d+<", "expression",
               "compared as text");
    addMistake("imsi", "imsi=\"00101\"", "imsi=\"001 01\"", "imsi", "fits no SIM card");
    addMistake("imsi twice", "imsi=\"00102\"", "imsi=\"00101\"", "imsi", "already", false);
    addMistake("window", "ussd=\"Prepaid/Commonpaid", "ussd=\"prepaid/Commonpaid", "windows",
               "no window \"prepaid\"");
    addMistake("no window", "ussd=\"Postpaid/Commonpaid/Advanced\"", "ussd=\"\"", "windows",
               "has no window");
    addMistake("key", "id=\"IDS_SMSUSSD_DATA_DAY\"", "id=\"IDS_SMSUSSD_DATE_DAY\"", "key",
               "IDS_SMSUSSD_DATE_DAY");
    addMistake("type", "control type=\"ussd\"", "control type=\"USSD\"", "type",
               "sends a short message");
    addMistake("layout number", "MainSize width=\"640\"", "MainSize width=\"wide\"", "layout",
               "wide");
    addMistake("behind the cards", "</autoUSSD>", "</autoUSSD><more><item name=\"a\"/></more>",
               "order", "is read as a SIM card");
    addMistake("section twice", "<send>", "<Prepaid></Prepaid><send>", "twice",
               "<Prepaid> was already given in line");
    addMistake("clear button", "<clearHistory visible=\"true\" showConfirmDialog=\"true\"/>", "",
               "missing", "clearHistory", false);
    addMistake("long command", "<command>*110#",
               "<command>*1234567890123456789012345678901234567890123456789012345678901234567890"
               "123456789012345678901234567890#",
               "command", "not sent", false);
    addMistake("controls", "<control posx=\"285\" posy=\"140\" width=\"340\" height=\"210\"/>", "",
               "controls", "has 4 controls", false);
    addMistake("cut off", "<autoUSSD valid=\"true\">", "<autoUSSD valid=", "xml",
               "The rest of the file is not read", false);
}

void ConfigCheckTest::configurationMistakes()
{
    checkMistake(configuration());
}

void ConfigCheckTest::mistakenCodes_data()
{
    addMistakeColumns();
    addMistake("balance is no code", "<command>*100#</command>", "<command>balance</command>",
               "command", "\"balance\" is no code", false);
    addMistake("code without hash", "<command>*102#</command>", "<command>*102</command>",
               "command", "\"*102\" is no code", false);
    addMistake("detection is no code", "<command>*103#", "<command>103?", "command",
               "\"103?\" is no code", false);
    addMistake("top-up is no code", "*101*%s#", "*101*%s", "command", "\"*101*%s\" is no code",
               false);
    addMistake("service is no code", "*124*1#", "one day", "command", "\"one day\" is no code",
               false);
    addMistake("input of a balance", "<command>*100#", "<command>*100*%s#", "command",
               "for which nothing can be entered", false);
}

void ConfigCheckTest::mistakenCodes()
{
    checkMistake(configuration());
}

void ConfigCheckTest::mistakenAreas_data()
{
    addMistakeColumns();
    addMistake("control outside", "posx=\"285\" posy=\"16\"", "posx=\"640\" posy=\"16\"", "outside",
               "from 640, 16 to 980, 62 is outside the window of 640 x 360");
    addMistake("control above", "posx=\"285\" posy=\"16\"", "posx=\"285\" posy=\"-46\"", "outside",
               "is outside the window");
    addMistake("control partly outside", "posx=\"285\" posy=\"16\"", "posx=\"301\" posy=\"16\"",
               "outside", "to 641, 62 is partly outside the window of 640 x 360");
    addMistake("huge control", "width=\"340\" height=\"46\"", "width=\"2147483640\" height=\"46\"",
               "outside", "partly outside");
    addMistake("control without a size", "width=\"340\" height=\"46\"",
               "width=\"340\" height=\"0\"", "outside", "a size of 340 x 0 pixels cannot be seen");
    addMistake("tree outside", "TreeSize posx=\"10\"", "TreeSize posx=\"-300\"", "outside",
               "is outside the window");
    addMistake("window without a size", "MainSize width=\"640\"", "MainSize width=\"0\"", "outside",
               "the window has no size");
}

void ConfigCheckTest::mistakenAreas()
{
    checkMistake(configuration());
}

void ConfigCheckTest::profileMistakes_data()
{
    addMistakeColumns();
    addMistake("bool", "<readonly>true<", "<readonly>yes<", "bool", "\"yes\" reads as false");
    addMistake("missing field", "<langID>IDS_PROFILE_BALANCE</langID>", "", "order",
               "takes the rest from the next item", false);
    addMistake(
        "field out of order", "<readonly>true</readonly>\n        <showButton>true</showButton>",
        "<showButton>true</showButton><readonly>true</readonly>", "order", "in this order", false);
    addMistake("misspelt field", "<showButton>true</showButton>", "<showbutton>true</showbutton>",
               "name", "is <showButton> meant");
    addMistake("key", "IDS_PROFILE_BALANCE<", "IDS_PROFILE_BALANCES<", "key", "has no text in ar",
               false);
    addMistake("code twice", "*102#", "*100#", "twice", "already given in line", false);
    addMistake("payment button", "*140*%s#", "*140#", "button", "one of the last two", false);
    addMistake("placeholder", "*128#", "*128*%s#", "button", "is not one of the last two", false);
    addMistake("blanks", "*128#", " *128# ", "command", "blanks around it", false);
    addMistake("empty", "*128#", "", "command", "empty", false);
    addMistake("no code", "*128#", "128#", "command", "\"128#\" is no code", false);
    addMistake("twelfth", "</tksvdoc>",
               "<item><name>a</name><value>*9#</value><readonly>true</readonly>"
               "<showButton>true</showButton><langID/><desLangID/></item></tksvdoc>",
               "button", "this profile gets none");
}

void ConfigCheckTest::profileMistakes()
{
    checkMistake(profiles());
}

void ConfigCheckTest::oneMoreCodeIsForeseen_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QString>("finding"); // empty if no finding is expected
    QTest::addColumn<QString>("row");
    const auto row = [](const char *name, const char *codes, const char *finding,
                        const char *text) {
        QTest::newRow(name) << QString::fromUtf8(codes).split(QLatin1Char(' '))
                            << QString::fromLatin1(finding) << QString::fromUtf8(text);
    };
    row("two payment codes", "*1# *2*%s# *3*%s#",
        "with one more code the last two buttons would be \"*3*%s#\" and that code: \"*2*%s#\" "
        "would be sent with its \"%s\" unchanged",
        "the last two buttons would be \"*3*%s#\" and that code");
    row("placeholder", "*1# \xe2\x80\x93 *3*%s#", "",
        "the last two buttons would be \"*3*%s#\" and that code");
    row("placeholders", "*1# \xe2\x80\x93 \xe2\x80\x93", "",
        "the last two buttons would be \"\u2013\" and that code");
    row("one payment code", "*1*%s#", "", "the last two buttons would be \"*1*%s#\" and that code");
    row("no room", "*1# *2# *3# *4# *5# *6# *7# *8# *9# *10*%s# *11*%s#", "", "");
}

void ConfigCheckTest::oneMoreCodeIsForeseen()
{
    QFETCH(QStringList, codes);
    QFETCH(QString, finding);
    QFETCH(QString, row);
    QByteArray items;
    for (const QString &code : codes) {
        const bool isPlaceholder = code == placeholderName();
        items += "<item><name>" + code.toUtf8() + "</name><value>" +
                 (isPlaceholder ? QByteArray() : code.toUtf8()) +
                 "</value><readonly>true</readonly><showButton>true</showButton><langID/>"
                 "<desLangID/></item>";
    }
    const CheckReport report = check("<tksvdoc>" + items + "</tksvdoc>");
    QStringList texts;
    for (const CheckFinding &found : report.findings)
        texts << found.text;
    QCOMPARE(texts, finding.isEmpty() ? QStringList() : QStringList(finding));
    QCOMPARE(tableRow(report, "Buttons", "with one more code").value(1), row);
}

void ConfigCheckTest::scenarioMistakesHaveTheirLine()
{
    const CheckReport report = check("[Network]\nOperator=A\nIMSI=001010123456789\n\n[*100#]\n"
                                     "Reply=a\nDelay=soon\n");
    QCOMPARE(report.kind, QLatin1String("scenario"));
    QCOMPARE(rulesOf(report), QStringList() << QLatin1String("scenario"));
    QCOMPARE(report.findings.first().line, qint64(7));
}

/// Each row contains lines that are appended to a [Network] group of three lines, and the line
/// numbers of all expected findings. All mistakes must be reported, but not their consequences.
void ConfigCheckTest::everyMistakeOfAScenarioIsFound_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<int>>("lines");
    const auto row = [](const char *name, const char *text, const QList<int> &lines) {
        QTest::newRow(name) << QByteArray(text) << lines;
    };
    row("bad line, bad value", "[*1#]\nReply\n[*2#]\nReply=x\nDelay=soon\n", {5, 8});
    row("bad header, bad value", "[*1#\nReply=x\nDelay=soon\n", {4, 6});
    row("bad header of a menu", "[*1#\nReply=x\n[*1#/1]\nReply=y\n[*1#/2]\nReply=z\n", {4});
    row("header without a bracket", "[*1#]\nReply=x\n*2#]\nReply=x\nDelay=soon\n", {6, 8});
    row("encoding", "Encoding=x\nSignal\n[*1#]\nReply=x\nEncoding=y\n", {4, 5, 8});
    row("empty header", "[*1#]\nReply=x\n[]\nReply=y\n[*2#]\nDelay=soon\n", {6, 9});
    row("not UTF-8, bad value", "[*1#]\nReply=\xff\n[*2#]\nReply=x\nDelay=soon\n", {5, 8});
    row("group twice, bad value", "[*1#]\nReply=x\n[*1#]\nDelay=soon\n", {6, 7});
    row("unknown key, bad placeholder", "[*1#]\nReply={town}\nDelya=1\n", {5, 6});
    row("unknown key only", "[*1#]\nRepyl=x\n", {5});
    row("unknown key of an event", "[Event e]\nAfter=1\nSignl=1\n", {6});
    row("unknown key of a push", "[Push p]\nAfter=1\nRepyl=1\n", {6});
    row("missing menu", "[*1#/1]\nReply=x\n[*1#/2]\nReply=x\n[*1#/3]\nReply=x\n", {4});
    row("missing target", "[*1#]\nGoto=*9#\n[*2#]\nGoto=*9#\n[*9#/1]\nReply=x\n", {5});
    row("two missing targets", "[*1#]\nGoto=*8#\n[*2#]\nGoto=*9#\n", {5, 7});
}

void ConfigCheckTest::everyMistakeOfAScenarioIsFound()
{
    QFETCH(QByteArray, text);
    QFETCH(QList<int>, lines);
    const CheckReport report = check("[Network]\nOperator=A\nIMSI=001010123456789\n" + text);
    QList<int> found;
    for (const CheckFinding &finding : report.findings)
        found << int(finding.line);
    QVERIFY2(found == lines, qPrintable(findingsText(report)));
}

void ConfigCheckTest::misspeltNetworkHasOneFinding_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("name") << QByteArray("[Network]") << QByteArray("[Netwrok]");
    QTest::newRow("header") << QByteArray("[Network]") << QByteArray("[Network");
    QTest::newRow("operator") << QByteArray("Operator=") << QByteArray("Opertor=");
    QTest::newRow("balance") << QByteArray("Balance=") << QByteArray("Balanse=");
    QTest::newRow("comma") << QByteArray("12.50") << QByteArray("12,50");
}

/// Tests that a misspelt [Network] group causes only one finding, although many rules use the
/// balance from this group.
void ConfigCheckTest::misspeltNetworkHasOneFinding()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QByteArray content = contentOf(QLatin1String(USSD_SOURCE_DIR "/scenarios/default.scenario"));
    QVERIFY(content.contains(before));
    const CheckReport report =
        check(content.replace(content.indexOf(before), before.size(), after));
    QVERIFY2(report.findings.count() == 1, qPrintable(findingsText(report)));
    QCOMPARE(report.findings.first().line, lineOf(content, after));
}

void ConfigCheckTest::placeIsThatOfTheStartTag()
{
    const CheckReport report = check("<a>\r\n  <!-- < --><PrePostDiffer\r\n value='maybe'/></a>");
    for (const CheckFinding &finding : report.findings) {
        if (finding.rule != QLatin1String("bool"))
            continue;
        QCOMPARE(finding.line, qint64(2));
        QCOMPARE(finding.column, qint64(13));
        return;
    }
    QFAIL(qPrintable(findingsText(report)));
}

void ConfigCheckTest::missingThirdItemShowsWhoseValuesAreTaken()
{
    QByteArray content = configuration();
    const int start = content.indexOf("<item name=\"MSISDN\"");
    const QByteArray end = "</item>";
    content.remove(start, content.indexOf(end, start) + end.size() - start);
    const CheckReport report = check(content);
    QVERIFY2(findingsText(report).contains(
                 QLatin1String("this item \"Balance\" of <Postpaid> becomes its item 4")),
             qPrintable(findingsText(report)));
    // The report must contain the same values as the plug-in's tables.
    QVERIFY(tableRow(report, "Prepaid", "Balance").contains(QLatin1String("*110#")));
}

void ConfigCheckTest::everyMissingLineIsFound_data()
{
    QTest::addColumn<QByteArray>("content");
    const QList<QByteArray> optional = QList<QByteArray>() // optional elements of a service
                                       << "<LimitText>0-9</LimitText>"
                                       << "<minlenth>3</minlenth>"
                                       << "<minlenth>1</minlenth>"
                                       << "<minlenth>2</minlenth>";
    for (const QByteArray &whole : {configuration(), profiles()}) {
        const QList<QByteArray> lines = whole.split('\n');
        for (int i = 0; i < lines.count(); ++i) {
            const QByteArray line = lines.at(i).trimmed();
            const bool isElement = line.startsWith('<') && line.endsWith('>') &&
                                   (line.endsWith("/>") || line.contains("</")) &&
                                   !line.startsWith("</") && !line.contains("imsi=") &&
                                   !optional.contains(line);
            if (!isElement)
                continue;
            QList<QByteArray> others = lines;
            others[i] = QByteArray();
            QTest::newRow((QByteArray::number(i + 1) + ' ' + line.left(40)).constData())
                << others.join('\n');
        }
    }
}

void ConfigCheckTest::everyMissingLineIsFound()
{
    QFETCH(QByteArray, content);
    const CheckReport report = check(content);
    QVERIFY(!report.findings.isEmpty());
}

void ConfigCheckTest::longestCommandIsCountedWithItsInput_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("fits");
    QTest::newRow("91") << 85 << true;
    QTest::newRow("92") << 86 << false;
}

void ConfigCheckTest::longestCommandIsCountedWithItsInput()
{
    QFETCH(int, length);
    QFETCH(bool, fits);
    QByteArray content = configuration(); // apart from the input, *101*%s# has six characters
    content.replace("<length>16</length>", "<length>" + QByteArray::number(length) + "</length>");
    QCOMPARE(!rulesOf(check(content)).contains(QLatin1String("command")), fits);
}

void ConfigCheckTest::nearlyFullFilesWithFindingsStillHaveTables()
{
    QByteArray content = configuration();
    content.replace("<Postpaid>", "<Postpayed>").replace("</Postpaid>", "</Postpayed>");
    const CheckReport report = check(content);
    QVERIFY(rulesOf(report).contains(QLatin1String("name")));
    QVERIFY(tableRow(report, "Prepaid", "Balance").contains(QLatin1String("*100#")));
    QVERIFY(tableRow(report, "Postpaid", "Balance").contains(QLatin1String("hidden")));
}

/// Each row is a shipped file with one misspelt name. There is a row for each name.
void ConfigCheckTest::misspeltNameHasOneFinding_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    addMisspeltRows(configuration());
    addMisspeltRows(profiles());
}

/// Tests that a misspelt name is reported with its line number, and that its consequences are not
/// reported.
void ConfigCheckTest::misspeltNameHasOneFinding()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    const CheckReport report = check(content);
    QVERIFY2(rulesOf(report) == QStringList(QLatin1String("name")),
             qPrintable(findingsText(report)));
    QCOMPARE(report.findings.first().line, qint64(line));
}

void ConfigCheckTest::oneCauseHasOneFinding_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("rule");
    const auto row = [](const char *name, const char *before, const char *after, const char *rule) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString::fromLatin1(rule);
    };
    row("missing command", "<command>*101*%s#</command>", "", "order");
    row("missing length", "<length>16</length>", "", "order");
    row("root of the tree", "type=\"root\"", "type=\"rot\"", "layout");
    row("cut off", "<autoUSSD valid=\"true\">", "<autoUSSD valid=", "xml");
    row("cut off early", "<item name=\"MSISDN\"", "<item name=", "xml");
    row("section without its name", "<cmdEdit", "<other", "name");
}

void ConfigCheckTest::oneCauseHasOneFinding()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, rule);
    QByteArray content = configuration();
    QVERIFY(content.contains(before));
    content.replace(content.indexOf(before), before.size(), after);
    const CheckReport report = check(content);
    const int findings = rule == QLatin1String("name") ? 2 : 1; // the end tag is a second mistake
    QVERIFY2(report.findings.count() == findings, qPrintable(findingsText(report)));
    QCOMPARE(report.findings.first().rule, rule);
}

void ConfigCheckTest::brokenProfilesHaveOneFinding_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("no angle bracket") << QByteArray("</value>") << QByteArray("/value>");
    QTest::newRow("two angle brackets") << QByteArray("<value>") << QByteArray("<value<");
    QTest::newRow("cut off") << QByteArray("<readonly>true</readonly>")
                             << QByteArray("<readonly>tr<");
    QTest::newRow("ampersand") << QByteArray("*126#") << QByteArray("*12&6#");
}

/// Tests that an XML error is reported on its own, without its consequences for the profiles.
void ConfigCheckTest::brokenProfilesHaveOneFinding()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QByteArray content = profiles();
    const int at = content.lastIndexOf(before);
    QVERIFY(at >= 0);
    content.replace(at, before.size(), after);
    const CheckReport report = check(content);
    QVERIFY2(rulesOf(report) == QStringList(QLatin1String("xml")),
             qPrintable(findingsText(report)));
}

void ConfigCheckTest::itemWithoutElementsHasOneFinding()
{
    QByteArray content = configuration();
    const QByteArray tag = "<item name=\"Charge\" value=\"true\" pos=\"1\">";
    const int start = content.indexOf(tag) + tag.size();
    QVERIFY(start > tag.size());
    content.remove(start, content.indexOf("</item>", start) - start);
    const CheckReport report = check(content);
    QVERIFY2(rulesOf(report) == QStringList(QLatin1String("order")),
             qPrintable(findingsText(report)));
}

void ConfigCheckTest::layoutAloneIsChecked()
{
    const CheckReport report =
        check("<SMSUSSD><MainSize width='1' height='1'/><TreeSize posx='0' posy='0' width='1' "
              "height='1'/><Tree><item name='0' parent='0' "
              "type='root'/></Tree></SMSUSSD>");
    QCOMPARE(report.kind, QLatin1String("layout"));
    QVERIFY2(report.findings.isEmpty(), qPrintable(findingsText(report)));
}

void ConfigCheckTest::unusableContent_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("balance is *100#");
    QTest::newRow("other XML") << QByteArray("<html><body/></html>");
    QTest::newRow("broken XML") << QByteArray("<");
    QTest::newRow("zeros") << QByteArray(1000, '\0');
}

void ConfigCheckTest::unknownEntityEndsTheReading_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("undeclared") << QByteArray();
    QTest::newRow("of another file") << QByteArray("<!DOCTYPE tksvdoc SYSTEM 'other.dtd'>");
}

void ConfigCheckTest::unknownEntityEndsTheReading()
{
    QFETCH(QByteArray, start);
    const CheckReport report =
        check(start + "<tksvdoc><item><name>A</name><value>*10&bad;3#</value></item></tksvdoc>");
    QVERIFY2(findingsText(report).contains(QLatin1String("Entity 'bad' not declared.")),
             qPrintable(findingsText(report)));
    QCOMPARE(tableRow(report, "Profiles", "A").value(1), QString());
}

void ConfigCheckTest::unusableContent()
{
    QFETCH(QByteArray, content);
    const CheckReport report = check(content);
    QVERIFY(!report.error.isEmpty());
}

void ConfigCheckTest::everyPrefixIsChecked()
{
    const QByteArray whole = configuration();
    for (int length = 0; length < whole.size(); length += 97) {
        const CheckReport report = check(whole.left(length));
        QVERIFY2(!report.error.isEmpty() || !report.findings.isEmpty(),
                 qPrintable(QString::number(length)));
    }
    const CheckReport deep = check("<a><Prepaid>" + QByteArray("<b>").repeated(100000));
    QVERIFY(rulesOf(deep).contains(QLatin1String("xml")));
    QVERIFY(deep.tables.isEmpty());
    QByteArray attributes;
    for (int i = 0; i < 5000; ++i)
        attributes += " a" + QByteArray::number(i) + "='1'";
    const CheckReport wide = check("<a><Prepaid" + attributes + "/></a>");
    QCOMPARE(rulesOf(wide), QStringList(QLatin1String("xml")));
    QVERIFY(wide.tables.isEmpty());
}

/// Tests that ForwardTrace, with which the check searches a file, finds the same elements in random
/// documents as ForwardXml, with which the plug-in searches a file.
void ConfigCheckTest::traceWalksAsThePluginDoes()
{
    QRandomGenerator random(20261120);
    const auto name = [&random] { return QByteArray(1, char('a' + random.bounded(4))); };
    int found = 0;
    for (int round = 0; round < 300; ++round) {
        QByteArray xml = "<root>";
        QList<QByteArray> open;
        for (int i = 0; i < 40; ++i) {
            if (open.count() < 6 && random.bounded(5) < 3) {
                open << name();
                xml += '<' + open.last() + '>' + QByteArray::number(i);
            } else if (!open.isEmpty()) {
                xml += "</" + open.takeLast() + '>';
            }
        }
        while (!open.isEmpty())
            xml += "</" + open.takeLast() + '>';
        xml += "</root>";
        const XmlElements elements = readXmlElements(xml);
        ForwardTrace trace(elements);
        QXmlStreamReader reader(xml);
        for (int step = 0; step < 15; ++step) {
            const QByteArray wanted = name();
            const bool isThere = trace.seek(wanted.constData()) >= 0;
            QCOMPARE(isThere, ForwardXml::skipTo(reader, QLatin1String(wanted)));
            if (random.bounded(2))
                QCOMPARE(trace.text(), ForwardXml::text(reader));
            found += isThere ? 1 : 0;
        }
    }
    QVERIFY(found > 500);
}

void ConfigCheckTest::patternMistakes_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("line");
    const auto row = [](const char *name, const char *lines, const char *rule, int line) {
        QTest::newRow(name) << QByteArray(lines) << latin1(rule) << line;
    };
    row("no equals sign", "number (?<value>x)\n", "line", 2);
    row("unknown name", "numbr = (?<value>x)\n", "name", 2);
    row("bad expression", "# first\nnumber = (?<value>x\n", "pattern", 3);
    row("no group", "number = ([0-9]+)\n", "pattern", 2);
    row("matches everywhere", "number = (?<value>x*)\n", "pattern", 2);
    row("twice", "number = (?<value>x)\nnumber = (?<value>y)\n", "twice", 3);
    row("no currency", "balance = (?<value>x)\n", "missing", 0);
    row("only the size", "data-total = (?<value>x)\n", "missing", 0);
}

void ConfigCheckTest::patternMistakes()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, rule);
    QFETCH(int, line);
    const CheckReport report = check("# USSD reply patterns\n" + lines);
    QCOMPARE(report.kind, latin1("patterns"));
    QVERIFY2(report.error.isEmpty(), qPrintable(report.error));
    QCOMPARE(report.findings.count(), 1);
    QCOMPARE(report.findings.at(0).rule, rule);
    QCOMPARE(int(report.findings.at(0).line), line);
}

void ConfigCheckTest::goodPatternsAreWithoutFindings()
{
    const CheckReport report = check("# USSD reply patterns\n\nbalance = Bal (?<value>[0-9.]+)\n"
                                     "currency = EUR\nvalidity = (?<value>[0-9.]{10})\n"
                                     "validity-format = dd.MM.yyyy\n");
    QCOMPARE(report.findings.count(), 0);
    QCOMPARE(report.tables.at(0).rows.count(), 4);
}

void ConfigCheckTest::jsonIsParsedBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("quotes") << QString::fromLatin1("a\"b\\c/d\\u0041");
    QTest::newRow("controls") << QString::fromLatin1("\n\r\t\b\f\x1b\x7f\x9b");
    QTest::newRow("zero") << QString(QChar(0));
    QTest::newRow("languages") << QString::fromUtf8("ر€😀 \xe2\x80\xa8 \xe2\x80\xae");
    QTest::newRow("markup") << QString::fromLatin1("</script><!--");
}

void ConfigCheckTest::jsonIsParsedBack()
{
    QFETCH(QString, text);
    CheckReport report;
    report.file = text;
    report.error = text;
    addFinding(report, 1, 2, "rule", text);
    CheckTable table;
    table.title = text;
    table.rows << (QStringList() << text << text);
    report.tables << table;
    const QByteArray json = reportsJson(QList<CheckReport>() << report << report).toUtf8();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    QVERIFY2(!document.isNull(), qPrintable(error.errorString()));
    const QJsonArray files = document.object().value(QLatin1String("files")).toArray();
    QCOMPARE(files.count(), 2);
    const QJsonObject file = files.at(1).toObject();
    QCOMPARE(file.value(QLatin1String("file")).toString(), text);
    QCOMPARE(file.value(QLatin1String("error")).toString(), text);
    const QJsonObject finding = file.value(QLatin1String("findings")).toArray().at(0).toObject();
    QCOMPARE(finding.value(QLatin1String("text")).toString(), text);
    QCOMPARE(finding.value(QLatin1String("line")).toInt(), 1);
    QCOMPARE(finding.value(QLatin1String("column")).toInt(), 2);
    const QJsonObject first = file.value(QLatin1String("tables")).toArray().at(0).toObject();
    QCOMPARE(first.value(QLatin1String("rows")).toArray().at(0).toArray().at(1).toString(), text);
    for (const char byte : json)
        QVERIFY(byte >= 0x20 && byte < 0x7f);
}

void ConfigCheckTest::jsonHoldsFindingsAndTables()
{
    QByteArray content = configuration();
    content.replace("<length>16</length>", "<length>x</length>");
    const QJsonDocument document =
        QJsonDocument::fromJson(reportsJson(QList<CheckReport>() << check(content)).toUtf8());
    const QJsonObject file =
        document.object().value(QLatin1String("files")).toArray().at(0).toObject();
    QCOMPARE(file.value(QLatin1String("kind")).toString(), QLatin1String("configuration"));
    QVERIFY(file.value(QLatin1String("findings")).toArray().count() >= 2);
    QCOMPARE(file.value(QLatin1String("tables")).toArray().count(), 6);
}

USSD_TEST_MAIN(ConfigCheckTest)
#include "config_check_test.moc"
