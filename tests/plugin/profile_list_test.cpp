#include "ProfileStoreTest.h"

#include <QXmlStreamReader>

#include "Languages.h"
#include "OddFiles.h"
#include "requests/USSDLogic.h"

/** Tests which profiles are read from the two profile files, including malformed ones. */
class ProfileListTest : public ProfileStoreTest
{
    Q_OBJECT

private slots:
    // ---- the list
    void userProfileWithASystemCodeIsDropped();
    void laterUserProfileWithTheSameCodeIsDropped();
    void systemProfilesWithTheSameCodeAreAllKept();
    void systemProfileIsNotComparedWithAnyOther();
    void systemProfilesComeFirst();
    void loadRebuildsTheList();
    void secondObjectSeesTheFilesAsTheyAreThen();
    void getProfileListReplacesTheCallersList();
    void freshProfileIsEmpty();
    void shownTextIsTheTranslationOrTheName();
    void shippedFileHasElevenProfiles();

    // ---- fields
    void readonlyInCapitalsOrAsDigitIsFalse_data();
    void readonlyInCapitalsOrAsDigitIsFalse();
    void missingFieldTakesTheRestFromTheNextItem();
    void missingLastFieldTakesNothingFromTheNextItem();
    void fieldsInAnotherOrderAreMissing();
    void rootAndItsAttributeAreNotChecked();
    void textIsReadAsItStands();
    void seekingAFieldStopsAtTheEndOfItsItem();

    // ---- broken and missing files
    void brokenXmlKeepsWhatWasReadBefore();
    void textCutByAFaultIsEmpty_data();
    void textCutByAFaultIsEmpty();
    void deepNestingIsReadToItsEnd();
    void deepNestingWithoutEndKeepsWhatWasReadBefore();
    void missingUserFileKeepsTheSystemProfiles();
    void missingSystemFileKeepsTheUserProfiles();
    void oddUserFileKeepsTheSystemProfiles_data();
    void oddUserFileKeepsTheSystemProfiles();
    void oddSystemFileKeepsTheUserProfiles_data();
    void oddSystemFileKeepsTheUserProfiles();
};

// ---- the list -----------------------------------------------------------------------------------

void ProfileListTest::userProfileWithASystemCodeIsDropped()
{
    writeSystemProfiles(profileFile(profileItem("Balance", "*100#")));
    writeUserProfiles(profileItem("Mine", "*100#"));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), QStringList{latin1("system *100#")});
    QCOMPARE(profiles.first().name, latin1("Balance"));
    QCOMPARE(timesLogged("USSDEditCmd.cpp: load command = *100#, already exists!!!"), 1);
    QCOMPARE(timesLogged("number of profiles = 1"), 1);
}

void ProfileListTest::laterUserProfileWithTheSameCodeIsDropped()
{
    writeUserProfiles(profileItem("First", "*1#") + profileItem("Second", "*1#") +
                      profileItem("Third", "*1# "));
    const QList<USSDProfile> profiles = loaded();
    // Codes that differ only in spaces are different codes.
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), latin1("*1# ")}));
    QCOMPARE(profiles.first().name, latin1("First"));
}

void ProfileListTest::systemProfilesWithTheSameCodeAreAllKept()
{
    writeSystemProfiles(profileFile(profileItem("One", "*100#") + profileItem("Two", "*100#")));
    QCOMPARE(codes(loaded()), (QStringList{latin1("system *100#"), latin1("system *100#")}));
    QCOMPARE(timesLogged("already exists!!!"), 0);
}

void ProfileListTest::systemProfileIsNotComparedWithAnyOther()
{
    writeSystemProfiles(profileFile(profileItem("One", "*100#")));
    USSDEditCmd store;
    store.load(systemFile(), true);
    QCOMPARE(codes(list(store)), (QStringList{latin1("system *100#"), latin1("system *100#")}));
}

void ProfileListTest::systemProfilesComeFirst()
{
    writeSystemProfiles(profileFile(profileItem("B", "*2#") + profileItem("A", "*1#")));
    writeUserProfiles(profileItem("D", "*4#") + profileItem("C", "*3#"));
    QCOMPARE(codes(loaded()), (QStringList{latin1("system *2#"), latin1("system *1#"),
                                           latin1("*4#"), latin1("*3#")}));
    QCOMPARE(timesLogged("load name = D"), 1);
    QCOMPARE(timesLogged("load value = *4#"), 1);
}

void ProfileListTest::loadRebuildsTheList()
{
    writeSystemProfiles(profileFile(profileItem("A", "*1#")));
    writeUserProfiles(profileItem("B", "*2#"));
    USSDEditCmd store;
    writeUserProfiles(profileItem("C", "*3#"));
    store.load();
    QCOMPARE(codes(list(store)), (QStringList{latin1("system *1#"), latin1("*3#")}));
}

void ProfileListTest::secondObjectSeesTheFilesAsTheyAreThen()
{
    writeUserProfiles(profileItem("A", "*1#"));
    USSDEditCmd first;
    writeUserProfiles(profileItem("B", "*2#"));
    USSDEditCmd second;
    QCOMPARE(codes(list(first)), QStringList{latin1("*1#")});
    QCOMPARE(codes(list(second)), QStringList{latin1("*2#")});
}

void ProfileListTest::getProfileListReplacesTheCallersList()
{
    writeUserProfiles(profileItem("A", "*1#"));
    USSDEditCmd store;
    QList<USSDProfile> profiles;
    profiles << profile(latin1("old"), latin1("*9#"));
    store.GetProfileList(profiles);
    QCOMPARE(codes(profiles), QStringList{latin1("*1#")});
    profiles.clear(); // does not affect the list in `store`
    QCOMPARE(codes(list(store)), QStringList{latin1("*1#")});
}

void ProfileListTest::freshProfileIsEmpty()
{
    const USSDProfile fresh;
    QVERIFY(fresh.name.isEmpty() && fresh.value.isEmpty());
    QVERIFY(fresh.langID.isEmpty() && fresh.desLangID.isEmpty());
    QVERIFY(!fresh.readonly && !fresh.showButton && !fresh.isSystem);
}

void ProfileListTest::shownTextIsTheTranslationOrTheName()
{
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    USSDProfile shown = profile(latin1("Name"), latin1("*1#"));
    QCOMPARE(logic->getProfileShowText(shown), latin1("Name"));
    shown.langID = latin1("IDS_BUTTON_SEND");
    const QString english = logic->getProfileShowText(shown);
    QVERIFY(english != latin1("Name") && english != shown.langID);
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    const QString german = logic->getProfileShowText(shown);
    QVERIFY(HostCore::Languages::setCurrent(latin1("en")));
    QVERIFY(german != english && !german.isEmpty());
}

void ProfileListTest::shippedFileHasElevenProfiles()
{
    writeSystemProfiles(contentOf(latin1(SHIPPED_DATA_DIR "/ussdsysprofile.xml")));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(profiles.count(), 11);
    for (const USSDProfile &each : profiles) {
        QVERIFY(each.showButton);
        QVERIFY(!each.value.isEmpty());
        QVERIFY(!each.name.isEmpty());
    }
    QVERIFY(profiles.at(9).value.contains(latin1("%s"))); // payment codes are at positions 9 and 10
    QVERIFY(profiles.at(10).value.contains(latin1("%s")));
}

// ---- fields -------------------------------------------------------------------------------------

void ProfileListTest::readonlyInCapitalsOrAsDigitIsFalse_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<bool>("read");
    QTest::newRow("exact") << QByteArray("true") << true;
    QTest::newRow("capitals") << QByteArray("TRUE") << false;
    QTest::newRow("one capital") << QByteArray("True") << false;
    QTest::newRow("digit") << QByteArray("1") << false;
    QTest::newRow("blank behind") << QByteArray("true ") << false;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void ProfileListTest::readonlyInCapitalsOrAsDigitIsFalse()
{
    QFETCH(QByteArray, written);
    QFETCH(bool, read);
    writeUserProfiles(profileItem("A", "*1#", written, "true") +
                      profileItem("B", "*2#", "true", written));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(profiles.count(), 2);
    QCOMPARE(profiles.at(0).readonly, read);
    QVERIFY(profiles.at(0).showButton);
    QVERIFY(profiles.at(1).readonly);
    QCOMPARE(profiles.at(1).showButton, read);
}

void ProfileListTest::missingFieldTakesTheRestFromTheNextItem()
{
    writeUserProfiles("<item><name>First</name><readonly>false</readonly>"
                      "<showButton>false</showButton><langID>L1</langID>"
                      "<desLangID>D1</desLangID></item>" +
                      profileItem("Second", "*2#", "true", "true", "L2", "D2") +
                      profileItem("Third", "*3#"));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(profiles.count(), 2);
    USSDProfile mixed = profile(latin1("First"), QString());
    mixed.readonly = mixed.showButton = true;
    mixed.langID = latin1("L2");
    mixed.desLangID = latin1("D2");
    QVERIFY(profiles.at(0) == mixed);
    QCOMPARE(profiles.at(1).name, latin1("Third"));
}

void ProfileListTest::missingLastFieldTakesNothingFromTheNextItem()
{
    writeUserProfiles("<item><name>First</name><value>*1#</value><readonly>false</readonly>"
                      "<showButton>false</showButton><langID/></item>" +
                      profileItem("Second", "*2#", "false", "false", "", "D2"));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), latin1("*2#")}));
    QCOMPARE(profiles.first().desLangID, QString());
}

void ProfileListTest::fieldsInAnotherOrderAreMissing()
{
    writeUserProfiles("<item><value>*1#</value><name>First</name><readonly>true</readonly>"
                      "<showButton>true</showButton><langID/><desLangID/></item>");
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(profiles.count(), 1);
    QVERIFY(profiles.first() == profile(latin1("First"), QString()));
}

void ProfileListTest::rootAndItsAttributeAreNotChecked()
{
    write(userFile(), "<other type='x'><deep>" + profileItem("A", "*1#") + "</deep></other>");
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
}

void ProfileListTest::textIsReadAsItStands()
{
    writeUserProfiles(profileItem(" A&amp;B ", " *1# ", "false", "false", " L ", " D "));
    const USSDProfile read = loaded().value(0);
    QCOMPARE(read.name, latin1(" A&B "));
    QCOMPARE(read.value, latin1(" *1# "));
    QCOMPARE(read.langID, latin1(" L "));
    QCOMPARE(read.desLangID, latin1(" D "));
}

void ProfileListTest::seekingAFieldStopsAtTheEndOfItsItem()
{
    USSDEditCmd store;
    QXmlStreamReader reader(latin1("<r><item><a/></item><item><b/></item></r>"));
    QVERIFY(store.skipXmlReaderTillString(reader, latin1("item")));
    QVERIFY(!store.skipXmlReaderTillString(reader, latin1("b")));
    QVERIFY(store.skipXmlReaderTillString(reader, latin1("b")));
    QVERIFY(reader.isStartElement());
    QVERIFY(!store.skipXmlReaderTillString(reader, latin1("item")));
    QVERIFY(reader.atEnd());
}

// ---- broken and missing files -------------------------------------------------------------------

void ProfileListTest::brokenXmlKeepsWhatWasReadBefore()
{
    write(userFile(), "<tksvdoc>" + profileItem("A", "*1#") + "<item><name>B</name><value>*2");
    const QList<USSDProfile> profiles = loaded();
    QVERIFY(!profiles.isEmpty());
    QCOMPARE(profiles.first().value, latin1("*1#"));
    QCOMPARE(profiles.first().name, latin1("A"));
}

void ProfileListTest::textCutByAFaultIsEmpty_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("value"); // the expected code of the incomplete profile
    const QByteArray start = "<tksvdoc>" + profileItem("A", "*1#") + "<item><name>B</name>";
    const QByteArray rest = "<readonly>true</readonly></item></tksvdoc>";
    QTest::newRow("no end") << start + "<value>*2" << QString();
    QTest::newRow("entity") << start + "<value>*10&bad;3#</value>" + rest << QString();
    QTest::newRow("entity of another file")
        << "<!DOCTYPE tksvdoc SYSTEM 'other.dtd'>" + start + "<value>*10&bad;3#</value>" + rest
        << QString();
    QTest::newRow("end tag") << start + "<value>*2#</valeu>" + rest << QString();
    QTest::newRow("behind the value") << start + "<value>*2#</value><&" + rest << latin1("*2#");
}

/// Tests that an incomplete code is discarded. Values that were read completely are kept, even if
/// they are in the same profile.
void ProfileListTest::textCutByAFaultIsEmpty()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, value);
    write(userFile(), content);
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), value}));
    QVERIFY(profiles.at(1) == profile(latin1("B"), value));
}

void ProfileListTest::deepNestingIsReadToItsEnd()
{
    const int levels = 100000;
    const QByteArray deep =
        QByteArray("<a>").repeated(levels) + "Deep" + QByteArray("</a>").repeated(levels);
    writeUserProfiles(profileItem(deep, "*1#") + profileItem("B", "*2#"));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), latin1("*2#")}));
    QCOMPARE(profiles.first().name, latin1("Deep"));
}

void ProfileListTest::deepNestingWithoutEndKeepsWhatWasReadBefore()
{
    write(userFile(), "<tksvdoc>" + profileItem("A", "*1#") + "<item><name>" +
                          QByteArray("<a>").repeated(100000));
    QCOMPARE(codes(loaded()).value(0), latin1("*1#"));
}

void ProfileListTest::missingUserFileKeepsTheSystemProfiles()
{
    writeSystemProfiles(profileFile(profileItem("A", "*1#")));
    QCOMPARE(codes(loaded()), QStringList{latin1("system *1#")});
    // This line is logged twice: as a debug message and as a warning.
    QCOMPARE(timesLogged("load Exit: XML File is not opened"), 2);
    QCOMPARE(timesLogged(latin1("load Enter: xmlFilePath = ") + userFile()), 1);
}

void ProfileListTest::missingSystemFileKeepsTheUserProfiles()
{
    writeSystemProfiles(QByteArray());
    writeUserProfiles(profileItem("A", "*1#"));
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
    QCOMPARE(timesLogged("load Exit: XML File is not opened"), 2);
}

void ProfileListTest::oddUserFileKeepsTheSystemProfiles_data()
{
    OddFiles::addColumns();
}

void ProfileListTest::oddUserFileKeepsTheSystemProfiles()
{
    const QString said = userFile() + latin1(": ") + OddFiles::make(userFile());
    writeSystemProfiles(profileFile(profileItem("A", "*1#")));
    QCOMPARE(codes(loaded()), QStringList{latin1("system *1#")});
    QCOMPARE(timesLogged(latin1("load ") + said), 2); // logged as a debug message and as a warning
    QCOMPARE(timesLogged("load Exit: XML File is not opened"), 2);
}

void ProfileListTest::oddSystemFileKeepsTheUserProfiles_data()
{
    OddFiles::addColumns();
}

void ProfileListTest::oddSystemFileKeepsTheUserProfiles()
{
    const QString said = systemFile() + latin1(": ") + OddFiles::make(systemFile());
    writeUserProfiles(profileItem("A", "*1#"));
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
    QCOMPARE(timesLogged(latin1("load ") + said), 2);
}

USSD_TEST_MAIN(ProfileListTest)

#include "profile_list_test.moc"
