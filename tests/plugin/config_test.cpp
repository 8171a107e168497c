#include "PluginTest.h"

#include <QFile>
#include <QXmlStreamReader>

#include "CommonUtils.h"
#include "OddFiles.h"
#include "requests/USSDLogic.h"
#include "windows/USSDSMSDlg.h"

using namespace Formats;

namespace
{

const int PREPAID = 0;
const int POSTPAID = 1;
const int BALANCE = 0;
const int CHARGE = 1;
const int ONLINE_CHARGE = 2;
const int MSISDN = 3;

const int UNUSED_ATTRIBUTES[] = {-1, 3, 4, 11};

QByteArray balanceItem(const QByteArray &attributes, const QByteArray &command = "*100#")
{
    return "<item name='Balance' " + attributes + "><command>" + command + "</command></item>";
}

QByteArray chargeItem(const QByteArray &command = "*101#")
{
    return "<item name='Charge' value='true' pos='11'><command>" + command +
           "</command><length>16</length><minlenth>12</minlenth><ReturnStyle>3</ReturnStyle>"
           "<LimitText>0-9</LimitText></item>";
}

QByteArray onlineItem(const QByteArray &url = "www.example.com")
{
    return "<item name='OnlineCharge' value='true' pos='12'><URL>" + url + "</URL></item>";
}

QByteArray msisdnItem(const QByteArray &command = "*102#")
{
    return "<item name='MSISDN' value='true' pos='13'><command>" + command +
           "</command><UpdateButton>7</UpdateButton></item>";
}

QByteArray fourItems()
{
    return balanceItem("value='true' pos='10'") + chargeItem() + onlineItem() + msisdnItem();
}

const char DIFFER[] = "<PrePostDiffer value='true'><command>*103#</command>"
                      "<ReturnPattern>post</ReturnPattern><style>1</style></PrePostDiffer>";

/// Returns the text inside 100,000 nested elements.
QByteArray nested(const QByteArray &text, bool hasEnd = true)
{
    const int levels = 100000;
    return QByteArray("<a>").repeated(levels) + text +
           (hasEnd ? QByteArray("</a>").repeated(levels) : QByteArray());
}

/// Returns a configuration. Its root differs from that of completeConfig(), because any name is
/// allowed.
QByteArray config(const QByteArray &prepaid, const QByteArray &postpaid,
                  const QByteArray &rest = QByteArray())
{
    return QByteArray("<anything>") + DIFFER + "<Prepaid>" + prepaid + "</Prepaid><Postpaid>" +
           postpaid + "</Postpaid>" + rest + "</anything>";
}

QByteArray charSection(const char *name, const char *yHeight, const char *colour)
{
    return QByteArray("<") + name + "><yHeight>" + yHeight + "</yHeight><yOffset>2</yOffset>" +
           "<color " + colour + "/></" + name + ">";
}

/// Returns the sections between "Postpaid" and "autoUSSD". If one of them were missing, the scan
/// for it would skip all following sections.
QByteArray looks()
{
    return charSection("send", "20", "") + charSection("recevie", "20", "") +
           "<cmdEdit><readonlycolor/><commoncolor/><headcolor/></cmdEdit>";
}

QByteArray autoUSSD(const QByteArray &items, const QByteArray &valid = "true")
{
    return config(fourItems(), fourItems(),
                  looks() + "<autoUSSD valid='" + valid + "'>" + items + "</autoUSSD>");
}

QByteArray imsiItem(const QByteArray &imsi, const QByteArray &windows)
{
    return "<item imsi='" + imsi + "' ussd='" + windows + "'/>";
}

} // namespace

class ConfigTest : public PluginTest
{
    Q_OBJECT

private slots:
    void valueTrueInCapitalsIsFalse_data();
    void valueTrueInCapitalsIsFalse();
    void threeItemSectionTakesFirstPostpaidItem();
    void itemNamedInLowerCaseIsConsumedButStoresNothing();
    void unknownPaidTypeIsMinusOneAndLogged_data();
    void unknownPaidTypeIsMinusOneAndLogged();
    void onlineComponentHasNoCommandNumber();
    void onlineComponentYieldsItsUrlOnly();
    void longestImsiPrefixWins();
    void imsiWithoutPrefixHasNoFlags();
    void windowListMayHoldEmptyParts();
    void windowNameInLowerCaseIsStoredWithoutFlags();
    void invalidAutoUssdNeverMatches();
    void charSetOfOtherKindOpensTheFileButCopiesNothing();

    void everyComponentAnswersItsOwnAttributesOnly_data();
    void everyComponentAnswersItsOwnAttributesOnly();
    void unknownComponentHasNoAnswer();
    void eachPaidTypeHasItsOwnTable();
    void itemsBehindTheFourthAreNeverRead();
    void laterItemOfTheSameComponentWins();
    void numberThatDoesNotParseIsZero_data();
    void numberThatDoesNotParseIsZero();
    void textIsTheWholeTextOfTheElement();
    void correctedSpellingsAreNotAccepted();
    void nestingDoesNotCount();
    void sectionsInWrongOrderAreNotFound();
    void missingChildEmptiesAllBehindIt();
    void brokenXmlKeepsWhatWasReadBefore();
    void startTagAtFaultHasNoAttributes();
    void textCutByAFaultIsEmpty_data();
    void textCutByAFaultIsEmpty();
    void entitiesOfTheDocumentAreReplaced();
    void brokenDetectionIsOff_data();
    void brokenDetectionIsOff();
    void faultBehindTheDetectionLeavesItOn();
    void brokenSimSectionIsOff_data();
    void brokenSimSectionIsOff();
    void faultBehindTheSimSectionLeavesItOn();
    void deepNestingIsReadToItsEnd();
    void deepNestingWithoutEndKeepsWhatWasReadBefore();
    void missingFileLeavesDefaultsAndIsLogged();
    void oddFileIsLikeAMissingOne_data();
    void oddFileIsLikeAMissingOne();
    void missingFileLeavesTheRecordsOfGettersUnchanged();
    void gettersReadTheFileAnew();
    void prePostDifferIsNotReadAnew();
    void clearHistoryMayStandAnywhere();
    void colourSectionsAreTakenApart();
    void allFlagsOfAWindowListAdd_data();
    void allFlagsOfAWindowListAdd();
    void laterImsiItemOfTheSamePrefixWins();
    void imsiItemsCountAtAnyDepthBehindTheSection();
    void emptyPrefixNeverMatches();
    void emptyImsiNeverMatches();
    void longestPrefixIsFoundAmongManyRandomOnes();
    void eachSectionIsSoughtInItsPlace_data();
    void eachSectionIsSoughtInItsPlace();
    void missingSectionSkipsToTheEndOnce();
    void shippedFileIsComplete();

private:
    static USSDLogic *logic() { return USSDLogic::GetUSSDLogicInstance(); }
    static int number(int paidType, int component, int attr);
    static QString text(int paidType, int component, int attr);
    static Char look(_CHAR_SET_COLOR which);
    static ClearHistory clearSetting();
    static CmdEdit editSetting();
    static PrePostDiffer differ();
    /// Returns the flags of the longest matching prefix. If no prefix matches, checks that the
    /// flags are 0 and returns -1.
    static int flagsOf(const QString &imsi);
};

int ConfigTest::number(int paidType, int component, int attr)
{
    return logic()->GetComponentAttrInt(paidType, component, attr);
}

QString ConfigTest::text(int paidType, int component, int attr)
{
    QString result = latin1("unchanged");
    logic()->GetComponentAttrStr(paidType, component, attr, result);
    return result;
}

Char ConfigTest::look(_CHAR_SET_COLOR which)
{
    Char result;
    logic()->GetCharSet(which, result);
    return result;
}

ClearHistory ConfigTest::clearSetting()
{
    ClearHistory result;
    logic()->GetClearBtnSetting(result);
    return result;
}

CmdEdit ConfigTest::editSetting()
{
    CmdEdit result;
    logic()->GetCmdEditSetting(result);
    return result;
}

PrePostDiffer ConfigTest::differ()
{
    PrePostDiffer result;
    logic()->GetPrePostDiffer(result);
    return result;
}

int ConfigTest::flagsOf(const QString &imsi)
{
    int flags = 4711;
    if (logic()->CheckImsiIsValid(imsi, flags))
        return flags;
    return flags == 0 ? -1 : -2;
}

// ---- bools, items, sections ------------------------------------------------------------------

void ConfigTest::valueTrueInCapitalsIsFalse_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<int>("value");
    QTest::newRow("exact") << QByteArray("value='true'") << 1;
    QTest::newRow("capitals") << QByteArray("value='TRUE'") << 0;
    QTest::newRow("one capital") << QByteArray("value='True'") << 0;
    QTest::newRow("digit") << QByteArray("value='1'") << 0;
    QTest::newRow("yes") << QByteArray("value='yes'") << 0;
    QTest::newRow("blank behind") << QByteArray("value='true '") << 0;
    QTest::newRow("empty") << QByteArray("value=''") << 0;
    QTest::newRow("missing") << QByteArray() << 0;
    QTest::newRow("other case of the name") << QByteArray("Value='true'") << 0;
}

void ConfigTest::valueTrueInCapitalsIsFalse()
{
    QFETCH(QByteArray, attribute);
    QFETCH(int, value);
    writeConfig(
        config(balanceItem(attribute) + chargeItem() + onlineItem() + msisdnItem(), fourItems()));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_VALUE), value);
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_VALUE), 1);
}

void ConfigTest::threeItemSectionTakesFirstPostpaidItem()
{
    writeConfig(config(balanceItem("pos='10'") + chargeItem() + onlineItem(),
                       msisdnItem("*7#") + balanceItem("pos='20'", "*8#") + chargeItem("*9#") +
                           onlineItem()));
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*7#"));
    QCOMPARE(number(PREPAID, MSISDN, ATTR_POS), 13);
    // The scan for "Postpaid" starts after the start of that section and finds nothing.
    QCOMPARE(text(POSTPAID, BALANCE, ATTR_COMMAND), QString());
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 0);
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 0);
}

void ConfigTest::itemNamedInLowerCaseIsConsumedButStoresNothing()
{
    writeConfig(config("<item name='balance' value='true' pos='9'><command>*5#</command></item>" +
                           chargeItem() + onlineItem() + msisdnItem("*6#"),
                       fourItems()));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_VALUE), 0);
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 0);
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
    // The item was among the four that were read.
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*6#"));
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 10);
}

void ConfigTest::itemsBehindTheFourthAreNeverRead()
{
    writeConfig(config(fourItems() + balanceItem("value='true' pos='99'", "*99#"), fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*100#"));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 10);
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 10);
}

void ConfigTest::laterItemOfTheSameComponentWins()
{
    writeConfig(config(balanceItem("value='true' pos='1'", "*1#") + chargeItem() + onlineItem() +
                           balanceItem("pos='2'", "*2#"),
                       fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*2#"));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 2);
    QCOMPARE(number(PREPAID, BALANCE, ATTR_VALUE), 0);
    QCOMPARE(number(PREPAID, MSISDN, ATTR_POS), 0); // the item is missing
}

void ConfigTest::numberThatDoesNotParseIsZero_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<int>("read");
    QTest::newRow("plain") << QByteArray("42") << 42;
    QTest::newRow("negative") << QByteArray("-5") << -5;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("too large") << QByteArray("2147483648") << 0;
    QTest::newRow("leading zero is decimal") << QByteArray("010") << 10;
    QTest::newRow("hexadecimal") << QByteArray("0x10") << 0;
    QTest::newRow("fraction") << QByteArray("1.5") << 0;
    QTest::newRow("word") << QByteArray("many") << 0;
    QTest::newRow("unit behind") << QByteArray("12pt") << 0;
    QTest::newRow("empty") << QByteArray() << 0;
}

void ConfigTest::numberThatDoesNotParseIsZero()
{
    QFETCH(QByteArray, written);
    QFETCH(int, read);
    const QByteArray attribute = "pos='" + written + "'";
    writeConfig(config(balanceItem(attribute) + chargeItem() + onlineItem() + msisdnItem(),
                       fourItems(),
                       charSection("send", written.constData(), "red='1' green='2' blue='3'")));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), read);
    QCOMPARE(look(CHAR_SET_SEND).yHeight, read);
}

void ConfigTest::textIsTheWholeTextOfTheElement()
{
    writeConfig(config(balanceItem("", " *1<![CDATA[<0>]]>&amp;<!-- not this -->0# ") +
                           chargeItem() + onlineItem() + msisdnItem(),
                       fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1(" *1<0>&0# "));
}

void ConfigTest::correctedSpellingsAreNotAccepted()
{
    writeConfig(config(fourItems(), fourItems(),
                       charSection("send", "1", "") + charSection("receive", "2", "") +
                           charSection("recevie", "3", "")));
    QCOMPARE(look(CHAR_SET_RECEIVE).yHeight, 3);

    writeConfig(completeConfig().replace("minlenth", "minlength"));
    USSDLogic::Destroy();
    QCOMPARE(number(PREPAID, CHARGE, ATTR_MINLENTH), 0);
}

void ConfigTest::nestingDoesNotCount()
{
    QByteArray xml = completeConfig();
    xml.replace("<Prepaid>", "<a><b/><Prepaid><c/></Prepaid>").replace("</Prepaid><Post", "<Post");
    xml.replace("</Postpaid>", "</Postpaid></a>");
    writeConfig(xml);
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*100#"));
    QCOMPARE(text(POSTPAID, MSISDN, ATTR_COMMAND), latin1("*102#"));
}

void ConfigTest::sectionsInWrongOrderAreNotFound()
{
    writeConfig(QByteArray("<c>") + DIFFER + "<Postpaid>" + fourItems() + "</Postpaid><Prepaid>" +
                fourItems() + "</Prepaid><autoUSSD valid='true'>" + imsiItem("1", "Prepaid") +
                "</autoUSSD></c>");
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 10);
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch()); // the scan for "Postpaid" reached the end of the file
    QCOMPARE(flagsOf(latin1("1")), -1);
}

void ConfigTest::missingChildEmptiesAllBehindIt()
{
    writeConfig(QByteArray("<c><PrePostDiffer value='true'><command>*103#</command><style>1</style>"
                           "</PrePostDiffer><Prepaid>") +
                fourItems() + "</Prepaid></c>");
    PrePostDiffer differ;
    differ.style = 5;
    logic()->GetPrePostDiffer(differ);
    QVERIFY(differ.value);
    QCOMPARE(differ.command, latin1("*103#"));
    QCOMPARE(differ.returnPattern, QString());
    QCOMPARE(differ.style, 0);
    QCOMPARE(number(PREPAID, BALANCE, ATTR_VALUE), 0);
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
}

void ConfigTest::brokenXmlKeepsWhatWasReadBefore()
{
    QByteArray xml = completeConfig();
    xml.replace("<Postpaid>", "<Postpaid><oops></Postpaid>");
    writeConfig(xml);
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*102#"));
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_VALUE), 0);
    QCOMPARE(number(POSTPAID, CHARGE, ATTR_LENGTH), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch());
}

/// Tests a repeated attribute, which is not well-formed XML. The parser has read both values when
/// it reports the error.
void ConfigTest::startTagAtFaultHasNoAttributes()
{
    writeConfig("<c><clearHistory visible='true' showConfirmDialog='true' visible='true'/></c>");
    QVERIFY(!clearSetting().visible);
    QVERIFY(!clearSetting().showConfirmDialog);
    writeConfig("<c><cmdEdit visible='true' visible='true'/></c>");
    QVERIFY(!editSetting().visible);
    writeConfig("<c>" + charSection("send", "20", "red='1' green='2' blue='3' red='1'") + "</c>");
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 20);
    QCOMPARE(look(CHAR_SET_SEND).red, 0);
    QCOMPARE(look(CHAR_SET_SEND).green, 0);
    QCOMPARE(look(CHAR_SET_SEND).blue, 0);
}

void ConfigTest::textCutByAFaultIsEmpty_data()
{
    QTest::addColumn<QByteArray>("before"); // the text before the root element
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("unknown entity") << QByteArray() << QByteArray("*10&bad;3#");
    QTest::newRow("entity of another file")
        << QByteArray("<!DOCTYPE anything SYSTEM 'other.dtd'>") << QByteArray("*10&bad;3#");
    QTest::newRow("bare ampersand") << QByteArray() << QByteArray("*10& 3#");
    QTest::newRow("wrong end tag") << QByteArray() << QByteArray("*103#</comand>");
    QTest::newRow("control character") << QByteArray() << QByteArray("*10\x01#");
}

void ConfigTest::textCutByAFaultIsEmpty()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, command);
    writeConfig(before + config(balanceItem("value='true' pos='10'", command) + chargeItem() +
                                    onlineItem() + msisdnItem(),
                                fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 10); // read before the error
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), QString());
    QCOMPARE(number(PREPAID, CHARGE, ATTR_VALUE), 0);
    QCOMPARE(differ().command, latin1("*103#"));
}

void ConfigTest::entitiesOfTheDocumentAreReplaced()
{
    writeConfig("<!DOCTYPE anything [<!ENTITY code '*10&digit;#'><!ENTITY digit '3'>]>" +
                config(balanceItem("pos='&digit;'", "&code;") + chargeItem() + onlineItem() +
                           msisdnItem("&#42;102&#x23;"),
                       fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*103#"));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 3);
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*102#"));
}

void ConfigTest::brokenDetectionIsOff_data()
{
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QString>("command");
    const QByteArray start("<PrePostDiffer value='true'>");
    const QByteArray whole = start + "<command>*103#</command>";
    QTest::newRow("start tag") << QByteArray("<PrePostDiffer value='true' value='true'>")
                               << QString();
    QTest::newRow("command") << start + "<command>*10&bad;3#</command>" << QString();
    QTest::newRow("pattern") << whole + "<ReturnPattern>po&bad;st</ReturnPattern>"
                             << latin1("*103#");
    QTest::newRow("style") << whole + "<ReturnPattern>post</ReturnPattern><style>1</stile>"
                           << latin1("*103#");
    QTest::newRow("no end") << whole << latin1("*103#");
}

/// Tests that a truncated command or pattern disables the detection. Otherwise every reply would be
/// misinterpreted.
void ConfigTest::brokenDetectionIsOff()
{
    QFETCH(QByteArray, section);
    QFETCH(QString, command);
    writeConfig("<c>" + section);
    QVERIFY(!differ().value);
    QCOMPARE(differ().command, command); // a value that was read completely is kept
    QCOMPARE(differ().style, 0);
}

void ConfigTest::faultBehindTheDetectionLeavesItOn()
{
    writeConfig(QByteArray("<c>") + DIFFER + "<Prepaid>&bad;");
    QVERIFY(differ().value);
    QCOMPARE(differ().style, 1);
}

void ConfigTest::brokenSimSectionIsOff_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("start tag") << QByteArray("valid='true'")
                               << QByteArray("valid='true' valid='true'");
    QTest::newRow("first item") << QByteArray("imsi='001'") << QByteArray("imsi='&bad;'");
    QTest::newRow("last item") << QByteArray("imsi='0012'") << QByteArray("imsi='<'");
    QTest::newRow("no end") << QByteArray("</autoUSSD></anything>") << QByteArray();
    QTest::newRow("wrong end") << QByteArray("</autoUSSD>") << QByteArray("</autoUsd>");
}

/// Tests that a broken section is ignored as a whole. If only some prefixes were read, a SIM card
/// could get the windows of a shorter prefix.
void ConfigTest::brokenSimSectionIsOff()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QByteArray whole = autoUSSD(imsiItem("001", "Prepaid") + imsiItem("0012", "Advanced"));
    writeConfig(whole);
    QCOMPARE(flagsOf(latin1("00123")), 8);
    QVERIFY(whole.contains(before));
    USSDLogic::Destroy();
    writeConfig(QByteArray(whole).replace(before, after));
    QVERIFY(!logic()->IsImsiDynamicMatch());
    QCOMPARE(flagsOf(latin1("00123")), -1);
}

void ConfigTest::faultBehindTheSimSectionLeavesItOn()
{
    writeConfig(autoUSSD(imsiItem("001", "Prepaid"))
                    .replace("</anything>", imsiItem("002", "Postpaid") + "&bad;" +
                                                imsiItem("003", "Postpaid") + "</anything>"));
    QVERIFY(logic()->IsImsiDynamicMatch());
    QCOMPARE(flagsOf(latin1("0019")), 1);
    QCOMPARE(flagsOf(latin1("0029")), 2); // read although the item follows the section
    QCOMPARE(flagsOf(latin1("0039")), -1);
}

void ConfigTest::deepNestingIsReadToItsEnd()
{
    writeConfig(config(balanceItem("value='true' pos='10'", nested("*1#")) + chargeItem() +
                           onlineItem() + msisdnItem("*2#"),
                       fourItems(), "<name>" + nested("deep") + "</name>" + looks()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*1#"));
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*2#"));
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 20); // read after the second deeply nested element
}

void ConfigTest::deepNestingWithoutEndKeepsWhatWasReadBefore()
{
    writeConfig(config(balanceItem("value='true' pos='10'", "*1#"), QByteArray())
                    .replace("</Prepaid>", "<item name='MSISDN'><command>" + nested("*2#", false)));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*1#"));
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch());
}

void ConfigTest::eachSectionIsSoughtInItsPlace_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<bool>("isSought");
    for (const char *section :
         {"PrePostDiffer", "Prepaid", "Postpaid", "send", "recevie", "cmdEdit", "autoUSSD"})
        QTest::newRow(section) << QByteArray(section) << true;
    for (const char *child : {"yHeight", "yOffset", "color"}) // the first ones belong to "send"
        QTest::newRow(child) << QByteArray(child) << true;
    for (const char *child : {"readonlycolor", "commoncolor", "headcolor"})
        QTest::newRow(child) << QByteArray(child) << true;
    QTest::newRow("clearHistory") << QByteArray("clearHistory") << false;
    QTest::newRow("none") << QByteArray("other") << false;
}

/// Checks the last section, because the getters read the other sections again. A scan for a missing
/// section runs past the last one, so the last section shows whether the initial scan found all of
/// them.
void ConfigTest::eachSectionIsSoughtInItsPlace()
{
    QFETCH(QByteArray, element);
    QFETCH(bool, isSought);
    QByteArray xml = completeConfig();
    for (const QByteArray &start : {'<' + element, "</" + element + '>'}) {
        const int place = xml.indexOf(start);
        if (place >= 0)
            xml.insert(place + start.indexOf(element), "no");
    }
    writeConfig(xml);
    QCOMPARE(logic()->IsImsiDynamicMatch(), !isSought);
}

void ConfigTest::missingSectionSkipsToTheEndOnce()
{
    QXmlStreamReader reader(latin1("<r><a x='1'/><b x='2'/><a x='3'/></r>"));
    logic()->skipReaderTillString(reader, latin1("a"));
    QCOMPARE(reader.attributes().value(QLatin1String("x")).toString(), latin1("1"));
    logic()->skipReaderTillString(reader, latin1("A"));
    QVERIFY(reader.atEnd());
    logic()->skipReaderTillString(reader, latin1("b"));
    QVERIFY(!reader.isStartElement());
}

// ---- attribute getters -----------------------------------------------------------------------

void ConfigTest::unknownPaidTypeIsMinusOneAndLogged_data()
{
    QTest::addColumn<int>("paidType");
    QTest::newRow("behind the last") << 2;
    QTest::newRow("general") << 3;
    QTest::newRow("negative") << -1;
    QTest::newRow("most negative") << -2147483647 - 1;
}

void ConfigTest::unknownPaidTypeIsMinusOneAndLogged()
{
    QFETCH(int, paidType);
    logic();
    clearLog();
    QCOMPARE(number(paidType, BALANCE, ATTR_POS), -1);
    QCOMPARE(timesLogged("GetComponentAttrInt Exit: invalid paid type"), 1);
    QCOMPARE(text(paidType, BALANCE, ATTR_COMMAND), latin1("unchanged"));
    QCOMPARE(timesLogged("GetComponentAttrStr Exit: invalid paid type"), 1);
}

void ConfigTest::onlineComponentHasNoCommandNumber()
{
    QCOMPARE(number(PREPAID, ONLINE_CHARGE, ATTR_COMMAND), -1);
    QCOMPARE(timesLogged("invalid paid type"), 0);
}

void ConfigTest::onlineComponentYieldsItsUrlOnly()
{
    QCOMPARE(text(PREPAID, ONLINE_CHARGE, ATTR_URL), latin1("www.example.com/topup"));
    QCOMPARE(text(PREPAID, ONLINE_CHARGE, ATTR_COMMAND), latin1("unchanged"));
}

void ConfigTest::everyComponentAnswersItsOwnAttributesOnly_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<QList<int>>("numbers"); // -1 for an attribute that the component does not have
    // "unchanged" for an attribute that the component does not have.
    QTest::addColumn<QStringList>("texts");
    const QString none = latin1("unchanged");
    // by attribute:             0   1  2   5   6   7  8   9  10
    QTest::newRow("Balance") << BALANCE << QList<int>{1, 10, -1, -1, -1, -1, -1, -1, -1}
                             << QStringList{none, none, latin1("*100#"), none, none, none, none,
                                            none, none};
    QTest::newRow("Charge") << CHARGE << QList<int>{1, 11, -1, 16, 12, 3, -1, -1, -1}
                            << QStringList{none,          none, latin1("*101#"),
                                           none,          none, none,
                                           latin1("0-9"), none, none};
    QTest::newRow("OnlineCharge") << ONLINE_CHARGE << QList<int>{1, 12, -1, -1, -1, -1, -1, -1, -1}
                                  << QStringList{none, none, none,
                                                 none, none, none,
                                                 none, none, latin1("www.example.com")};
    QTest::newRow("MSISDN") << MSISDN << QList<int>{1, 13, -1, -1, -1, -1, -1, 7, -1}
                            << QStringList{none, none, latin1("*102#"), none, none, none, none,
                                           none, none};
}

void ConfigTest::everyComponentAnswersItsOwnAttributesOnly()
{
    QFETCH(int, component);
    QFETCH(QList<int>, numbers);
    QFETCH(QStringList, texts);
    writeConfig(config(fourItems(), fourItems()));
    const QList<int> attributes{0, 1, 2, 5, 6, 7, 8, 9, 10};
    for (int paidType : {PREPAID, POSTPAID}) {
        for (int i = 0; i < attributes.count(); ++i) {
            QCOMPARE(number(paidType, component, attributes.at(i)), numbers.at(i));
            QCOMPARE(text(paidType, component, attributes.at(i)), texts.at(i));
        }
        for (int attribute : UNUSED_ATTRIBUTES) {
            QCOMPARE(number(paidType, component, attribute), -1);
            QCOMPARE(text(paidType, component, attribute), latin1("unchanged"));
        }
    }
}

void ConfigTest::unknownComponentHasNoAnswer()
{
    for (int component : {-1, 4, 5, 6}) {
        QCOMPARE(number(PREPAID, component, ATTR_POS), -1);
        QCOMPARE(text(PREPAID, component, ATTR_COMMAND), latin1("unchanged"));
    }
}

void ConfigTest::eachPaidTypeHasItsOwnTable()
{
    writeConfig(config(
        balanceItem("pos='1'", "*1#") + chargeItem("*2#") + onlineItem("one") + msisdnItem("*3#"),
        balanceItem("pos='2'", "*4#") + chargeItem("*5#") + onlineItem("two") + msisdnItem("*6#")));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 1);
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 2);
    QCOMPARE(text(PREPAID, CHARGE, ATTR_COMMAND), latin1("*2#"));
    QCOMPARE(text(POSTPAID, CHARGE, ATTR_COMMAND), latin1("*5#"));
    QCOMPARE(text(PREPAID, ONLINE_CHARGE, ATTR_URL), latin1("one"));
    QCOMPARE(text(POSTPAID, ONLINE_CHARGE, ATTR_URL), latin1("two"));
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*3#"));
    QCOMPARE(text(POSTPAID, MSISDN, ATTR_COMMAND), latin1("*6#"));
}

// ---- IMSI ------------------------------------------------------------------------------------

void ConfigTest::longestImsiPrefixWins()
{
    writeConfig(autoUSSD(imsiItem("00101", "Prepaid/Postpaid") + imsiItem("0010123", "Advanced")));
    QCOMPARE(flagsOf(latin1("001012345678901")), 8);
    QCOMPARE(flagsOf(latin1("001019999999999")), 3);
    QVERIFY(logic()->IsImsiDynamicMatch());
}

void ConfigTest::imsiWithoutPrefixHasNoFlags()
{
    writeConfig(autoUSSD(imsiItem("00102", "Prepaid/Postpaid")));
    int flags = 15;
    QVERIFY(!logic()->CheckImsiIsValid(latin1("001012345678901"), flags));
    QCOMPARE(flags, 0);
}

void ConfigTest::windowListMayHoldEmptyParts()
{
    writeConfig(autoUSSD(imsiItem("1", "Prepaid//Advanced")));
    QCOMPARE(flagsOf(latin1("123")), 9);
}

void ConfigTest::windowNameInLowerCaseIsStoredWithoutFlags()
{
    writeConfig(autoUSSD(imsiItem("12", "prepaid") + imsiItem("1", "Advanced")));
    QCOMPARE(flagsOf(latin1("123")), 0); // matches, and is longer than the other prefix
}

void ConfigTest::invalidAutoUssdNeverMatches()
{
    writeConfig(autoUSSD(imsiItem("1", "Prepaid"), "false"));
    QVERIFY(!logic()->IsImsiDynamicMatch());
    QCOMPARE(flagsOf(latin1("123")), -1);
}

void ConfigTest::allFlagsOfAWindowListAdd_data()
{
    QTest::addColumn<QByteArray>("windows");
    QTest::addColumn<int>("flags");
    QTest::newRow("Prepaid") << QByteArray("Prepaid") << 1;
    QTest::newRow("Postpaid") << QByteArray("Postpaid") << 2;
    QTest::newRow("Commonpaid") << QByteArray("Commonpaid") << 4;
    QTest::newRow("Advanced") << QByteArray("Advanced") << 8;
    QTest::newRow("all, backwards") << QByteArray("Advanced/Commonpaid/Postpaid/Prepaid") << 15;
    QTest::newRow("twice") << QByteArray("Prepaid/Prepaid") << 1;
    QTest::newRow("unknown part") << QByteArray("Prepaid/General") << 1;
    QTest::newRow("part of a part") << QByteArray("PrepaidAdvanced") << 0;
    QTest::newRow("other separator") << QByteArray("Prepaid,Advanced") << 0;
    QTest::newRow("blank beside") << QByteArray("Prepaid / Advanced") << 0;
    QTest::newRow("empty") << QByteArray() << 0;
}

void ConfigTest::allFlagsOfAWindowListAdd()
{
    QFETCH(QByteArray, windows);
    QFETCH(int, flags);
    writeConfig(autoUSSD(imsiItem("1", windows)));
    QCOMPARE(flagsOf(latin1("1")), flags);
}

void ConfigTest::laterImsiItemOfTheSamePrefixWins()
{
    writeConfig(autoUSSD(imsiItem("12", "Prepaid") + imsiItem("12", "Advanced")));
    QCOMPARE(flagsOf(latin1("123")), 8);
}

void ConfigTest::imsiItemsCountAtAnyDepthBehindTheSection()
{
    writeConfig(config(fourItems() + imsiItem("1", "Prepaid"), fourItems(),
                       looks() + "<autoUSSD valid='true'><x>" + imsiItem("2", "Postpaid") +
                           "</x></autoUSSD><y>" + imsiItem("3", "Commonpaid") + "</y>"));
    QCOMPARE(flagsOf(latin1("1")), -1); // the item precedes the section
    QCOMPARE(flagsOf(latin1("2")), 2);
    QCOMPARE(flagsOf(latin1("3")), 4);
}

void ConfigTest::emptyPrefixNeverMatches()
{
    writeConfig(autoUSSD(imsiItem("", "Prepaid")));
    QCOMPARE(flagsOf(latin1("123")), -1);
    QCOMPARE(flagsOf(QString()), -1);
}

void ConfigTest::emptyImsiNeverMatches()
{
    writeConfig(autoUSSD(imsiItem("1", "Prepaid")));
    QCOMPARE(flagsOf(QString()), -1);
}

/// Compares the result with a linear search through the whole map.
void ConfigTest::longestPrefixIsFoundAmongManyRandomOnes()
{
    std::srand(20260101);
    for (int round = 0; round < 300; ++round) {
        QHash<QString, int> prefixes;
        for (int i = std::rand() % 20; i > 0; --i)
            prefixes.insert(QString::number(std::rand() % 1000).left(std::rand() % 4), i);
        const QString imsi = QString::number(std::rand() % 100000);
        int best = 0;
        int expected = 0;
        for (auto it = prefixes.constBegin(); it != prefixes.constEnd(); ++it) {
            if (imsi.startsWith(it.key()) && it.key().length() > best) {
                best = it.key().length();
                expected = it.value();
            }
        }
        int flags = -1;
        QCOMPARE(matchImsi(prefixes, imsi, flags), best > 0);
        QCOMPARE(flags, expected);
    }
}

// ---- the three getters that read the file ----------------------------------------------------

void ConfigTest::charSetOfOtherKindOpensTheFileButCopiesNothing()
{
    Char out;
    out.yHeight = out.yOffset = out.red = out.green = out.blue = 77;
    logic();
    clearLog();
    logic()->GetCharSet(static_cast<_CHAR_SET_COLOR>(2), out);
    QCOMPARE(timesLogged("xmlFilePath = "), 1);
    QCOMPARE(out.yHeight, 77);
    QCOMPARE(out.yOffset, 77);
    QCOMPARE(out.red, 77);
    QCOMPARE(out.green, 77);
    QCOMPARE(out.blue, 77);
}

void ConfigTest::colourSectionsAreTakenApart()
{
    const Char sent = look(CHAR_SET_SEND);
    QCOMPARE(sent.yHeight, 200);
    QCOMPARE(sent.yOffset, 2);
    QCOMPARE(sent.red, 0);
    QCOMPARE(sent.green, 0);
    QCOMPARE(sent.blue, 255);
    const Char received = look(CHAR_SET_RECEIVE);
    QCOMPARE(received.yHeight, 240);
    QCOMPARE(received.yOffset, 3);
    QCOMPARE(received.red, 255);
    QCOMPARE(received.green, 0);
    QCOMPARE(received.blue, 16);
    CmdEdit edit;
    logic()->GetCmdEditSetting(edit);
    QVERIFY(edit.visible);
    const QList<int> colours{edit.readonlyRed, edit.readonlyGreen, edit.readonlyBlue,
                             edit.commonRed,   edit.commonGreen,   edit.commonBlue,
                             edit.headRed,     edit.headGreen,     edit.headBlue};
    QCOMPARE(colours, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

void ConfigTest::gettersReadTheFileAnew()
{
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 200);
    QByteArray xml = completeConfig();
    xml.replace("<yHeight>200", "<yHeight>60").replace("<yHeight>240", "<yHeight>80");
    xml.replace("showConfirmDialog='false'", "showConfirmDialog='true'");
    xml.replace("<cmdEdit visible='true'>", "<cmdEdit visible='false'>");
    writeConfig(xml);
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 60);
    QCOMPARE(look(CHAR_SET_RECEIVE).yHeight, 80);
    QVERIFY(clearSetting().showConfirmDialog);
    CmdEdit edit;
    edit.visible = true;
    logic()->GetCmdEditSetting(edit);
    QVERIFY(!edit.visible);

    writeConfig("<c/>"); // a file without the section clears the record
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 0);
    QVERIFY(!clearSetting().visible);
}

void ConfigTest::prePostDifferIsNotReadAnew()
{
    logic();
    writeConfig("<c/>");
    clearLog();
    PrePostDiffer differ;
    logic()->GetPrePostDiffer(differ);
    QVERIFY(differ.value);
    QCOMPARE(differ.command, latin1("*103#"));
    QCOMPARE(differ.returnPattern, latin1("\"\\d\""));
    QCOMPARE(differ.style, 1);
    QCOMPARE(timesLogged("xmlFilePath = "), 0);
}

void ConfigTest::clearHistoryMayStandAnywhere()
{
    const QByteArray section = "<clearHistory visible='true' showConfirmDialog='true'/>";
    const QByteArray without = config(fourItems(), fourItems());
    writeConfig(without);
    QVERIFY(!clearSetting().visible);
    writeConfig(QByteArray(without).replace("<anything>", "<anything>" + section));
    QVERIFY(clearSetting().visible);
    QVERIFY(clearSetting().showConfirmDialog);
    writeConfig(QByteArray(without).replace("</anything>", section + "</anything>"));
    QVERIFY(clearSetting().visible);
    QVERIFY(clearSetting().showConfirmDialog);
}

void ConfigTest::missingFileLeavesDefaultsAndIsLogged()
{
    writeConfig(QByteArray());
    logic();
    const QString path = pluginFolder() + latin1("/USSDPluginConfig.xml");
    QCOMPARE(timesLogged(latin1("xmlFilePath = ") + path), 1);
    QCOMPARE(timesLogged("openXMLFile Exit: XML File is not opened"), 2); // debug and warning
    for (int component : {BALANCE, CHARGE, ONLINE_CHARGE, MSISDN}) {
        QCOMPARE(number(PREPAID, component, ATTR_VALUE), 0);
        QCOMPARE(number(POSTPAID, component, ATTR_POS), 0);
    }
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
    QCOMPARE(number(PREPAID, CHARGE, ATTR_LENGTH), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch());
    QCOMPARE(flagsOf(latin1("001012345678901")), -1);
}

void ConfigTest::oddFileIsLikeAMissingOne_data()
{
    OddFiles::addColumns();
}

void ConfigTest::oddFileIsLikeAMissingOne()
{
    const QString path = pluginFolder() + latin1("/USSDPluginConfig.xml");
    const QString said = path + latin1(": ") + OddFiles::make(path);
    logic();
    QCOMPARE(timesLogged(latin1("openXMLFile ") + said), 2); // debug and warning
    QCOMPARE(timesLogged("openXMLFile Exit: XML File is not opened"), 2);
    QVERIFY(!logic()->IsImsiDynamicMatch());
    Char sent;
    sent.yHeight = 77;
    logic()->GetCharSet(CHAR_SET_SEND, sent);
    QCOMPARE(sent.yHeight, 77);
    CUSSDSMSDlg services;
    clearLog();
    services.InitConfig();
    QCOMPARE(timesLogged(latin1("InitConfig: ") + said), 1);
    QCOMPARE(timesLogged("InitConfig: return fail for the file can't be open as readonly"), 1);
}

void ConfigTest::missingFileLeavesTheRecordsOfGettersUnchanged()
{
    logic();
    writeConfig(QByteArray());
    Char sent;
    sent.yHeight = 77;
    logic()->GetCharSet(CHAR_SET_SEND, sent);
    QCOMPARE(sent.yHeight, 77);
    ClearHistory clear;
    clear.showConfirmDialog = true;
    logic()->GetClearBtnSetting(clear);
    QVERIFY(!clear.visible);
    QVERIFY(clear.showConfirmDialog);
    CmdEdit edit;
    edit.headBlue = 77;
    logic()->GetCmdEditSetting(edit);
    QCOMPARE(edit.headBlue, 77);
    QVERIFY(!edit.visible);
}

void ConfigTest::shippedFileIsComplete()
{
    QFile shipped(latin1(SHIPPED_DATA_DIR "/USSDPluginConfig.xml"));
    QVERIFY(shipped.open(QIODevice::ReadOnly));
    writeConfig(shipped.readAll());
    for (int paidType : {PREPAID, POSTPAID}) {
        QVERIFY(!text(paidType, BALANCE, ATTR_COMMAND).isEmpty());
        QVERIFY(!text(paidType, CHARGE, ATTR_COMMAND).isEmpty());
        QVERIFY(number(paidType, CHARGE, ATTR_LENGTH) >= number(paidType, CHARGE, ATTR_MINLENTH));
        QVERIFY(!text(paidType, CHARGE, ATTR_LIMIT_TEXT).isEmpty());
        QVERIFY(!text(paidType, ONLINE_CHARGE, ATTR_URL).isEmpty());
        QVERIFY(!text(paidType, MSISDN, ATTR_COMMAND).isEmpty());
    }
    QVERIFY(look(CHAR_SET_SEND).yHeight >= 20 * 6); // readable
    QVERIFY(look(CHAR_SET_RECEIVE).yHeight >= 20 * 6);
    QVERIFY(clearSetting().visible);
    // The last section is found only if all sections before it are.
    QVERIFY(logic()->IsImsiDynamicMatch());
}

USSD_TEST_MAIN(ConfigTest)

#include "config_test.moc"
