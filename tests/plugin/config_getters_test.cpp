#include "ConfigTest.h"

/** Tests the getters of the configuration and the IMSI matching. */
class ConfigGettersTest : public ConfigTest
{
    Q_OBJECT

private slots:
    // ---- attribute getters
    void unknownPaidTypeIsMinusOneAndLogged_data();
    void unknownPaidTypeIsMinusOneAndLogged();
    void onlineComponentHasNoCommandNumber();
    void onlineComponentYieldsItsUrlOnly();
    void everyComponentAnswersItsOwnAttributesOnly_data();
    void everyComponentAnswersItsOwnAttributesOnly();
    void unknownComponentHasNoAnswer();
    void eachPaidTypeHasItsOwnTable();

    // ---- IMSI
    void longestImsiPrefixWins();
    void imsiWithoutPrefixHasNoFlags();
    void windowListMayHoldEmptyParts();
    void windowNameInLowerCaseIsStoredWithoutFlags();
    void invalidAutoUssdNeverMatches();
    void allFlagsOfAWindowListAdd_data();
    void allFlagsOfAWindowListAdd();
    void laterImsiItemOfTheSamePrefixWins();
    void imsiItemsCountAtAnyDepthBehindTheSection();
    void emptyPrefixNeverMatches();
    void emptyImsiNeverMatches();
    void longestPrefixIsFoundAmongManyRandomOnes();

    // ---- the three getters that read the file
    void charSetOfOtherKindOpensTheFileButCopiesNothing();
    void colourSectionsAreTakenApart();
    void gettersReadTheFileAnew();
    void prePostDifferIsNotReadAnew();
    void clearHistoryMayStandAnywhere();
    void missingFileLeavesDefaultsAndIsLogged();
    void oddFileIsLikeAMissingOne_data();
    void oddFileIsLikeAMissingOne();
    void missingFileLeavesTheRecordsOfGettersUnchanged();
    void gettersLogTheirOwnName();
    void shippedFileIsComplete();
};

// ---- attribute getters --------------------------------------------------------------------------

void ConfigGettersTest::unknownPaidTypeIsMinusOneAndLogged_data()
{
    QTest::addColumn<int>("paidType");
    QTest::newRow("behind the last") << 2;
    QTest::newRow("general") << 3;
    QTest::newRow("negative") << -1;
    QTest::newRow("most negative") << -2147483647 - 1;
}

void ConfigGettersTest::unknownPaidTypeIsMinusOneAndLogged()
{
    QFETCH(int, paidType);
    logic();
    clearLog();
    QCOMPARE(number(paidType, BALANCE, ATTR_POS), -1);
    QCOMPARE(timesLogged("GetComponentAttrInt Exit: invalid paid type"), 1);
    QCOMPARE(text(paidType, BALANCE, ATTR_COMMAND), latin1("unchanged"));
    QCOMPARE(timesLogged("GetComponentAttrStr Exit: invalid paid type"), 1);
}

void ConfigGettersTest::onlineComponentHasNoCommandNumber()
{
    QCOMPARE(number(PREPAID, ONLINE_CHARGE, ATTR_COMMAND), -1);
    QCOMPARE(timesLogged("invalid paid type"), 0);
}

void ConfigGettersTest::onlineComponentYieldsItsUrlOnly()
{
    QCOMPARE(text(PREPAID, ONLINE_CHARGE, ATTR_URL), latin1("www.example.com/topup"));
    QCOMPARE(text(PREPAID, ONLINE_CHARGE, ATTR_COMMAND), latin1("unchanged"));
}

void ConfigGettersTest::everyComponentAnswersItsOwnAttributesOnly_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<QList<int>>("numbers"); // -1 if the component lacks the attribute
    // "unchanged" if the component does not have the attribute.
    QTest::addColumn<QStringList>("texts");
    const QString none = latin1("unchanged");
    // attribute numbers:        0   1  2   5   6   7  8   9  10
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

void ConfigGettersTest::everyComponentAnswersItsOwnAttributesOnly()
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

void ConfigGettersTest::unknownComponentHasNoAnswer()
{
    for (int component : {-1, 4, 5, 6}) {
        QCOMPARE(number(PREPAID, component, ATTR_POS), -1);
        QCOMPARE(text(PREPAID, component, ATTR_COMMAND), latin1("unchanged"));
    }
}

void ConfigGettersTest::eachPaidTypeHasItsOwnTable()
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

// ---- IMSI ---------------------------------------------------------------------------------------

void ConfigGettersTest::longestImsiPrefixWins()
{
    writeConfig(autoUSSD(imsiItem("00101", "Prepaid/Postpaid") + imsiItem("0010123", "Advanced")));
    QCOMPARE(flagsOf(latin1("001012345678901")), 8);
    QCOMPARE(flagsOf(latin1("001019999999999")), 3);
    QVERIFY(logic()->IsImsiDynamicMatch());
}

void ConfigGettersTest::imsiWithoutPrefixHasNoFlags()
{
    writeConfig(autoUSSD(imsiItem("00102", "Prepaid/Postpaid")));
    int flags = 15;
    QVERIFY(!logic()->CheckImsiIsValid(latin1("001012345678901"), flags));
    QCOMPARE(flags, 0);
}

void ConfigGettersTest::windowListMayHoldEmptyParts()
{
    writeConfig(autoUSSD(imsiItem("1", "Prepaid//Advanced")));
    QCOMPARE(flagsOf(latin1("123")), 9);
}

void ConfigGettersTest::windowNameInLowerCaseIsStoredWithoutFlags()
{
    writeConfig(autoUSSD(imsiItem("12", "prepaid") + imsiItem("1", "Advanced")));
    // The longest matching prefix is used, although its window name is unknown.
    QCOMPARE(flagsOf(latin1("123")), 0);
}

void ConfigGettersTest::invalidAutoUssdNeverMatches()
{
    writeConfig(autoUSSD(imsiItem("1", "Prepaid"), "false"));
    QVERIFY(!logic()->IsImsiDynamicMatch());
    QCOMPARE(flagsOf(latin1("123")), -1);
}

void ConfigGettersTest::allFlagsOfAWindowListAdd_data()
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

void ConfigGettersTest::allFlagsOfAWindowListAdd()
{
    QFETCH(QByteArray, windows);
    QFETCH(int, flags);
    writeConfig(autoUSSD(imsiItem("1", windows)));
    QCOMPARE(flagsOf(latin1("1")), flags);
}

void ConfigGettersTest::laterImsiItemOfTheSamePrefixWins()
{
    writeConfig(autoUSSD(imsiItem("12", "Prepaid") + imsiItem("12", "Advanced")));
    QCOMPARE(flagsOf(latin1("123")), 8);
}

void ConfigGettersTest::imsiItemsCountAtAnyDepthBehindTheSection()
{
    writeConfig(config(fourItems() + imsiItem("1", "Prepaid"), fourItems(),
                       looks() + "<autoUSSD valid='true'><x>" + imsiItem("2", "Postpaid") +
                           "</x></autoUSSD><y>" + imsiItem("3", "Commonpaid") + "</y>"));
    QCOMPARE(flagsOf(latin1("1")), -1); // an item before the section is ignored
    QCOMPARE(flagsOf(latin1("2")), 2);
    QCOMPARE(flagsOf(latin1("3")), 4);
}

void ConfigGettersTest::emptyPrefixNeverMatches()
{
    writeConfig(autoUSSD(imsiItem("", "Prepaid")));
    QCOMPARE(flagsOf(latin1("123")), -1);
    QCOMPARE(flagsOf(QString()), -1);
}

void ConfigGettersTest::emptyImsiNeverMatches()
{
    writeConfig(autoUSSD(imsiItem("1", "Prepaid")));
    QCOMPARE(flagsOf(QString()), -1);
}

/// Tests that matchImsi() gives the same results as a linear search in maps of random prefixes.
void ConfigGettersTest::longestPrefixIsFoundAmongManyRandomOnes()
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

// ---- the three getters that read the file -------------------------------------------------------

void ConfigGettersTest::charSetOfOtherKindOpensTheFileButCopiesNothing()
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

void ConfigGettersTest::colourSectionsAreTakenApart()
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

void ConfigGettersTest::gettersReadTheFileAnew()
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

    writeConfig("<c/>"); // clears the record, because the section is missing
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 0);
    QVERIFY(!clearSetting().visible);
}

void ConfigGettersTest::prePostDifferIsNotReadAnew()
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

void ConfigGettersTest::clearHistoryMayStandAnywhere()
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

void ConfigGettersTest::missingFileLeavesDefaultsAndIsLogged()
{
    writeConfig(QByteArray());
    logic();
    const QString path = pluginFolder() + latin1("/USSDPluginConfig.xml");
    QCOMPARE(timesLogged(latin1("xmlFilePath = ") + path), 1);
    // This line is logged twice: as a debug message and as a warning.
    QCOMPARE(timesLogged("openXMLFile Exit: XML File is not opened"), 2);
    for (int component : {BALANCE, CHARGE, ONLINE_CHARGE, MSISDN}) {
        QCOMPARE(number(PREPAID, component, ATTR_VALUE), 0);
        QCOMPARE(number(POSTPAID, component, ATTR_POS), 0);
    }
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
    QCOMPARE(number(PREPAID, CHARGE, ATTR_LENGTH), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch());
    QCOMPARE(flagsOf(latin1("001012345678901")), -1);
}

void ConfigGettersTest::oddFileIsLikeAMissingOne_data()
{
    OddFiles::addColumns();
}

void ConfigGettersTest::oddFileIsLikeAMissingOne()
{
    const QString path = pluginFolder() + latin1("/USSDPluginConfig.xml");
    const QString said = path + latin1(": ") + OddFiles::make(path);
    logic();
    // This line is logged twice: as a debug message and as a warning.
    QCOMPARE(timesLogged(latin1("openXMLFile ") + said), 2);
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

void ConfigGettersTest::missingFileLeavesTheRecordsOfGettersUnchanged()
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

/// Tests that each getter logs its own name, although all getters share the code that opens the
/// file. If there is no file, no Exit line is logged.
void ConfigGettersTest::gettersLogTheirOwnName()
{
    logic();
    for (const bool exists : {true, false}) {
        if (!exists)
            writeConfig(QByteArray());
        clearLog();
        look(CHAR_SET_SEND);
        clearSetting();
        editSetting();
        for (const char *getter : {"GetCharSet", "GetClearBtnSetting", "GetCmdEditSetting"}) {
            const QString start = latin1("/src/USSDUIPlugin/USSDLogic.cpp: ") + latin1(getter);
            QCOMPARE(timesLogged(start + latin1(" Enter")), 1);
            QCOMPARE(timesLogged(start + latin1(" Exit")), exists ? 1 : 0);
        }
        QCOMPARE(timesLogged("openXMLFile xmlFilePath = "), 3);
    }
}

void ConfigGettersTest::shippedFileIsComplete()
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
    QVERIFY(look(CHAR_SET_SEND).yHeight >= 20 * 6); // at least 6 points
    QVERIFY(look(CHAR_SET_RECEIVE).yHeight >= 20 * 6);
    QVERIFY(clearSetting().visible);
    // The last section is found only if all previous sections have been found.
    QVERIFY(logic()->IsImsiDynamicMatch());
}

USSD_TEST_MAIN(ConfigGettersTest)
#include "config_getters_test.moc"
