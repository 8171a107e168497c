#include "ProfileStoreTest.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <new>

#include "fake_tksv.h"
#include "OddFiles.h"
#include "tksv.h"

namespace
{

/// The number of arrays that this thread has allocated and not deleted.
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

/** Tests the paths of the profile files, and that a legacy user file is moved to its new folder. */
class ProfilePathsTest : public ProfileStoreTest
{
    Q_OBJECT

private:
    QString legacyFile() { return userFolder() + latin1("userdata/ussdprofile.xml"); }

private slots:
    // ---- paths
    void pathsAreThoseOfTheFolders();
    void userFolderIsTakenExactlyAsReturned();
    void textOfTheSdkIsReleasedAsAnArray();
    void withoutUserFolderThereIsNoUserPath();
    void emptyUserFolderIsUnavailable();

    // ---- legacy file
    void legacyFileIsMovedOnceWithItsFolder();
    void legacyFolderWithOtherFilesStays();
    void legacyFileThatCannotBeCopiedStaysInUse();
    void oddLegacyFileIsNotCopied_data();
    void oddLegacyFileIsNotCopied();
    void newFileWinsOverLegacyFile();
};

// ---- paths --------------------------------------------------------------------------------------

void ProfilePathsTest::pathsAreThoseOfTheFolders()
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

void ProfilePathsTest::userFolderIsTakenExactlyAsReturned()
{
    fakeSdkSetUserDataDirectory((folder() + latin1("/user")).toStdU16String());
    USSDEditCmd store;
    QString path;
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, folder() + latin1("/userussdprofile.xml"));
}

void ProfilePathsTest::textOfTheSdkIsReleasedAsAnArray()
{
    USSDEditCmd store;
    QString path;
    const int before = arraysOfThisThread;
    unsigned short *units = nullptr;
    QCOMPARE(TKSV_GetUserDataDirectory(&units), 0L);
    QCOMPARE(arraysOfThisThread, before + 1); // proves that SDK allocations are counted
    delete[] units;
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, userFile());
    QCOMPARE(arraysOfThisThread, before);
}

void ProfilePathsTest::withoutUserFolderThereIsNoUserPath()
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

/// Tests that the profiles are not written to the working directory if the path of the user data
/// directory is empty.
void ProfilePathsTest::emptyUserFolderIsUnavailable()
{
    fakeSdkSetUserDataDirectory(u"");
    USSDEditCmd store;
    QString path = latin1("old");
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, QString());
    QVERIFY(timesLogged("after caling TKSV_GetUserDataDirectory(), retVal=0") > 0);
    QCOMPARE(store.saveToXMLFile(false), 23);
    QVERIFY(!QFile::exists(latin1("ussdprofile.xml")));
}

// ---- legacy file --------------------------------------------------------------------------------

void ProfilePathsTest::legacyFileIsMovedOnceWithItsFolder()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    const QByteArray old = profileFile(profileItem("A", "*1#"));
    write(legacyFile(), old);
    USSDEditCmd store; // makes the first call to the SDK
    QCOMPARE(codes(list(store)), QStringList{latin1("*1#")});
    QCOMPARE(contentOf(userFile()), old);
    QVERIFY(!QFile::exists(legacyFile()));
    QVERIFY(!QDir(userFolder() + latin1("userdata")).exists());
    QCOMPARE(timesLogged(legacyFile() + latin1(" exists!")), 1);
    clearLog();

    QString path;
    store.getUserProfileXMLFilePath(path);
    QCOMPARE(path, userFile());
    QCOMPARE(contentOf(userFile()), old);
    QCOMPARE(timesLogged(" exists!"), 0);
}

void ProfilePathsTest::legacyFolderWithOtherFilesStays()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    write(legacyFile(), profileFile(profileItem("A", "*1#")));
    const QString other = userFolder() + latin1("userdata/other");
    write(other, "x");
    QCOMPARE(codes(loaded()), QStringList{latin1("*1#")});
    QVERIFY(!QFile::exists(legacyFile()));
    QCOMPARE(contentOf(other), QByteArray("x"));
    QCOMPARE(timesLogged(latin1("the path ") + userFolder() + latin1("userdata remove failed!")),
             1);
}

void ProfilePathsTest::legacyFileThatCannotBeCopiedStaysInUse()
{
    // Creates a folder with the name of the legacy file.
    QVERIFY(QDir().mkpath(legacyFile() + latin1("/inside")));
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

void ProfilePathsTest::oddLegacyFileIsNotCopied_data()
{
    OddFiles::addColumns();
}

void ProfilePathsTest::oddLegacyFileIsNotCopied()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    const QString why = OddFiles::make(legacyFile());
    QVERIFY(loaded().isEmpty());
    QVERIFY(!QFile::exists(userFile()));
    QVERIFY(QFile::exists(legacyFile()));
    QCOMPARE(timesLogged(legacyFile() + latin1(" copy failed! error : ") + why), 1);
}

void ProfilePathsTest::newFileWinsOverLegacyFile()
{
    QVERIFY(QDir().mkpath(userFolder() + latin1("userdata")));
    write(legacyFile(), profileFile(profileItem("Old", "*1#")));
    writeUserProfiles(profileItem("New", "*2#"));
    QCOMPARE(codes(loaded()), QStringList{latin1("*2#")});
    QVERIFY(QFile::exists(legacyFile()));
}

USSD_TEST_MAIN(ProfilePathsTest)

#include "profile_paths_test.moc"
