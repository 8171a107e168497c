#include "ConfigTest.h"

/** Tests how the sections of the configuration are read. */
class ConfigSectionsTest : public ConfigTest
{
    Q_OBJECT

private slots:
    // ---- bools, items, sections
    void valueTrueInCapitalsIsFalse_data();
    void valueTrueInCapitalsIsFalse();
    void threeItemSectionTakesFirstPostpaidItem();
    void itemNamedInLowerCaseIsConsumedButStoresNothing();
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
    void documentWithEntitiesIsRefused_data();
    void documentWithEntitiesIsRefused();
    void documentWithEntitiesInUtf16IsRefused();
    void encodings_data();
    void encodings();
    void characterReferencesAreReplaced();
    void brokenDetectionIsOff_data();
    void brokenDetectionIsOff();
    void faultBehindTheDetectionLeavesItOn();
    void brokenSimSectionIsOff_data();
    void brokenSimSectionIsOff();
    void faultBehindTheSimSectionLeavesItOn();
    void deepNestingIsReadToItsEnd();
    void deepNestingWithoutEndKeepsWhatWasReadBefore();
    void eachSectionIsSoughtInItsPlace_data();
    void eachSectionIsSoughtInItsPlace();
    void missingSectionSkipsToTheEndOnce();
};

// ---- bools, items, sections ---------------------------------------------------------------------

void ConfigSectionsTest::valueTrueInCapitalsIsFalse_data()
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

void ConfigSectionsTest::valueTrueInCapitalsIsFalse()
{
    QFETCH(QByteArray, attribute);
    QFETCH(int, value);
    writeConfig(
        config(balanceItem(attribute) + chargeItem() + onlineItem() + msisdnItem(), fourItems()));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_VALUE), value);
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_VALUE), 1);
}

void ConfigSectionsTest::threeItemSectionTakesFirstPostpaidItem()
{
    writeConfig(config(balanceItem("pos='10'") + chargeItem() + onlineItem(),
                       msisdnItem("*7#") + balanceItem("pos='20'", "*8#") + chargeItem("*9#") +
                           onlineItem()));
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*7#"));
    QCOMPARE(number(PREPAID, MSISDN, ATTR_POS), 13);
    // The parser has already read past the start of the "Postpaid" section, so it does not find
    // this section.
    QCOMPARE(text(POSTPAID, BALANCE, ATTR_COMMAND), QString());
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 0);
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 0);
}

void ConfigSectionsTest::itemNamedInLowerCaseIsConsumedButStoresNothing()
{
    writeConfig(config("<item name='balance' value='true' pos='9'><command>*5#</command></item>" +
                           chargeItem() + onlineItem() + msisdnItem("*6#"),
                       fourItems()));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_VALUE), 0);
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 0);
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
    // The parser reads four items, including the one with an unknown name. MSISDN is the fourth.
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*6#"));
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 10);
}

void ConfigSectionsTest::itemsBehindTheFourthAreNeverRead()
{
    writeConfig(config(fourItems() + balanceItem("value='true' pos='99'", "*99#"), fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*100#"));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 10);
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 10);
}

void ConfigSectionsTest::laterItemOfTheSameComponentWins()
{
    writeConfig(config(balanceItem("value='true' pos='1'", "*1#") + chargeItem() + onlineItem() +
                           balanceItem("pos='2'", "*2#"),
                       fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*2#"));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 2);
    QCOMPARE(number(PREPAID, BALANCE, ATTR_VALUE), 0);
    QCOMPARE(number(PREPAID, MSISDN, ATTR_POS), 0); // the section has no MSISDN item
}

void ConfigSectionsTest::numberThatDoesNotParseIsZero_data()
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

void ConfigSectionsTest::numberThatDoesNotParseIsZero()
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

void ConfigSectionsTest::textIsTheWholeTextOfTheElement()
{
    writeConfig(config(balanceItem("", " *1<![CDATA[<0>]]>&amp;<!-- not this -->0# ") +
                           chargeItem() + onlineItem() + msisdnItem(),
                       fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1(" *1<0>&0# "));
}

void ConfigSectionsTest::correctedSpellingsAreNotAccepted()
{
    writeConfig(config(fourItems(), fourItems(),
                       charSection("send", "1", "") + charSection("receive", "2", "") +
                           charSection("recevie", "3", "")));
    QCOMPARE(look(CHAR_SET_RECEIVE).yHeight, 3);

    writeConfig(completeConfig().replace("minlenth", "minlength"));
    USSDLogic::Destroy();
    QCOMPARE(number(PREPAID, CHARGE, ATTR_MINLENTH), 0);
}

void ConfigSectionsTest::nestingDoesNotCount()
{
    QByteArray xml = completeConfig();
    xml.replace("<Prepaid>", "<a><b/><Prepaid><c/></Prepaid>").replace("</Prepaid><Post", "<Post");
    xml.replace("</Postpaid>", "</Postpaid></a>");
    writeConfig(xml);
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*100#"));
    QCOMPARE(text(POSTPAID, MSISDN, ATTR_COMMAND), latin1("*102#"));
}

void ConfigSectionsTest::sectionsInWrongOrderAreNotFound()
{
    writeConfig(QByteArray("<c>") + DIFFER + "<Postpaid>" + fourItems() + "</Postpaid><Prepaid>" +
                fourItems() + "</Prepaid><autoUSSD valid='true'>" + imsiItem("1", "Prepaid") +
                "</autoUSSD></c>");
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 10);
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch()); // the search for "Postpaid" has failed
    QCOMPARE(flagsOf(latin1("1")), -1);
}

void ConfigSectionsTest::missingChildEmptiesAllBehindIt()
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

void ConfigSectionsTest::brokenXmlKeepsWhatWasReadBefore()
{
    QByteArray xml = completeConfig();
    xml.replace("<Postpaid>", "<Postpaid><oops></Postpaid>");
    writeConfig(xml);
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*102#"));
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_VALUE), 0);
    QCOMPARE(number(POSTPAID, CHARGE, ATTR_LENGTH), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch());
}

/// Tests that no attribute of an element is used if one of its attributes is repeated. Such a
/// document is malformed, although the parser has read both values before it reports the error.
void ConfigSectionsTest::startTagAtFaultHasNoAttributes()
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

void ConfigSectionsTest::textCutByAFaultIsEmpty_data()
{
    QTest::addColumn<QByteArray>("before"); // precedes the root element
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("unknown entity") << QByteArray() << QByteArray("*10&bad;3#");
    QTest::newRow("entity of another file")
        << QByteArray("<!DOCTYPE anything SYSTEM 'other.dtd'>") << QByteArray("*10&bad;3#");
    QTest::newRow("bare ampersand") << QByteArray() << QByteArray("*10& 3#");
    QTest::newRow("wrong end tag") << QByteArray() << QByteArray("*103#</comand>");
    QTest::newRow("control character") << QByteArray() << QByteArray("*10\x01#");
}

void ConfigSectionsTest::textCutByAFaultIsEmpty()
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

/// Tests that a document with entity declarations is rejected, even if it does not use them. Qt 4
/// would expand the entities without a limit.
void ConfigSectionsTest::documentWithEntitiesIsRefused()
{
    QFETCH(QByteArray, declaration);
    const QByteArray sections = config(fourItems(), fourItems());
    writeConfig("<!DOCTYPE anything [" + declaration + "]>" + sections);
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
    QVERIFY(timesLogged("The document declares entities, which are not supported.") > 0);
}

void ConfigSectionsTest::documentWithEntitiesIsRefused_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::newRow("entity") << QByteArray("<!ENTITY code '*103#'>");
    QTest::newRow("parameter entity")
        << QByteArray("<!ENTITY % a '<!-- x -->'><!ENTITY % b '&#37;a;&#37;a;'>%b;");
    QTest::newRow("behind the first block")
        << "<!--" + QByteArray(64 * 1024 - 40, 'x') + "--><!ENTITY code '*103#'>";
}

void ConfigSectionsTest::documentWithEntitiesInUtf16IsRefused()
{
    const QString document = latin1("<!DOCTYPE anything [<!ENTITY code '*103#'>]>") +
                             QString::fromLatin1(config(fourItems(), fourItems()));
    const QString marked = QChar(QChar::ByteOrderMark) + document;
    writeConfig(QByteArray(reinterpret_cast<const char *>(marked.utf16()), 2 * marked.size()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), QString());
    QVERIFY(timesLogged("The document declares entities, which are not supported.") > 0);
}

void ConfigSectionsTest::encodings_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("none") << QByteArray() << true;
    QTest::newRow("without encoding") << QByteArray("<?xml version='1.0'?>") << true;
    QTest::newRow("UTF-8") << QByteArray("<?xml version='1.0' encoding='UTF-8'?>") << true;
    QTest::newRow("Latin-9") << QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>")
                             << true;
    for (const char *name : {"utf8", "latin1", "cp1251", "ISO_8859-1"})
        QTest::newRow(name) << QByteArray("<?xml version='1.0' encoding='") + name + "'?>" << true;
    QTest::newRow("UTF-7") << QByteArray("<?xml version='1.0' encoding='UTF-7'?>"
                                         "<!DOCTYPE a [<!ENT+AEk-TY b 'c'>]>")
                           << false;
    QTest::newRow("ISO-2022-JP") << QByteArray("<?xml version='1.0' encoding=\"iso-2022-jp\"?>"
                                               "<!DOCTYPE a [<!ENT\x1b(BITY b 'c'>]>")
                                 << false;
    QTest::newRow("name in the version")
        << QByteArray("<?xml version='encoding' encoding='UTF-7'?>") << false;
    QTest::newRow("behind the first block")
        << "<?xml version='1.0'" + QByteArray(64 * 1024, ' ') + "encoding='UTF-7'?>" << false;
}

/// Tests that a document is rejected if its encoding could hide entity declarations.
void ConfigSectionsTest::encodings()
{
    QFETCH(QByteArray, declaration);
    QFETCH(bool, isRead);
    writeConfig(declaration + config(fourItems(), fourItems()));
    QCOMPARE(!text(PREPAID, BALANCE, ATTR_COMMAND).isEmpty(), isRead);
    QCOMPARE(timesLogged("The encoding of the document is not supported.") > 0, !isRead);
}

void ConfigSectionsTest::characterReferencesAreReplaced()
{
    writeConfig("<!DOCTYPE anything>" +
                config(balanceItem("pos='&#51;'", "*10&#51;#") + chargeItem() + onlineItem() +
                           msisdnItem("&#42;102&#x23;"),
                       fourItems()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*103#"));
    QCOMPARE(number(PREPAID, BALANCE, ATTR_POS), 3);
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*102#"));
}

void ConfigSectionsTest::brokenDetectionIsOff_data()
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

/// Tests that an incomplete command or pattern disables the detection. Otherwise, the plug-in would
/// misinterpret all replies.
void ConfigSectionsTest::brokenDetectionIsOff()
{
    QFETCH(QByteArray, section);
    QFETCH(QString, command);
    writeConfig("<c>" + section);
    QVERIFY(!differ().value);
    QCOMPARE(differ().command, command); // values that were read completely are kept
    QCOMPARE(differ().style, 0);
}

void ConfigSectionsTest::faultBehindTheDetectionLeavesItOn()
{
    writeConfig(QByteArray("<c>") + DIFFER + "<Prepaid>&bad;");
    QVERIFY(differ().value);
    QCOMPARE(differ().style, 1);
}

void ConfigSectionsTest::brokenSimSectionIsOff_data()
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

/// Tests that an incomplete section with IMSI prefixes is ignored. If only some of the prefixes
/// were used, a shorter prefix could match a SIM card and select the wrong windows.
void ConfigSectionsTest::brokenSimSectionIsOff()
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

void ConfigSectionsTest::faultBehindTheSimSectionLeavesItOn()
{
    writeConfig(autoUSSD(imsiItem("001", "Prepaid"))
                    .replace("</anything>", imsiItem("002", "Postpaid") + "&bad;" +
                                                imsiItem("003", "Postpaid") + "</anything>"));
    QVERIFY(logic()->IsImsiDynamicMatch());
    QCOMPARE(flagsOf(latin1("0019")), 1);
    QCOMPARE(flagsOf(latin1("0029")), 2); // read, although it follows the section
    QCOMPARE(flagsOf(latin1("0039")), -1);
}

void ConfigSectionsTest::deepNestingIsReadToItsEnd()
{
    writeConfig(config(balanceItem("value='true' pos='10'", nested("*1#")) + chargeItem() +
                           onlineItem() + msisdnItem("*2#"),
                       fourItems(), "<name>" + nested("deep") + "</name>" + looks()));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*1#"));
    QCOMPARE(text(PREPAID, MSISDN, ATTR_COMMAND), latin1("*2#"));
    // The "send" section is found, although it follows the second deeply nested element.
    QCOMPARE(look(CHAR_SET_SEND).yHeight, 20);
}

void ConfigSectionsTest::deepNestingWithoutEndKeepsWhatWasReadBefore()
{
    writeConfig(config(balanceItem("value='true' pos='10'", "*1#"), QByteArray())
                    .replace("</Prepaid>", "<item name='MSISDN'><command>" + nested("*2#", false)));
    QCOMPARE(text(PREPAID, BALANCE, ATTR_COMMAND), latin1("*1#"));
    QCOMPARE(number(POSTPAID, BALANCE, ATTR_POS), 0);
    QVERIFY(!logic()->IsImsiDynamicMatch());
}

void ConfigSectionsTest::eachSectionIsSoughtInItsPlace_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<bool>("isSought");
    for (const char *section :
         {"PrePostDiffer", "Prepaid", "Postpaid", "send", "recevie", "cmdEdit", "autoUSSD"})
        QTest::newRow(section) << QByteArray(section) << true;
    // The parser takes these elements from the "send" section, which contains the first ones.
    for (const char *child : {"yHeight", "yOffset", "color"})
        QTest::newRow(child) << QByteArray(child) << true;
    for (const char *child : {"readonlycolor", "commoncolor", "headcolor"})
        QTest::newRow(child) << QByteArray(child) << true;
    QTest::newRow("clearHistory") << QByteArray("clearHistory") << false;
    QTest::newRow("none") << QByteArray("other") << false;
}

/// Tests that the parser searches for each section at its position in the file. If a section is
/// missing, the parser skips all sections after it. The test therefore renames one element at a
/// time, and checks whether the last section is found. The other sections are not checked, because
/// their getters read the file again.
void ConfigSectionsTest::eachSectionIsSoughtInItsPlace()
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

void ConfigSectionsTest::missingSectionSkipsToTheEndOnce()
{
    QXmlStreamReader reader(latin1("<r><a x='1'/><b x='2'/><a x='3'/></r>"));
    logic()->skipReaderTillString(reader, latin1("a"));
    QCOMPARE(reader.attributes().value(QLatin1String("x")).toString(), latin1("1"));
    logic()->skipReaderTillString(reader, latin1("A"));
    QVERIFY(reader.atEnd());
    logic()->skipReaderTillString(reader, latin1("b"));
    QVERIFY(!reader.isStartElement());
}

USSD_TEST_MAIN(ConfigSectionsTest)
#include "config_sections_test.moc"
