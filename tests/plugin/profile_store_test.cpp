#include "PluginTest.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <csignal>
#include <cstdlib>
#include <new>
#include <random>

#include <sys/stat.h>

#include "fake_tksv.h"
#include "Languages.h"
#include "OddFiles.h"
#include "ProcessLimits.h"
#include "profiles/USSDEditCmd.h"
#include "ProfileXml.h"
#include "requests/USSDLogic.h"
#include "tksv.h"

using namespace Formats;

namespace
{

/// The number of arrays that this thread has allocated but not yet deleted.
thread_local int arraysOfThisThread = 0;

} // namespace

void *operator new[](std::size_t bytes)
{
    void *memory = std::malloc(bytes > 0 ? bytes : 1);
    if (!memory)
        std::abort();
    ++arraysOfThisThread;
    return memory;
}

void operator delete[](void *memory) noexcept
{
    if (memory)
        --arraysOfThisThread;
    std::free(memory);
}

void operator delete[](void *memory, std::size_t) noexcept
{
    operator delete[](memory);
}

namespace
{

USSDProfile profile(const QString &name, const QString &value)
{
    USSDProfile result;
    result.name = name;
    result.value = value;
    return result;
}

QByteArray written(const QList<USSDProfile> &profiles)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly | QIODevice::Text);
    ProfileXml::write(buffer, profiles);
    return buffer.data();
}

QList<USSDProfile> readBack(QByteArray xml, QString *error = nullptr)
{
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&buffer);
    QList<USSDProfile> profiles;
    USSDProfile next;
    while (ProfileXml::readNext(reader, next))
        profiles << next;
    if (error)
        *error = reader.hasError() ? reader.errorString() : QString();
    return profiles;
}

QByteArray describe(const USSDProfile &profile)
{
    QString fields;
    for (const QString &text : {profile.name, profile.value, profile.langID, profile.desLangID}) {
        for (QChar unit : text)
            fields += QString::number(unit.unicode(), 16) + QLatin1Char(' ');
        fields += QLatin1String("| ");
    }
    return fields.toLatin1();
}

quint32 seedOfThisRun()
{
    const QByteArray chosen = qgetenv("USSD_TEST_SEED");
    const quint32 seed = chosen.isEmpty() ? 20260102u : chosen.toUInt();
    qInfo("seed: USSD_TEST_SEED=%u", seed);
    return seed;
}

/// Returns a random character that XML 1.0 allows, often one with a special meaning in XML or
/// Unicode.
QString randomCharacter(std::mt19937 &random)
{
    static const char16_t special[] = {
        u'<',   u'>',   u'&',    u'"',    u'\'',   u'\t',   u'\n',   u'\r',  u' ',   u']',   u';',
        u'#',   u'*',   u'%',    0x7f,    0x85,    0xa0,    0xad,    0x200e, 0x200f, 0x2028, 0x2029,
        0x202e, 0xd7ff, 0xe000u, 0xfeffu, 0xfdd0u, 0xfffcu, 0xfffdu, 0x3042, 0x645u, 0x0660u};
    switch (random() % 4) {
    case 0:
        return QString(QChar(special[random() % (sizeof(special) / sizeof(special[0]))]));
    case 1: {
        const uint beyond = 0x10000 + random() % 0x100000;
        return QString::fromUcs4(&beyond, 1);
    }
    case 2:
        return QString(QChar(ushort(0x20 + random() % 0x5f)));
    default:
        return QString(QChar(ushort(0xa0 + random() % 0xd000)));
    }
}

QString randomText(std::mt19937 &random, int longest = 12)
{
    QString text;
    for (int i = int(random() % uint(longest + 1)); i > 0; --i)
        text += randomCharacter(random);
    return text;
}

QList<USSDProfile> randomProfiles(std::mt19937 &random)
{
    QList<USSDProfile> profiles;
    for (int i = int(random() % 8); i > 0; --i) {
        USSDProfile next = profile(randomText(random), randomText(random).trimmed());
        next.readonly = random() % 2 == 0;
        next.showButton = random() % 2 == 0;
        next.langID = randomText(random).trimmed();
        next.desLangID = randomText(random).trimmed();
        profiles << next;
    }
    return profiles;
}

} // namespace

class ProfileStoreTest : public PluginTest
{
    Q_OBJECT

private slots:
    // the list
    void userProfileWithASystemCodeIsDropped();
    void laterUserProfileWithTheSameCodeIsDropped();
    void systemProfilesWithTheSameCodeAreAllKept();
    void systemProfileIsNotComparedWithAnyOther();
    void systemProfilesComeFirst();
    void readonlyInCapitalsOrAsDigitIsFalse_data();
    void readonlyInCapitalsOrAsDigitIsFalse();
    void missingFieldTakesTheRestFromTheNextItem();
    void missingLastFieldTakesNothingFromTheNextItem();
    void fieldsInAnotherOrderAreMissing();
    void rootAndItsAttributeAreNotChecked();
    void textIsReadAsItStands();
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
    void loadRebuildsTheList();
    void secondObjectSeesTheFilesAsTheyAreThen();
    void getProfileListReplacesTheCallersList();
    void seekingAFieldStopsAtTheEndOfItsItem();
    void freshProfileIsEmpty();
    void shownTextIsTheTranslationOrTheName();
    void shippedFileHasElevenProfiles();

    // paths
    void pathsAreThoseOfTheFolders();
    void userFolderIsTakenExactlyAsReturned();
    void textOfTheSdkIsReleasedAsAnArray();
    void withoutUserFolderThereIsNoUserPath();
    void legacyFileIsMovedOnceWithItsFolder();
    void legacyFolderWithOtherFilesStays();
    void legacyFileThatCannotBeCopiedStaysInUse();
    void oddLegacyFileIsNotCopied_data();
    void oddLegacyFileIsNotCopied();
    void newFileWinsOverLegacyFile();

    // saving
    void savingTheUserFileWritesUserProfilesOnly();
    void savingTheSystemFileWritesSystemProfilesOnly();
    void emptyListWritesARootWithoutItems();
    void formIsThatOfTheReader();
    void blanksAtTheEndsAreWrittenForNamesOnly();
    void failedOpenIs25AndLeavesNoFile();
    void folderInPlaceOfTheFileIs25();
    void withoutUserFolderSavingIs23();
    void readOnlyFolderIs25();
    void readOnlyFolderLeavesAnOldFileToBeWritten();
    void fileThatCannotBeDeletedStaysReadable();
    void fullDiskLeavesAFileThatCanBeRead();
    void missingUserFolderIsMade();
    void userFolderIsMadeOneLevelDeepOnly();
    void systemFolderIsNeverMade();
    void permissionCallHasNoEffect();
    void savedFileIsReadAgain();
    void savingDoesNotReload();

    // any text
    void randomListsSurvive();
    void carriageReturnsSurvive();
    void illegalCharactersAreLeftOut_data();
    void illegalCharactersAreLeftOut();
    void randomUnitsNeverMakeAnUnreadableFile();

private:
    QString userFile() { return userFolder() + latin1("ussdprofile.xml"); }
    QString legacyFile() { return userFolder() + latin1("userdata/ussdprofile.xml"); }
    QString systemFile() { return pluginFolder() + latin1("/ussdsysprofile.xml"); }
    void writeUserProfiles(const QByteArray &items) { write(userFile(), profileFile(items)); }
    static void write(const QString &path, const QByteArray &content);
    static QByteArray content(const QString &path);
    static QList<USSDProfile> list(USSDEditCmd &store);
    static QList<USSDProfile> loaded();
    /// Returns the codes of all profiles, and marks those of the system file.
    static QStringList codes(const QList<USSDProfile> &profiles);
};

void ProfileStoreTest::write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
}

QByteArray ProfileStoreTest::content(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray("no file");
    return file.readAll();
}

QList<USSDProfile> ProfileStoreTest::list(USSDEditCmd &store)
{
    QList<USSDProfile> profiles;
    store.GetProfileList(profiles);
    return profiles;
}

QList<USSDProfile> ProfileStoreTest::loaded()
{
    USSDEditCmd store;
    return list(store);
}

QStringList ProfileStoreTest::codes(const QList<USSDProfile> &profiles)
{
    QStringList result;
    for (const USSDProfile &each : profiles)
        result << (each.isSystem ? latin1("system ") : QString()) + each.value;
    return result;
}

// ---- the list --------------------------------------------------------------------------------

void ProfileStoreTest::userProfileWithASystemCodeIsDropped()
{
    writeSystemProfiles(profileFile(profileItem("Balance", "*100#")));
    writeUserProfiles(profileItem("Mine", "*100#"));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), QStringList{latin1("system *100#")});
    QCOMPARE(profiles.first().name, latin1("Balance"));
    QCOMPARE(timesLogged("USSDEditCmd.cpp: load command = *100#, already exists!!!"), 1);
    QCOMPARE(timesLogged("number of profiles = 1"), 1);
}

void ProfileStoreTest::laterUserProfileWithTheSameCodeIsDropped()
{
    writeUserProfiles(profileItem("First", "*1#") + profileItem("Second", "*1#") +
                      profileItem("Third", "*1# "));
    const QList<USSDProfile> profiles = loaded();
    // Codes that differ in blanks are different codes.
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), latin1("*1# ")}));
    QCOMPARE(profiles.first().name, latin1("First"));
}

void ProfileStoreTest::systemProfilesWithTheSameCodeAreAllKept()
{
    writeSystemProfiles(profileFile(profileItem("One", "*100#") + profileItem("Two", "*100#")));
    QCOMPARE(codes(loaded()), (QStringList{latin1("system *100#"), latin1("system *100#")}));
    QCOMPARE(timesLogged("already exists!!!"), 0);
}

void ProfileStoreTest::systemProfileIsNotComparedWithAnyOther()
{
    writeSystemProfiles(profileFile(profileItem("One", "*100#")));
    USSDEditCmd store;
    store.load(systemFile(), true);
    QCOMPARE(codes(list(store)), (QStringList{latin1("system *100#"), latin1("system *100#")}));
}

void ProfileStoreTest::systemProfilesComeFirst()
{
    writeSystemProfiles(profileFile(profileItem("B", "*2#") + profileItem("A", "*1#")));
    writeUserProfiles(profileItem("D", "*4#") + profileItem("C", "*3#"));
    QCOMPARE(codes(loaded()), (QStringList{latin1("system *2#"), latin1("system *1#"),
                                           latin1("*4#"), latin1("*3#")}));
    QCOMPARE(timesLogged("load name = D"), 1);
    QCOMPARE(timesLogged("load value = *4#"), 1);
}

void ProfileStoreTest::readonlyInCapitalsOrAsDigitIsFalse_data()
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

void ProfileStoreTest::readonlyInCapitalsOrAsDigitIsFalse()
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

void ProfileStoreTest::missingFieldTakesTheRestFromTheNextItem()
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

void ProfileStoreTest::missingLastFieldTakesNothingFromTheNextItem()
{
    writeUserProfiles("<item><name>First</name><value>*1#</value><readonly>false</readonly>"
                      "<showButton>false</showButton><langID/></item>" +
                      profileItem("Second", "*2#", "false", "false", "", "D2"));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), latin1("*2#")}));
    QCOMPARE(profiles.first().desLangID, QString());
}

void ProfileStoreTest::fieldsInAnotherOrderAreMissing()
{
    writeUserProfiles("<item><value>*1#</value><name>First</name><readonly>true</readonly>"
                      "<showButton>true</showButton><langID/><desLangID/></item>");
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(profiles.count(), 1);
    QVERIFY(profiles.first() == profile(latin1("First"), QString()));
}

void ProfileStoreTest::rootAndItsAttributeAreNotChecked()
{
    write(userFile(), "<other type='x'><deep>" + profileItem("A", "*1#") + "</deep></other>");
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
}

void ProfileStoreTest::textIsReadAsItStands()
{
    writeUserProfiles(profileItem(" A&amp;B ", " *1# ", "false", "false", " L ", " D "));
    const USSDProfile read = loaded().value(0);
    QCOMPARE(read.name, latin1(" A&B "));
    QCOMPARE(read.value, latin1(" *1# "));
    QCOMPARE(read.langID, latin1(" L "));
    QCOMPARE(read.desLangID, latin1(" D "));
}

void ProfileStoreTest::brokenXmlKeepsWhatWasReadBefore()
{
    write(userFile(), "<tksvdoc>" + profileItem("A", "*1#") + "<item><name>B</name><value>*2");
    const QList<USSDProfile> profiles = loaded();
    QVERIFY(!profiles.isEmpty());
    QCOMPARE(profiles.first().value, latin1("*1#"));
    QCOMPARE(profiles.first().name, latin1("A"));
}

void ProfileStoreTest::textCutByAFaultIsEmpty_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("value"); // the expected code of the profile that contains the error
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

/// Tests that a truncated code is never used. Values that were read completely are kept, even in
/// the profile that contains the error.
void ProfileStoreTest::textCutByAFaultIsEmpty()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, value);
    write(userFile(), content);
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), value}));
    QVERIFY(profiles.at(1) == profile(latin1("B"), value));
}

void ProfileStoreTest::deepNestingIsReadToItsEnd()
{
    const int levels = 100000;
    const QByteArray deep =
        QByteArray("<a>").repeated(levels) + "Deep" + QByteArray("</a>").repeated(levels);
    writeUserProfiles(profileItem(deep, "*1#") + profileItem("B", "*2#"));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(codes(profiles), (QStringList{latin1("*1#"), latin1("*2#")}));
    QCOMPARE(profiles.first().name, latin1("Deep"));
}

void ProfileStoreTest::deepNestingWithoutEndKeepsWhatWasReadBefore()
{
    write(userFile(), "<tksvdoc>" + profileItem("A", "*1#") + "<item><name>" +
                          QByteArray("<a>").repeated(100000));
    QCOMPARE(codes(loaded()).value(0), latin1("*1#"));
}

void ProfileStoreTest::missingUserFileKeepsTheSystemProfiles()
{
    writeSystemProfiles(profileFile(profileItem("A", "*1#")));
    QCOMPARE(codes(loaded()), QStringList{latin1("system *1#")});
    // Logged as a debug message and as a warning.
    QCOMPARE(timesLogged("load Exit: XML File is not opened"), 2);
    QCOMPARE(timesLogged(latin1("load Enter: xmlFilePath = ") + userFile()), 1);
}

void ProfileStoreTest::missingSystemFileKeepsTheUserProfiles()
{
    writeSystemProfiles(QByteArray());
    writeUserProfiles(profileItem("A", "*1#"));
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
    QCOMPARE(timesLogged("load Exit: XML File is not opened"), 2);
}

void ProfileStoreTest::oddUserFileKeepsTheSystemProfiles_data()
{
    OddFiles::addColumns();
}

void ProfileStoreTest::oddUserFileKeepsTheSystemProfiles()
{
    const QString said = userFile() + latin1(": ") + OddFiles::make(userFile());
    writeSystemProfiles(profileFile(profileItem("A", "*1#")));
    QCOMPARE(codes(loaded()), QStringList{latin1("system *1#")});
    QCOMPARE(timesLogged(latin1("load ") + said), 2); // logged as a debug message and as a warning
    QCOMPARE(timesLogged("load Exit: XML File is not opened"), 2);
}

void ProfileStoreTest::oddSystemFileKeepsTheUserProfiles_data()
{
    OddFiles::addColumns();
}

void ProfileStoreTest::oddSystemFileKeepsTheUserProfiles()
{
    const QString said = systemFile() + latin1(": ") + OddFiles::make(systemFile());
    writeUserProfiles(profileItem("A", "*1#"));
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
    QCOMPARE(timesLogged(latin1("load ") + said), 2);
}

void ProfileStoreTest::loadRebuildsTheList()
{
    writeSystemProfiles(profileFile(profileItem("A", "*1#")));
    writeUserProfiles(profileItem("B", "*2#"));
    USSDEditCmd store;
    writeUserProfiles(profileItem("C", "*3#"));
    store.load();
    QCOMPARE(codes(list(store)), (QStringList{latin1("system *1#"), latin1("*3#")}));
}

void ProfileStoreTest::secondObjectSeesTheFilesAsTheyAreThen()
{
    writeUserProfiles(profileItem("A", "*1#"));
    USSDEditCmd first;
    writeUserProfiles(profileItem("B", "*2#"));
    USSDEditCmd second;
    QCOMPARE(codes(list(first)), QStringList{latin1("*1#")});
    QCOMPARE(codes(list(second)), QStringList{latin1("*2#")});
}

void ProfileStoreTest::getProfileListReplacesTheCallersList()
{
    writeUserProfiles(profileItem("A", "*1#"));
    USSDEditCmd store;
    QList<USSDProfile> profiles;
    profiles << profile(latin1("old"), latin1("*9#"));
    store.GetProfileList(profiles);
    QCOMPARE(codes(profiles), QStringList{latin1("*1#")});
    profiles.clear(); // clears only a copy
    QCOMPARE(codes(list(store)), QStringList{latin1("*1#")});
}

void ProfileStoreTest::seekingAFieldStopsAtTheEndOfItsItem()
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

void ProfileStoreTest::freshProfileIsEmpty()
{
    const USSDProfile fresh;
    QVERIFY(fresh.name.isEmpty() && fresh.value.isEmpty());
    QVERIFY(fresh.langID.isEmpty() && fresh.desLangID.isEmpty());
    QVERIFY(!fresh.readonly && !fresh.showButton && !fresh.isSystem);
}

void ProfileStoreTest::shownTextIsTheTranslationOrTheName()
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

void ProfileStoreTest::shippedFileHasElevenProfiles()
{
    writeSystemProfiles(content(latin1(SHIPPED_DATA_DIR "/ussdsysprofile.xml")));
    const QList<USSDProfile> profiles = loaded();
    QCOMPARE(profiles.count(), 11);
    for (const USSDProfile &each : profiles) {
        QVERIFY(each.showButton);
        QVERIFY(!each.value.isEmpty());
        QVERIFY(!each.name.isEmpty());
    }
    QVERIFY(profiles.at(9).value.contains(latin1("%s"))); // profiles 9 and 10 are payment codes
    QVERIFY(profiles.at(10).value.contains(latin1("%s")));
}

// ---- paths -----------------------------------------------------------------------------------

void ProfileStoreTest::pathsAreThoseOfTheFolders()
{
    USSDEditCmd store;
    clearLog();
    QString path = latin1("old");
    store.getSystemProfileXMLFilePath(path);
    QCOMPARE(path, systemFile());
    QCOMPARE(timesLogged(latin1("Exit: system profile file path= ") + systemFile()), 1);
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, userFile());
    QCOMPARE(timesLogged(latin1("Exit: user profile file path=") + userFile()), 1);
    QCOMPARE(timesLogged("before caling TKSV_GetUserDataDirectory()"), 1);
    QCOMPARE(timesLogged("after caling TKSV_GetUserDataDirectory(), retVal=0"), 1);
}

void ProfileStoreTest::userFolderIsTakenExactlyAsReturned()
{
    fakeSdkSetUserDataDirectory((folder() + latin1("/user")).toStdU16String());
    USSDEditCmd store;
    QString path;
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, folder() + latin1("/userussdprofile.xml"));
}

void ProfileStoreTest::textOfTheSdkIsReleasedAsAnArray()
{
    USSDEditCmd store;
    QString path;
    const int before = arraysOfThisThread;
    unsigned short *units = nullptr;
    QCOMPARE(TKSV_GetUserDataDirectory(&units), 0L);
    QCOMPARE(arraysOfThisThread, before + 1); // proves that the test counts the SDK's allocations
    delete[] units;
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, userFile());
    QCOMPARE(arraysOfThisThread, before);
}

void ProfileStoreTest::withoutUserFolderThereIsNoUserPath()
{
    writeSystemProfiles(profileFile(profileItem("A", "*1#")));
    writeUserProfiles(profileItem("B", "*2#"));
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 7);
    USSDEditCmd store;
    QCOMPARE(codes(list(store)), QStringList{latin1("system *1#")});
    QString path = latin1("old");
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, QString());
    QVERIFY(timesLogged("after caling TKSV_GetUserDataDirectory(), retVal=7") > 0);
}

void ProfileStoreTest::legacyFileIsMovedOnceWithItsFolder()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    const QByteArray old = profileFile(profileItem("A", "*1#"));
    write(legacyFile(), old);
    USSDEditCmd store; // calls the SDK for the first time
    QCOMPARE(codes(list(store)), QStringList{latin1("*1#")});
    QCOMPARE(content(userFile()), old);
    QVERIFY(!QFile::exists(legacyFile()));
    QVERIFY(!QDir(userFolder() + latin1("userdata")).exists());
    QCOMPARE(timesLogged(legacyFile() + latin1(" exists!")), 1);
    clearLog();

    QString path;
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, userFile());
    QCOMPARE(content(userFile()), old);
    QCOMPARE(timesLogged(" exists!"), 0);
}

void ProfileStoreTest::legacyFolderWithOtherFilesStays()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    write(legacyFile(), profileFile(profileItem("A", "*1#")));
    const QString other = userFolder() + latin1("userdata/other");
    write(other, "x");
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
    QVERIFY(!QFile::exists(legacyFile()));
    QCOMPARE(content(other), QByteArray("x"));
    QCOMPARE(timesLogged(latin1("the path ") + userFolder() + latin1("userdata remove failed!")),
             1);
}

void ProfileStoreTest::legacyFileThatCannotBeCopiedStaysInUse()
{
    QVERIFY(QDir().mkpath(legacyFile() + latin1("/inside"))); // a folder with the name of the file
    USSDEditCmd store;
    clearLog();
    QString path;
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, legacyFile());
    QVERIFY(QDir(legacyFile()).exists());
    QVERIFY(!QFile::exists(userFile()));
    QCOMPARE(timesLogged(legacyFile() + latin1(" copy failed! error : ")), 1);
    QCOMPARE(timesLogged(latin1("Exit: user profile file path=") + legacyFile()), 1);
}

void ProfileStoreTest::oddLegacyFileIsNotCopied_data()
{
    OddFiles::addColumns();
}

void ProfileStoreTest::oddLegacyFileIsNotCopied()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    const QString why = OddFiles::make(legacyFile());
    QVERIFY(loaded().isEmpty());
    QVERIFY(!QFile::exists(userFile()));
    QVERIFY(QFile::exists(legacyFile()));
    QCOMPARE(timesLogged(legacyFile() + latin1(" copy failed! error : ") + why), 1);
}

void ProfileStoreTest::newFileWinsOverLegacyFile()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    write(legacyFile(), profileFile(profileItem("Old", "*1#")));
    writeUserProfiles(profileItem("New", "*2#"));
    QCOMPARE(codes(loaded()), QStringList{latin1("*2#")});
    QVERIFY(QFile::exists(legacyFile()));
}

// ---- saving ----------------------------------------------------------------------------------

void ProfileStoreTest::savingTheUserFileWritesUserProfilesOnly()
{
    writeSystemProfiles(profileFile(profileItem("S", "*1#")));
    writeUserProfiles(profileItem("U", "*2#") + profileItem("V", "*3#"));
    const QByteArray system = content(systemFile());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QCOMPARE(codes(readBack(content(userFile()))), (QStringList{latin1("*2#"), latin1("*3#")}));
    QCOMPARE(content(systemFile()), system);
    QCOMPARE(timesLogged(latin1("saveToXMLFile Dir path=") + userFolder().chopped(1)), 1);
}

void ProfileStoreTest::savingTheSystemFileWritesSystemProfilesOnly()
{
    writeSystemProfiles(profileFile(profileItem("S", "*1#") + profileItem("T", "*1#")));
    writeUserProfiles(profileItem("U", "*2#"));
    const QByteArray user = content(userFile());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(true), 0);
    QCOMPARE(codes(readBack(content(systemFile()))), (QStringList{latin1("*1#"), latin1("*1#")}));
    QCOMPARE(content(userFile()), user);
}

void ProfileStoreTest::emptyListWritesARootWithoutItems()
{
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QXmlStreamReader reader(content(userFile()));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), latin1("tksvdoc"));
    QCOMPARE(reader.attributes().value(QLatin1String("type")).toString(), latin1("USSDProfile"));
    QVERIFY(!reader.readNextStartElement());
    QVERIFY(!reader.hasError());
}

void ProfileStoreTest::formIsThatOfTheReader()
{
    USSDProfile balance = profile(latin1("Balance"), latin1("*101#"));
    balance.showButton = true;
    QCOMPARE(QString::fromUtf8(written(QList<USSDProfile>() << balance)),
             latin1("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                    "<tksvdoc type=\"USSDProfile\">\n"
                    "    <item>\n"
                    "        <name>Balance</name>\n"
                    "        <value>*101#</value>\n"
                    "        <readonly>false</readonly>\n"
                    "        <showButton>true</showButton>\n"
                    "        <langID></langID>\n"
                    "        <desLangID></desLangID>\n"
                    "    </item>\n"
                    "</tksvdoc>\n"));
}

void ProfileStoreTest::blanksAtTheEndsAreWrittenForNamesOnly()
{
    USSDProfile padded = profile(latin1("  my name "), latin1(" *1# "));
    padded.langID = latin1("\tL ");
    padded.desLangID = latin1(" D\n");
    const USSDProfile read = readBack(written(QList<USSDProfile>() << padded)).value(0);
    QCOMPARE(read.name, latin1("  my name "));
    QCOMPARE(read.value, latin1("*1#"));
    QCOMPARE(read.langID, latin1("L"));
    QCOMPARE(read.desLangID, latin1("D"));
}

void ProfileStoreTest::failedOpenIs25AndLeavesNoFile()
{
    writeUserProfiles(profileItem("U", "*2#"));
    USSDEditCmd store;
    int status = 0;
    {
        const NoFileCanBeOpened noFile;
        status = store.saveToXMLFile(false);
    }
    QCOMPARE(status, 25);
    QVERIFY(!QFile::exists(userFile()));
    QCOMPARE(timesLogged("saveToXMLFile Exit: XML file open failed"), 2);
    // The codes stay in memory and can be saved later.
    QCOMPARE(codes(list(store)), QStringList{latin1("*2#")});
    QCOMPARE(store.saveToXMLFile(false), 0);
    QCOMPARE(codes(loaded()), QStringList{latin1("*2#")});
}

void ProfileStoreTest::folderInPlaceOfTheFileIs25()
{
    QVERIFY(QDir().mkpath(userFile() + latin1("/inside")));
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 25);
}

void ProfileStoreTest::withoutUserFolderSavingIs23()
{
    USSDEditCmd store;
    writeUserProfiles(profileItem("U", "*2#"));
    const QByteArray before = content(userFile());
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 1);
    QCOMPARE(store.saveToXMLFile(false), 23);
    QCOMPARE(timesLogged("saveToXMLFile Fail Exit: user profile file name is empty"), 2);
    QCOMPARE(content(userFile()), before);
}

void ProfileStoreTest::missingUserFolderIsMade()
{
    fakeSdkSetUserDataDirectory((folder() + latin1("/new/")).toStdU16String());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QVERIFY(QFile::exists(folder() + latin1("/new/ussdprofile.xml")));
}

void ProfileStoreTest::userFolderIsMadeOneLevelDeepOnly()
{
    fakeSdkSetUserDataDirectory((folder() + latin1("/new/deep/")).toStdU16String());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 21);
    QVERIFY(!QDir(folder() + latin1("/new")).exists());
    QCOMPARE(timesLogged("saveToXMLFile Exit: Directory is not created"), 2);
}

void ProfileStoreTest::systemFolderIsNeverMade()
{
    USSDEditCmd store;
    QVERIFY(QDir(folder() + latin1("/plugins")).removeRecursively());
    QVERIFY(QDir().mkpath(folder() + latin1("/plugins"))); // only the last folder is missing
    QCOMPARE(store.saveToXMLFile(true), 25);
    QVERIFY(!QDir(pluginFolder()).exists());
}

void ProfileStoreTest::permissionCallHasNoEffect()
{
    writeUserProfiles(profileItem("U", "*2#"));
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QVERIFY(QFile::permissions(userFile()).testFlag(QFile::ReadOwner));
    QCOMPARE(codes(loaded()), QStringList{latin1("*2#")});
}

void ProfileStoreTest::savedFileIsReadAgain()
{
    writeSystemProfiles(profileFile(profileItem("S", "*1#")));
    writeUserProfiles(profileItem("&lt;U&gt;", "*2*%s#", "true", "false", "L", "D"));
    USSDEditCmd store;
    const QList<USSDProfile> before = list(store);
    QCOMPARE(before.count(), 2);
    QCOMPARE(store.saveToXMLFile(false), 0);
    QCOMPARE(store.saveToXMLFile(true), 0);
    QVERIFY(loaded() == before);
}

void ProfileStoreTest::savingDoesNotReload()
{
    writeUserProfiles(profileItem("U", "*2#"));
    USSDEditCmd store;
    writeSystemProfiles(profileFile(profileItem("S", "*1#")));
    QCOMPARE(store.saveToXMLFile(false), 0);
    QCOMPARE(codes(list(store)), QStringList{latin1("*2#")});
}

void ProfileStoreTest::readOnlyFolderIs25()
{
    USSDEditCmd store;
    chmod(QFile::encodeName(folder()).constData(), 0755);
    chmod(QFile::encodeName(userFolder()).constData(), 0555);
    int status = 0;
    {
        const OrdinaryUser user;
        status = store.saveToXMLFile(false);
    }
    QCOMPARE(status, 25);
    QCOMPARE(timesLogged("saveToXMLFile Exit: XML file open failed"), 2);
    QVERIFY(!QFile::exists(userFile()));
}

/// Tests a read-only folder, in which the file can be opened but not deleted.
void ProfileStoreTest::readOnlyFolderLeavesAnOldFileToBeWritten()
{
    writeUserProfiles(profileItem("U", "*2#"));
    USSDEditCmd store;
    chmod(QFile::encodeName(folder()).constData(), 0755);
    chmod(QFile::encodeName(userFolder()).constData(), 0555);
    chmod(QFile::encodeName(userFile()).constData(), 0666);
    int status = -1;
    {
        const OrdinaryUser user;
        status = store.saveToXMLFile(false);
    }
    QCOMPARE(status, 0);
    QCOMPARE(codes(loaded()), QStringList{latin1("*2#")});
}

/// Tests that a file that cannot be deleted keeps its permissions. Its owner must still be able to
/// read it.
void ProfileStoreTest::fileThatCannotBeDeletedStaysReadable()
{
    const uid_t owner = geteuid() == 0 ? 65534 : geteuid();
    writeUserProfiles(profileItem("U", "*2#"));
    USSDEditCmd store;
    chmod(QFile::encodeName(folder()).constData(), 0755);
    chmod(QFile::encodeName(userFolder()).constData(), 0555);
    QCOMPARE(chown(QFile::encodeName(userFile()).constData(), owner, gid_t(-1)), 0);
    int status = -1;
    {
        const OrdinaryUser user;
        status = store.saveToXMLFile(false);
        QFile file(userFile());
        QVERIFY(file.open(QIODevice::ReadOnly)); // checks the effective user's permissions
    }
    QCOMPARE(status, 0);
}

/// Tests a full disk. The failure is not reported, and the file is later read up to the point where
/// it was truncated.
void ProfileStoreTest::fullDiskLeavesAFileThatCanBeRead()
{
    QByteArray items;
    for (int i = 0; i < 500; ++i)
        items += profileItem("N", QByteArray::number(i));
    writeUserProfiles(items);
    USSDEditCmd store;
    QCOMPARE(list(store).count(), 500);
    int status = -1;
    {
        const FullDisk disk(20000);
        status = store.saveToXMLFile(false);
    }
    QCOMPARE(status, 0);
    const QStringList read = codes(loaded());
    QVERIFY(read.count() > 20 && read.count() < 500);
    QCOMPARE(read.at(20), latin1("20"));
}

// ---- any text --------------------------------------------------------------------------------

void ProfileStoreTest::randomListsSurvive()
{
    std::mt19937 random(seedOfThisRun());
    int texts = 0;
    for (int round = 0; round < 3000; ++round) {
        const QList<USSDProfile> profiles = randomProfiles(random);
        QString error;
        const QList<USSDProfile> read = readBack(written(profiles), &error);
        QCOMPARE(error, QString());
        QCOMPARE(read.count(), profiles.count());
        for (int i = 0; i < profiles.count(); ++i) {
            texts += profiles.at(i).name.length();
            QVERIFY2(read.at(i) == profiles.at(i),
                     "written " + describe(profiles.at(i)) + "\nread    " + describe(read.at(i)));
        }
    }
    QVERIFY(texts > 1000);
}

/// Tests that carriage returns are written as character references, because XML would replace them
/// with line feeds.
void ProfileStoreTest::carriageReturnsSurvive()
{
    const QList<USSDProfile> profiles = QList<USSDProfile>()
                                        << profile(latin1("a\r\nb"), latin1("*1#"));
    QString error;
    QCOMPARE(readBack(written(profiles), &error).value(0).name, latin1("a\r\nb"));
    QCOMPARE(error, QString());
}

void ProfileStoreTest::illegalCharactersAreLeftOut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    const QString high(QChar(0xd83d));
    const QString low(QChar(0xde00));
    for (ushort unit : {0x00, 0x01, 0x08, 0x0b, 0x0c, 0x0e, 0x1b, 0x1f, 0xfffe, 0xffff})
        QTest::newRow(qPrintable(QString::number(unit, 16)))
            << latin1("a") + QChar(unit) + latin1("b") << latin1("ab");
    QTest::newRow("high half") << latin1("a") + high + latin1("b") << latin1("ab");
    QTest::newRow("low half") << latin1("a") + low + latin1("b") << latin1("ab");
    QTest::newRow("halves swapped") << latin1("a") + low + high + latin1("b") << latin1("ab");
    QTest::newRow("high half at the end") << latin1("a") + high << latin1("a");
    QTest::newRow("both halves") << latin1("a") + high + low << latin1("a") + high + low;
}

void ProfileStoreTest::illegalCharactersAreLeftOut()
{
    QFETCH(QString, text);
    QFETCH(QString, read);
    USSDProfile odd = profile(text, text);
    odd.langID = odd.desLangID = text;
    QString error;
    const QList<USSDProfile> profiles = readBack(
        written(QList<USSDProfile>() << odd << profile(latin1("next"), QString())), &error);
    QCOMPARE(error, QString());
    QCOMPARE(profiles.count(), 2);
    QCOMPARE(profiles.at(0).name, read);
    QCOMPARE(profiles.at(0).value, read);
    QCOMPARE(profiles.at(0).langID, read);
    QCOMPARE(profiles.at(0).desLangID, read);
    QCOMPARE(profiles.at(1).name, latin1("next"));
}

void ProfileStoreTest::randomUnitsNeverMakeAnUnreadableFile()
{
    std::mt19937 random(seedOfThisRun());
    for (int round = 0; round < 500; ++round) {
        QList<USSDProfile> profiles;
        for (int i = 0; i < 4; ++i) {
            QString text;
            for (int units = int(random() % 20); units > 0; --units)
                text += QChar(ushort(random() % 2 ? random() % 0x40 : random() % 0x10000));
            profiles << profile(text, text);
        }
        QString error;
        const QList<USSDProfile> read = readBack(written(profiles), &error);
        QVERIFY2(error.isEmpty(), describe(profiles.first()) + error.toUtf8());
        QCOMPARE(read.count(), profiles.count());
    }
}

USSD_TEST_MAIN(ProfileStoreTest)

#include "profile_store_test.moc"
