#include "ProfileStoreTest.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <sys/stat.h>

#include "fake_tksv.h"
#include "ProcessLimits.h"

/** Tests how the two profile files are saved, including in read-only folders and on full disks. */
class ProfileSavingTest : public ProfileStoreTest
{
    Q_OBJECT

private slots:
    // ---- saving
    void savingTheUserFileWritesUserProfilesOnly();
    void savingTheSystemFileWritesSystemProfilesOnly();
    void emptyListWritesARootWithoutItems();
    void savedFileIsReadAgain();
    void savingDoesNotReload();
    void permissionCallHasNoEffect();
    void linkedSystemFileIsSavedBehindTheLink();

    // ---- folders and disks
    void failedOpenIs25AndLeavesNoFile();
    void folderInPlaceOfTheFileIs25();
    void withoutUserFolderSavingIs23();
    void missingUserFolderIsMade();
    void userFolderIsMadeOneLevelDeepOnly();
    void systemFolderIsNeverMade();
    void readOnlyFolderIs25();
    void readOnlyFolderLeavesAnOldFileToBeWritten();
    void fileThatCannotBeDeletedStaysReadable();
    void fullDiskLeavesAFileThatCanBeRead();
};

// ---- saving -------------------------------------------------------------------------------------

void ProfileSavingTest::savingTheUserFileWritesUserProfilesOnly()
{
    writeSystemProfiles(profileFile(profileItem("S", "*1#")));
    writeUserProfiles(profileItem("U", "*2#") + profileItem("V", "*3#"));
    const QByteArray system = contentOf(systemFile());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QCOMPARE(codes(readBack(contentOf(userFile()))), (QStringList{latin1("*2#"), latin1("*3#")}));
    QCOMPARE(contentOf(systemFile()), system);
    QCOMPARE(timesLogged(latin1("saveToXMLFile Dir path=") + userFolder().chopped(1)), 1);
}

void ProfileSavingTest::savingTheSystemFileWritesSystemProfilesOnly()
{
    writeSystemProfiles(profileFile(profileItem("S", "*1#") + profileItem("T", "*1#")));
    writeUserProfiles(profileItem("U", "*2#"));
    const QByteArray user = contentOf(userFile());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(true), 0);
    QCOMPARE(codes(readBack(contentOf(systemFile()))), (QStringList{latin1("*1#"), latin1("*1#")}));
    QCOMPARE(contentOf(userFile()), user);
}

void ProfileSavingTest::emptyListWritesARootWithoutItems()
{
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QXmlStreamReader reader(contentOf(userFile()));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), latin1("tksvdoc"));
    QCOMPARE(reader.attributes().value(QLatin1String("type")).toString(), latin1("USSDProfile"));
    QVERIFY(!reader.readNextStartElement());
    QVERIFY(!reader.hasError());
}

void ProfileSavingTest::savedFileIsReadAgain()
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

void ProfileSavingTest::savingDoesNotReload()
{
    writeUserProfiles(profileItem("U", "*2#"));
    USSDEditCmd store;
    writeSystemProfiles(profileFile(profileItem("S", "*1#")));
    QCOMPARE(store.saveToXMLFile(false), 0);
    QCOMPARE(codes(list(store)), QStringList{latin1("*2#")});
}

void ProfileSavingTest::permissionCallHasNoEffect()
{
    writeUserProfiles(profileItem("U", "*2#"));
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QVERIFY(QFile::permissions(userFile()).testFlag(QFile::ReadOwner));
    QCOMPARE(codes(loaded()), QStringList{latin1("*2#")});
}

/// Tests that saving writes to the target of a link and preserves the link. In some installations,
/// the file in the plug-in's folder is a link to a configuration file in /etc. The link belongs to
/// a package, so it must not be replaced with a file.
void ProfileSavingTest::linkedSystemFileIsSavedBehindTheLink()
{
    const QString target = folder() + latin1("/configured.xml");
    write(target, profileFile(profileItem("S", "*1#") + profileItem("T", "*3#")));
    QFile::remove(systemFile());
    QVERIFY(QFile::link(target, systemFile()));
    USSDEditCmd store;
    write(target, QByteArray());
    QCOMPARE(store.saveToXMLFile(true), 0);
    QCOMPARE(QFile::symLinkTarget(systemFile()), target);
    QCOMPARE(codes(readBack(contentOf(target))), (QStringList{latin1("*1#"), latin1("*3#")}));
}

// ---- folders and disks --------------------------------------------------------------------------

void ProfileSavingTest::failedOpenIs25AndLeavesNoFile()
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
    // The codes are still in memory and can be saved later.
    QCOMPARE(codes(list(store)), QStringList{latin1("*2#")});
    QCOMPARE(store.saveToXMLFile(false), 0);
    QCOMPARE(codes(loaded()), QStringList{latin1("*2#")});
}

void ProfileSavingTest::folderInPlaceOfTheFileIs25()
{
    QVERIFY(QDir().mkpath(userFile() + latin1("/inside")));
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 25);
}

void ProfileSavingTest::withoutUserFolderSavingIs23()
{
    USSDEditCmd store;
    writeUserProfiles(profileItem("U", "*2#"));
    const QByteArray before = contentOf(userFile());
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 1);
    QCOMPARE(store.saveToXMLFile(false), 23);
    QCOMPARE(timesLogged("saveToXMLFile Fail Exit: user profile file name is empty"), 2);
    QCOMPARE(contentOf(userFile()), before);
}

void ProfileSavingTest::missingUserFolderIsMade()
{
    fakeSdkSetUserDataDirectory((folder() + latin1("/new/")).toStdU16String());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 0);
    QVERIFY(QFile::exists(folder() + latin1("/new/ussdprofile.xml")));
}

void ProfileSavingTest::userFolderIsMadeOneLevelDeepOnly()
{
    fakeSdkSetUserDataDirectory((folder() + latin1("/new/deep/")).toStdU16String());
    USSDEditCmd store;
    QCOMPARE(store.saveToXMLFile(false), 21);
    QVERIFY(!QDir(folder() + latin1("/new")).exists());
    QCOMPARE(timesLogged("saveToXMLFile Exit: Directory is not created"), 2);
}

void ProfileSavingTest::systemFolderIsNeverMade()
{
    USSDEditCmd store;
    QVERIFY(QDir(folder() + latin1("/plugins")).removeRecursively());
    QVERIFY(QDir().mkpath(folder() + latin1("/plugins"))); // only the innermost folder is missing
    QCOMPARE(store.saveToXMLFile(true), 25);
    QVERIFY(!QDir(pluginFolder()).exists());
}

void ProfileSavingTest::readOnlyFolderIs25()
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

/// Tests that a file in a read-only folder is overwritten. Such a file cannot be deleted, but it
/// can be opened for writing.
void ProfileSavingTest::readOnlyFolderLeavesAnOldFileToBeWritten()
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

/// Tests that a file that cannot be deleted keeps its permissions, so that its owner can still read
/// it.
void ProfileSavingTest::fileThatCannotBeDeletedStaysReadable()
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
        QVERIFY(file.open(QIODevice::ReadOnly)); // opens the file as the ordinary user
    }
    QCOMPARE(status, 0);
}

/// Tests that a file that was truncated because the disk was full can be read again, up to the
/// truncated profile. saveToXMLFile() deliberately reports success.
void ProfileSavingTest::fullDiskLeavesAFileThatCanBeRead()
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

USSD_TEST_MAIN(ProfileSavingTest)

#include "profile_saving_test.moc"
