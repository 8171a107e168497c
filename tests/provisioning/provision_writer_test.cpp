#include "DiskFaults.h"
#include "ProvisionWriter.h"
#include "UssdTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/wait.h>
#include <unistd.h>

using namespace Provisioning;

/// Tests that no file that the user has created or changed is lost, even if the program is killed
/// at any step.
class ProvisionWriterTest : public UssdTest
{
    Q_OBJECT

private slots:
    void folderOfTheUser_data();
    void folderOfTheUser();
    void writesWhatThePluginLooksFor();
    void remembersTheOperator();
    void sameOperatorAgainWritesNothing();
    void anotherOperatorReplacesUnchangedFiles();
    void changedFileIsKeptAndNamed_data();
    void changedFileIsKeptAndNamed();
    void addedFileIsKept();
    void changedFileOfTheSameOperatorStaysInUse();
    void changedFilesAreSetAsideWhenAsked();
    void filesOnceSetAsideOutliveFurtherOperators();
    void damagedRecordCountsAsChanged();
    void deletedFileIsWrittenAnew();
    void foreignFolderIsLeftAlone();
    void foreignLinkIsLeftAlone();
    void pluginLinkFollowsThePlugin();
    void unwritableFolderIsSaid();
    void killBetweenAnyStepsLeavesOldOrNew();
    void killBetweenAnyFirstStepsLeavesNothingOrNew();

private:
    QString target() { return folder() + QLatin1String("/operator"); }
    QString inUse() { return target() + QLatin1String("/plugins/USSDUIPlugin/"); }
    ProvisionOutcome write(const char *name, bool setAside = false);
    QByteArray content(const char *file);
    void change(const char *file, const QByteArray &text);
    bool isWhole(const char *name);
    int runKilled(int step, const char *name);
};

namespace
{
const char CONFIGURATION[] = "USSDPluginConfig.xml";
const char PROFILES[] = "ussdsysprofile.xml";

ProvisionPlan planOf(const char *name)
{
    ProvisionPlan plan;
    plan.country = QLatin1String("de");
    plan.provider = QLatin1String(name);
    plan.network = QLatin1String("26207");
    return plan;
}

/// Returns files with arbitrary content, because the writer does not check it.
ProvisionFiles filesOf(const char *name)
{
    ProvisionFiles files;
    files.configuration = QByteArray("configuration of ") + name;
    files.profiles = QByteArray("profiles of ") + name;
    return files;
}
} // namespace

ProvisionOutcome ProvisionWriterTest::write(const char *name, bool setAside)
{
    ProvisionOrder order;
    order.folder = target();
    order.setChangedAside = setAside;
    return writeProvision(order, planOf(name), filesOf(name));
}

QByteArray ProvisionWriterTest::content(const char *file)
{
    return contentOf(inUse() + QLatin1String(file));
}

void ProvisionWriterTest::change(const char *file, const QByteArray &text)
{
    QFile out(inUse() + QLatin1String(file));
    QVERIFY(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(out.write(text), qint64(text.size()));
}

/// Returns true if the two files in use and the record are those of this operator.
bool ProvisionWriterTest::isWhole(const char *name)
{
    const Provision provision = readProvision(target());
    return provision.isUsable() && provision.changedFiles.isEmpty() &&
           provision.record.provider == QLatin1String(name) &&
           content(CONFIGURATION) == filesOf(name).configuration &&
           content(PROFILES) == filesOf(name).profiles;
}

void ProvisionWriterTest::writesWhatThePluginLooksFor()
{
    QVERIFY(!readProvision(target()).isUsable());
    const ProvisionOutcome outcome = write("One");
    QCOMPARE(outcome.state, ProvisionOutcome::Written);
    QCOMPARE(outcome.problem, QString());
    QVERIFY(isWhole("One"));
}

void ProvisionWriterTest::remembersTheOperator()
{
    ProvisionOrder order;
    order.folder = target();
    const char name[] = "\xd0\x91 & 100% \n x";
    ProvisionPlan plan = planOf("");
    plan.provider = QString::fromUtf8(name);
    QCOMPARE(writeProvision(order, plan, filesOf("x")).state, ProvisionOutcome::Written);
    const ProvisionRecord record = readProvision(target()).record;
    QCOMPARE(record.provider, QString::fromUtf8(name));
    QCOMPARE(record.country, QString::fromLatin1("de"));
    QCOMPARE(record.network, QString::fromLatin1("26207"));
}

void ProvisionWriterTest::sameOperatorAgainWritesNothing()
{
    write("One");
    const QString before = QFileInfo(inUse()).canonicalFilePath();
    QCOMPARE(write("One").state, ProvisionOutcome::Current);
    QCOMPARE(QFileInfo(inUse()).canonicalFilePath(), before);
}

void ProvisionWriterTest::anotherOperatorReplacesUnchangedFiles()
{
    write("One");
    const ProvisionOutcome outcome = write("Two");
    QCOMPARE(outcome.state, ProvisionOutcome::Written);
    QCOMPARE(outcome.keptFolder, QString());
    QVERIFY(isWhole("Two"));
    const QDir sets(target() + QLatin1String("/provisioned"));
    QCOMPARE(sets.entryList(QDir::Dirs | QDir::NoDotAndDotDot).count(), 1);
}

void ProvisionWriterTest::changedFileIsKeptAndNamed_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("configuration") << QByteArray(CONFIGURATION);
    QTest::newRow("profiles") << QByteArray(PROFILES);
}

void ProvisionWriterTest::changedFileIsKeptAndNamed()
{
    QFETCH(QByteArray, file);
    write("One");
    change(file.constData(), "mine");
    const ProvisionOutcome outcome = write("Two");
    QCOMPARE(outcome.state, ProvisionOutcome::Refused);
    QCOMPARE(outcome.changedFiles.count(), 1);
    QVERIFY(outcome.changedFiles.first().endsWith(QLatin1String(file)));
    QVERIFY2(outcome.problem.contains(outcome.changedFiles.first()), qPrintable(outcome.problem));
    QCOMPARE(content(file.constData()), QByteArray("mine"));
    QCOMPARE(readProvision(target()).record.provider, QString::fromLatin1("One"));
}

void ProvisionWriterTest::addedFileIsKept()
{
    write("One");
    change("notes.txt", "mine");
    QCOMPARE(write("Two").state, ProvisionOutcome::Refused);
    QCOMPARE(content("notes.txt"), QByteArray("mine"));
}

void ProvisionWriterTest::changedFileOfTheSameOperatorStaysInUse()
{
    write("One");
    change(CONFIGURATION, "mine");
    const ProvisionOutcome outcome = write("One");
    QCOMPARE(outcome.state, ProvisionOutcome::Current);
    QCOMPARE(outcome.changedFiles.count(), 1);
    QCOMPARE(content(CONFIGURATION), QByteArray("mine"));
}

void ProvisionWriterTest::changedFilesAreSetAsideWhenAsked()
{
    write("One");
    change(CONFIGURATION, "mine");
    const ProvisionOutcome outcome = write("Two", true);
    QCOMPARE(outcome.state, ProvisionOutcome::Written);
    QVERIFY(isWhole("Two"));
    QCOMPARE(contentOf(outcome.keptFolder + QLatin1Char('/') + QLatin1String(CONFIGURATION)),
             QByteArray("mine"));
}

void ProvisionWriterTest::filesOnceSetAsideOutliveFurtherOperators()
{
    write("One");
    change(PROFILES, "mine");
    const QString kept = write("Two", true).keptFolder;
    QCOMPARE(write("Three").state, ProvisionOutcome::Written);
    QCOMPARE(write("One").state, ProvisionOutcome::Written);
    QVERIFY(isWhole("One"));
    QCOMPARE(contentOf(kept + QLatin1Char('/') + QLatin1String(PROFILES)), QByteArray("mine"));
}

void ProvisionWriterTest::damagedRecordCountsAsChanged()
{
    write("One");
    const QByteArray record = content("provisioned.txt");
    for (int length = 0; length < record.size(); ++length) {
        change("provisioned.txt", record.left(length));
        QVERIFY2(!readProvision(target()).isUsable(), qPrintable(QString::number(length)));
    }
    QCOMPARE(write("Two").state, ProvisionOutcome::Refused);
    QCOMPARE(content(CONFIGURATION), filesOf("One").configuration);
}

void ProvisionWriterTest::deletedFileIsWrittenAnew()
{
    write("One");
    QVERIFY(QFile::remove(inUse() + QLatin1String(PROFILES)));
    QVERIFY(!readProvision(target()).isUsable());
    QCOMPARE(write("One").state, ProvisionOutcome::Written);
    QVERIFY(isWhole("One"));
}

void ProvisionWriterTest::foreignFolderIsLeftAlone()
{
    QVERIFY(QDir().mkpath(inUse()));
    change(CONFIGURATION, "mine");
    for (const bool setAside : {false, true})
        QCOMPARE(write("One", setAside).state, ProvisionOutcome::Refused);
    QCOMPARE(content(CONFIGURATION), QByteArray("mine"));
    QVERIFY(!readProvision(target()).isUsable());
}

void ProvisionWriterTest::foreignLinkIsLeftAlone()
{
    const QString mine = folder() + QLatin1String("/mine");
    QVERIFY(QDir().mkpath(mine) && QDir().mkpath(target() + QLatin1String("/plugins")));
    QVERIFY(QFile::link(mine, target() + QLatin1String("/plugins/USSDUIPlugin")));
    change(CONFIGURATION, "mine");
    QCOMPARE(write("One", true).state, ProvisionOutcome::Refused);
    QCOMPARE(content(CONFIGURATION), QByteArray("mine"));
}

void ProvisionWriterTest::pluginLinkFollowsThePlugin()
{
    const QString first = writeFile(QLatin1String("first.so"), "first");
    const QString second = writeFile(QLatin1String("second.so"), "second");
    ProvisionOrder order;
    order.folder = target();
    order.pluginLibrary = first;
    QCOMPARE(writeProvision(order, planOf("One"), filesOf("One")).state, ProvisionOutcome::Written);
    QCOMPARE(content("libUSSDUIPlugin.so"), QByteArray("first"));
    QVERIFY(isWhole("One")); // changing the link does not count as changing the files
    order.pluginLibrary = second;
    QCOMPARE(writeProvision(order, planOf("One"), filesOf("One")).state, ProvisionOutcome::Current);
    QCOMPARE(content("libUSSDUIPlugin.so"), QByteArray("second"));
    QCOMPARE(writeProvision(order, planOf("Two"), filesOf("Two")).state, ProvisionOutcome::Written);
    QCOMPARE(contentOf(second), QByteArray("second")); // the writer does not follow the link
}

void ProvisionWriterTest::unwritableFolderIsSaid()
{
    writeFile(QLatin1String("operator"), "a file, not a folder");
    const ProvisionOutcome outcome = write("One");
    QCOMPARE(outcome.state, ProvisionOutcome::Failed);
    QVERIFY(outcome.problem.contains(target()));
}

/// Runs the writer in a child process that is killed before disk operation number `step`. Returns
/// the exit code.
int ProvisionWriterTest::runKilled(int step, const char *name)
{
    const pid_t child = fork();
    if (child == 0) {
        DiskFaults::set(DiskFaults::Kill, step, QFile::encodeName(folder()).toStdString());
        _exit(write(name).state == ProvisionOutcome::Written ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ProvisionWriterTest::killBetweenAnyStepsLeavesOldOrNew()
{
    int killed = 0;
    bool sawNew = false;
    for (int step = 1;; ++step) {
        write("Old");
        QVERIFY(isWhole("Old"));
        const int result = runKilled(step, "New");
        QVERIFY(result == KILLED || result == 0);
        const bool isNew = isWhole("New");
        QVERIFY2(isNew || isWhole("Old"), qPrintable(QString::number(step)));
        QVERIFY(isNew || !sawNew); // the new files must stay in use
        sawNew = isNew;
        // The next run must succeed and remove the left-over files.
        QVERIFY(write("New").problem.isEmpty());
        QVERIFY(isWhole("New"));
        const QDir sets(target() + QLatin1String("/provisioned"));
        QCOMPARE(sets.entryList(QDir::Dirs | QDir::NoDotAndDotDot).count(), 1);
        if (result == 0)
            break;
        ++killed;
    }
    QVERIFY2(killed >= 10, qPrintable(QString::number(killed)));
}

void ProvisionWriterTest::killBetweenAnyFirstStepsLeavesNothingOrNew()
{
    for (int step = 1;; ++step) {
        QVERIFY(QDir(target()).removeRecursively());
        const int result = runKilled(step, "New");
        QVERIFY(result == KILLED || result == 0);
        QVERIFY2(isWhole("New") || !QFile::exists(inUse()), qPrintable(QString::number(step)));
        QVERIFY(write("New").problem.isEmpty());
        QVERIFY(isWhole("New"));
        if (result == 0)
            break;
    }
}

void ProvisionWriterTest::folderOfTheUser_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("folder");
    const QString usual = QDir::homePath() + QLatin1String("/.local/share/ussd-dashboard");
    QTest::newRow("absolute") << QByteArray("/data") << QString::fromLatin1("/data/ussd-dashboard");
    QTest::newRow("relative") << QByteArray("data") << usual;
    QTest::newRow("empty") << QByteArray() << usual;
}

void ProvisionWriterTest::folderOfTheUser()
{
    QFETCH(QByteArray, variable);
    QFETCH(QString, folder);
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", variable);
    const QString home = userDataHome();
    const QString operators = operatorsFolder();
    qputenv("XDG_DATA_HOME", before);
    QCOMPARE(home, folder);
    QCOMPARE(operators, folder + QLatin1String("/operators"));
}

USSD_TEST_MAIN(ProvisionWriterTest)
#include "provision_writer_test.moc"
