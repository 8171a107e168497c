#include "device/DashboardSettings.h"
#include "DiskFaults.h"
#include "plugin/ProfileBackup.h"
#include "profiles/USSDEditCmd.h"
#include "UssdTest.h"

#include <QDir>
#include <QFile>

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

using namespace Dashboard;

namespace
{

const char OLD[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tksvdoc type=\"USSDProfile\"><item>"
    "<name>Old</name><value>*1#</value></item></tksvdoc>\n";
const char NEW[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tksvdoc type=\"USSDProfile\"><item>"
    "<name>New</name><value>*2#</value></item></tksvdoc>\n";
const int HUNG = -2;
const unsigned LIMIT = 5; // the maximum time in seconds that a start may take after a kill

} // namespace

/**
 * Kills the program at each of its disk operations, including when only half of the data has been
 * written. After each kill, either the old or the new file must exist, or the program must offer to
 * restore the backup.
 */
class KillTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void savingTheCodesLeavesThemOrTheCopy();
    void aFullDiskLeavesTheCodesOrTheCopy();
    void makingTheCopyNeverDamagesIt();
    void restoringCanBeDoneAgain();
    void restoringADamagedFileCanBeDoneAgain();
    void settingsAreTheOldOrTheNewOnes();
    void settingsCanBeSavedAfterAKill();

private:
    typedef std::function<void()> Action;

    static bool write(const QString &path, const QByteArray &content);
    int runInChild(DiskFaults::Kind kind, int step, const Action &action);
    /// Repeats the action and kills it one step later each time, until the action completes. Calls
    /// `check` after each run. Returns the number of kills.
    int killAtEachStep(const Action &prepare, const Action &action, const Action &check);
    void layOut(const QByteArray &file, const QByteArray &copy);
    bool isOldOrNewOrOffered();
    ProfileBackup backup() { return ProfileBackup(m_file, QString(), m_copy); }
    static void saveNewCodes(USSDEditCmd *editor) { _exit(editor->saveToXMLFile(false)); }
    static int savedLanguage();

    int m_step = 0;    // the step at which the last run was killed
    QString m_watched; // the folder in which disk operations are counted as steps
    QString m_file;
    QString m_copy;
};

void KillTest::setUp()
{
    m_watched = folder();
    m_file = folder() + QLatin1String("/user/ussdprofile.xml");
    m_copy = folder() + QLatin1String("/own/ussdprofile.xml");
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/user")));
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/own")));
    qputenv("TKSV_USER_DATA", QFile::encodeName(folder() + QLatin1String("/user")));
    qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder()));
    allowWarning("USSDEditCmd"); // the plug-in logs important messages as warnings
}

bool KillTest::write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (content.isEmpty())
        return !file.exists() || file.remove();
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

void KillTest::layOut(const QByteArray &file, const QByteArray &copy)
{
    QVERIFY(write(m_file, file) && write(m_copy, copy));
    QFile::remove(backup().damagedFile());
}

int KillTest::runInChild(DiskFaults::Kind kind, int step, const Action &action)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(LIMIT);
        DiskFaults::set(kind, step, QFile::encodeName(m_watched).toStdString());
        action();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : HUNG;
}

int KillTest::killAtEachStep(const Action &prepare, const Action &action, const Action &check)
{
    for (int step = 1;; ++step) {
        prepare();
        const int result = runInChild(DiskFaults::Kill, step, action);
        check();
        if (QTest::currentTestFailed() || result != KILLED)
            return result == 0 ? step - 1 : -1;
    }
}

bool KillTest::isOldOrNewOrOffered()
{
    const QByteArray content = contentOf(m_file);
    if (content == OLD || content.contains("*2#"))
        return true;
    const bool isOffered = backup().isLost() || backup().isDamaged();
    return isOffered && backup().restore() && contentOf(m_file) == OLD;
}

/// Tests that a kill while new codes are being saved leaves the old codes, the new codes, or a
/// backup that the program offers to restore.
void KillTest::savingTheCodesLeavesThemOrTheCopy()
{
    layOut(NEW, OLD);
    USSDEditCmd editor;
    int restored = 0;
    const int killed = killAtEachStep([this] { layOut(OLD, OLD); }, [&] { saveNewCodes(&editor); },
                                      [&] {
                                          restored += backup().isLost() || backup().isDamaged();
                                          QVERIFY(isOldOrNewOrOffered());
                                      });
    // The steps of a save are deleting the file, creating it, and writing it in two steps.
    QVERIFY2(killed >= 3, qPrintable(QString::number(killed)));
    QVERIFY2(restored >= 2, qPrintable(QString::number(restored)));
}

void KillTest::aFullDiskLeavesTheCodesOrTheCopy()
{
    layOut(NEW, OLD);
    USSDEditCmd editor;
    for (int step = 1; step < 10; ++step) {
        layOut(OLD, OLD);
        QVERIFY(runInChild(DiskFaults::Full, step, [&] { saveNewCodes(&editor); }) != HUNG);
        QVERIFY2(isOldOrNewOrOffered(), qPrintable(QString::number(step)));
    }
}

void KillTest::makingTheCopyNeverDamagesIt()
{
    const int killed =
        killAtEachStep([this] { layOut(NEW, OLD); }, [this] { backup().refresh(); },
                       [this] {
                           QVERIFY(contentOf(m_copy) == OLD || contentOf(m_copy) == NEW);
                           QVERIFY(backup().refresh()); // ignores left-over temporary files
                           QCOMPARE(contentOf(m_copy), QByteArray(NEW));
                       });
    QVERIFY2(killed >= 4, qPrintable(QString::number(killed)));
}

void KillTest::restoringCanBeDoneAgain()
{
    const int killed =
        killAtEachStep([this] { layOut(QByteArray(), OLD); }, [this] { backup().restore(); },
                       [this] {
                           QVERIFY(backup().isLost() != QFile::exists(m_file));
                           QVERIFY(backup().restore());
                           QCOMPARE(contentOf(m_file), QByteArray(OLD));
                       });
    QVERIFY2(killed >= 4, qPrintable(QString::number(killed)));
}

void KillTest::restoringADamagedFileCanBeDoneAgain()
{
    const QByteArray half = QByteArray(NEW).left(60);
    const int killed = killAtEachStep([&] { layOut(half, OLD); }, [this] { backup().restore(); },
                                      [&] {
                                          QVERIFY(backup().isLost() || backup().isDamaged() ||
                                                  contentOf(m_file) == OLD);
                                          QVERIFY(backup().restore());
                                          QCOMPARE(contentOf(m_file), QByteArray(OLD));
                                          QCOMPARE(contentOf(backup().damagedFile()), half);
                                      });
    QVERIFY2(killed >= 5, qPrintable(QString::number(killed)));
}

namespace
{
const char LANGUAGES[][3] = {"de", "fr"}; // the old and the new language

QString settingsFolder()
{
    return QFileInfo(DashboardSettings().file()).path();
}

void saveLanguage(const char *code)
{
    DashboardSettings settings;
    settings.setLanguage(QLatin1String(code));
    settings.setGeometry(QByteArray(300, 'g'));
}
} // namespace

/// Returns the index of the saved language in LANGUAGES, or 9 if no language is saved. Must be
/// called in a separate process, because Qt caches settings in memory.
int KillTest::savedLanguage()
{
    const QString code = DashboardSettings().language();
    for (int i = 0; i < 2; ++i) {
        if (code == QLatin1String(LANGUAGES[i]))
            return i;
    }
    return 9;
}

void KillTest::settingsAreTheOldOrTheNewOnes()
{
    m_watched = settingsFolder();
    const int killed = killAtEachStep(
        [this] { runInChild(DiskFaults::None, 0, [] { saveLanguage(LANGUAGES[0]); }); },
        [] { saveLanguage(LANGUAGES[1]); },
        [this] {
            const int found = runInChild(DiskFaults::None, 0, [] { _exit(savedLanguage()); });
            QVERIFY2(found == 0 || found == 1, qPrintable(QString::number(found)));
        });
    QVERIFY2(killed >= 5, qPrintable(QString::number(killed)));
}

void KillTest::settingsCanBeSavedAfterAKill()
{
    m_watched = settingsFolder();
    const int killed = killAtEachStep(
        [this] { QDir(settingsFolder()).removeRecursively(); }, [] { saveLanguage(LANGUAGES[0]); },
        [this] {
            QCOMPARE(runInChild(DiskFaults::None, 0, [] { saveLanguage(LANGUAGES[1]); }), 0);
            QCOMPARE(runInChild(DiskFaults::None, 0, [] { _exit(savedLanguage()); }), 1);
        });
    QVERIFY2(killed >= 5, qPrintable(QString::number(killed)));
}

USSD_TEST_MAIN(KillTest)
#include "kill_test.moc"
