/* Tests the path of the user data directory in different environments. */
#include <pwd.h>
#include <QtTest>
#include <sys/stat.h>
#include <unistd.h>

#include "tksv.h"
#include "UserDataFolder.h"

namespace
{

QString given(const char *name)
{
    return QString::fromLocal8Bit(qgetenv(name));
}

/// Returns the path of the user data directory, or a null string if the call fails.
QString handedOut()
{
    unsigned short *directory = nullptr;
    if (TKSV_GetUserDataDirectory(&directory) != 0)
        return directory ? QString::fromLatin1("not null") : QString();
    QString path = QString::fromUtf16(reinterpret_cast<const char16_t *>(directory));
    delete[] directory;
    return path;
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return stat(path.toUtf8().constData(), &status) == 0 ? status.st_mode & 0777 : 0;
}

} // namespace

class SdkUserData : public QObject
{
    Q_OBJECT
private slots:
    void init();

    void chosenFolderIsTaken();
    void slashAtTheEndStaysOne();
    void dataHomeHoldsAFolderOfTheDashboard();
    void relativeDataHomeIsIgnored();
    void homeHoldsTheFolderOtherwise();
    void withoutHomeTheUserDatabaseIsAsked();
    void newFoldersAreForTheUserAlone();
    void folderThatIsThereStaysAsItIs();
    void lettersOfOtherScripts();
    void pathThatIsNoUtf8Fails();
    void fileInTheWayFails();

private:
    QString inside(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QScopedPointer<QTemporaryDir> m_folder;
};

void SdkUserData::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
    qunsetenv("TKSV_USER_DATA");
    qunsetenv("XDG_DATA_HOME");
    qputenv("HOME", m_folder->path().toUtf8());
}

void SdkUserData::chosenFolderIsTaken()
{
    qputenv("XDG_DATA_HOME", inside("other").toUtf8());
    qputenv("TKSV_USER_DATA", inside("a/b").toUtf8());
    QCOMPARE(handedOut(), inside("a/b/"));
    QVERIFY(QDir(inside("a/b")).exists());
    QVERIFY(!QDir(inside("other")).exists());
}

void SdkUserData::slashAtTheEndStaysOne()
{
    qputenv("TKSV_USER_DATA", inside("a/").toUtf8());
    QCOMPARE(handedOut(), inside("a/"));
}

void SdkUserData::dataHomeHoldsAFolderOfTheDashboard()
{
    qputenv("XDG_DATA_HOME", inside("data").toUtf8());
    QCOMPARE(handedOut(), inside("data/ussd-dashboard/"));
    QVERIFY(QDir(inside("data/ussd-dashboard")).exists());
}

void SdkUserData::relativeDataHomeIsIgnored()
{
    qputenv("XDG_DATA_HOME", "data");
    QCOMPARE(handedOut(), inside(".local/share/ussd-dashboard/"));
}

void SdkUserData::homeHoldsTheFolderOtherwise()
{
    qputenv("XDG_DATA_HOME", "");
    QCOMPARE(handedOut(), inside(".local/share/ussd-dashboard/"));
    // The path stays the same after the folder has been created.
    QCOMPARE(handedOut(), inside(".local/share/ussd-dashboard/"));
}

void SdkUserData::withoutHomeTheUserDatabaseIsAsked()
{
    // The test does not create the folder, because tests must not write to a real home directory.
    qputenv("HOME", "");
    const QString home = QString::fromLocal8Bit(getpwuid(getuid())->pw_dir);
    const QString path = QString::fromStdString(Tksv::userDataFolder());
    QCOMPARE(path, QDir(home).filePath(QString::fromLatin1(".local/share/ussd-dashboard/")));
}

void SdkUserData::newFoldersAreForTheUserAlone()
{
    QCOMPARE(handedOut(), given("HOME") + QString::fromLatin1("/.local/share/ussd-dashboard/"));
    QCOMPARE(modeOf(inside(".local")), mode_t(0700));
    QCOMPARE(modeOf(inside(".local/share/ussd-dashboard")), mode_t(0700));
}

void SdkUserData::folderThatIsThereStaysAsItIs()
{
    QVERIFY(QDir().mkpath(inside("mine")));
    QCOMPARE(chmod(inside("mine").toUtf8().constData(), 0750), 0);
    qputenv("TKSV_USER_DATA", inside("mine").toUtf8());
    QCOMPARE(handedOut(), inside("mine/"));
    QCOMPARE(modeOf(inside("mine")), mode_t(0750));
}

void SdkUserData::lettersOfOtherScripts()
{
    qputenv("TKSV_USER_DATA", inside("Müller бланк 数据 😀").toUtf8());
    QCOMPARE(handedOut(), inside("Müller бланк 数据 😀/"));
    QVERIFY(QDir(inside("Müller бланк 数据 😀")).exists());
}

void SdkUserData::pathThatIsNoUtf8Fails()
{
    qputenv("TKSV_USER_DATA", inside("x").toUtf8() + "\xFF");
    QVERIFY(handedOut().isNull());
}

void SdkUserData::fileInTheWayFails()
{
    QFile file(inside("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    qputenv("TKSV_USER_DATA", inside("file").toUtf8());
    QVERIFY(handedOut().isNull());
    qputenv("TKSV_USER_DATA", inside("file/below").toUtf8());
    QVERIFY(handedOut().isNull());
}

QTEST_APPLESS_MAIN(SdkUserData)
#include "sdk_user_data_test.moc"
