#include "DiskFaults.h"
#include "UssdTest.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <random>

namespace
{

const char OWN_CODES[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tksvdoc type=\"USSDProfile\">"
    "<item><name>Mine of old</name><value>*777#</value></item></tksvdoc>\n";
const int LIMIT = 20000; // in milliseconds

struct Run {
    int code = -1;
    QString out;
    QString error;

    bool isGood() const { return code == 0; }
    /// Returns the exit code and the output. They are printed if a test fails.
    QByteArray all() const
    {
        return (QString::number(code) + QLatin1Char('\n') + out + error).toLocal8Bit();
    }
};

} // namespace

/**
 * Tests that the program keeps running and reports the problem if a part of the system is missing.
 */
class MachineTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void aGoodMachineIsNotComplainedOf();
    void withoutAHomeItSaysSo();
    void aReadOnlyHomeIsSaid();
    void aDiskThatIsFullFromTheStartIsSaid();
    void aDiskThatIsFullWhenCodesAreSavedIsSaid();
    void codesThatWereLostAreOfferedBack();
    void halfAFileOfCodesIsOfferedBack();
    void aKillWhileSavingIsMendedByTheNextStart();
    void withoutFontsItSaysSo();
    void withoutAMessageBusItSaysSo();
    void aMissingLanguageIsSaid();
    void aMissingLanguageIsNotCalledUnknown();
    void aDamagedLanguageIsSaid_data();
    void aDamagedLanguageIsSaid();
    void withoutAnyTextItSaysSo();
    void damagedEnglishIsSaid();

private:
    Run run(const QStringList &arguments = QStringList());
    void set(const char *name, const QString &value) { m_environment.insert(text(name), value); }
    void fault(const char *kind, int step);
    bool write(const QString &path, const QByteArray &content);
    QString home() { return folder() + QLatin1String("/home"); }
    QString codesFile() { return home() + text("/data/ussd-dashboard/ussdprofile.xml"); }
    void layOutLibrary();
    void makeCopy();
    /// Installs language files for the program, but only for the given languages.
    void installTexts(const QStringList &languages);
    QString textsFolder() { return folder() + text("/prefix/" TEXTS_FOLDER); }
    /// Changes bytes in an installed language file. The seed selects the bytes.
    void damageText(const char *file, uint seed);
    static QString text(const char *words) { return QString::fromUtf8(words); }

    QProcessEnvironment m_environment;
};

void MachineTest::setUp()
{
    m_environment = QProcessEnvironment::systemEnvironment();
    QVERIFY(QDir().mkpath(home()));
    set("HOME", home());
    set("XDG_CONFIG_HOME", home() + text("/config"));
    set("XDG_DATA_HOME", home() + text("/data"));
    set("XDG_CACHE_HOME", folder() + text("/cache"));
    set("USSD_PLUGIN_LIBRARY_PATH", folder() + text("/library"));
    layOutLibrary();
    set("USSD_USER_SAYS", text("&Yes"));
    m_environment.remove(text("TKSV_USER_DATA"));
}

/// Copies the plug-in's data files into a test folder. They are needed because the editor also
/// saves the codes that come with the plug-in.
void MachineTest::layOutLibrary()
{
    const QString from = text(PLUGIN_LIBRARY "/plugins/USSDUIPlugin/");
    const QString to = folder() + text("/library/plugins/USSDUIPlugin/");
    const QString plugin = text("libUSSDUIPlugin.so");
    QVERIFY(QDir().mkpath(to));
    QVERIFY(QFile::link(from + plugin, to + plugin));
    for (const char *name : {"USSDPluginConfig.xml", "ussdsysprofile.xml"})
        QVERIFY(QFile::copy(from + text(name), to + text(name)));
}

Run MachineTest::run(const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(text(FAULTY_DASHBOARD), arguments);
    Run result;
    if (!process.waitForFinished(LIMIT)) {
        process.kill();
        process.waitForFinished();
    }
    if (process.exitStatus() == QProcess::NormalExit)
        result.code = process.exitCode();
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.error = QString::fromUtf8(process.readAllStandardError());
    return result;
}

void MachineTest::fault(const char *kind, int step)
{
    set("USSD_DISK_FAULT", QString::fromLatin1("%1:%2:%3").arg(text(kind)).arg(step).arg(home()));
}

bool MachineTest::write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

/// Creates the backup copy by starting the program once.
void MachineTest::makeCopy()
{
    QVERIFY(write(codesFile(), OWN_CODES));
    const Run first = run();
    QVERIFY2(first.isGood() && first.out.contains(text("Mine of old")), first.all().constData());
}

void MachineTest::aGoodMachineIsNotComplainedOf()
{
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QCOMPARE(result.out.count(text("notice:")), 1);
    QVERIFY2(result.out.contains(text("notice: Demonstration: ")), result.all().constData());
    QVERIFY2(!result.out.contains(text("box:")), result.all().constData());
    QVERIFY2(result.error.isEmpty(), result.all().constData());
}

void MachineTest::withoutAHomeItSaysSo()
{
    const QString nowhere = writeFile(text("file"), "no folder") + text("/home");
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        set(name, nowhere);
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.out.contains(text("notice: Something is not right: ") + nowhere),
             result.all().constData());
    QVERIFY2(result.error.contains(nowhere), result.all().constData());
    QVERIFY2(result.error.contains(text("cannot be written")), result.all().constData());
}

void MachineTest::aReadOnlyHomeIsSaid()
{
    QVERIFY(write(codesFile(), OWN_CODES));
    fault("read-only", 1);
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.out.contains(text("Mine of old")), result.all().constData());
    for (const char *file : {"/ussd-dashboard.ini cannot", "/last-good/ussdprofile.xml cannot"}) {
        QVERIFY2(result.out.contains(text(file)), result.all().constData());
        QVERIFY2(result.error.contains(text(file)), result.all().constData());
    }
    QCOMPARE(contentOf(codesFile()), QByteArray(OWN_CODES));
}

void MachineTest::aDiskThatIsFullFromTheStartIsSaid()
{
    QVERIFY(write(codesFile(), OWN_CODES));
    fault("full", 1);
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.out.contains(text("Mine of old")), result.all().constData());
    QVERIFY2(result.error.contains(text("/ussd-dashboard.ini cannot")), result.all().constData());
    QVERIFY2(result.out.contains(text("/last-good/ussdprofile.xml cannot")),
             result.all().constData());
}

void MachineTest::aDiskThatIsFullWhenCodesAreSavedIsSaid()
{
    makeCopy();
    fault("full", 1);
    set("USSD_USER_SAVES", text("*888#"));
    const Run saving = run();
    QVERIFY2(saving.isGood(), saving.all().constData());
    QVERIFY2(saving.out.contains(text("The changes are not saved")), saving.all().constData());
    QVERIFY2(saving.out.contains(codesFile()), saving.all().constData());
    QCOMPARE(contentOf(codesFile()), QByteArray(OWN_CODES));
}

void MachineTest::codesThatWereLostAreOfferedBack()
{
    makeCopy();
    QVERIFY(QFile::remove(codesFile()));
    const Run next = run();
    QVERIFY2(next.isGood(), next.all().constData());
    QVERIFY2(next.out.contains(text("notice: Your own codes can be restored: ")),
             next.all().constData());
    QVERIFY2(next.out.contains(text("Mine of old")), next.all().constData());
    QCOMPARE(contentOf(codesFile()), QByteArray(OWN_CODES));
}

void MachineTest::halfAFileOfCodesIsOfferedBack()
{
    makeCopy();
    const QByteArray half = QByteArray(OWN_CODES).left(90);
    QVERIFY(write(codesFile(), half));
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.out.contains(text("is incomplete")), result.all().constData());
    QVERIFY2(result.out.contains(text("Mine of old")), result.all().constData());
    QCOMPARE(contentOf(codesFile()), QByteArray(OWN_CODES));
    QCOMPARE(contentOf(codesFile() + text(".damaged")), half);
}

/// Tests that the user's codes are not lost if the program is killed while it is saving. A complete
/// run of the program is killed at each step, including the steps during start-up.
void MachineTest::aKillWhileSavingIsMendedByTheNextStart()
{
    makeCopy();
    int step = 0;
    for (bool wasKilled = true; wasKilled;) {
        QVERIFY(write(codesFile(), OWN_CODES));
        set("USSD_USER_SAVES", text("*888#"));
        fault("kill", ++step);
        const Run killed = run();
        wasKilled = killed.code == KILLED;
        QVERIFY2(wasKilled || killed.isGood(), killed.all().constData());
        m_environment.remove(text("USSD_USER_SAVES"));
        m_environment.remove(text("USSD_DISK_FAULT"));
        const Run next = run();
        QVERIFY2(next.isGood(), next.all().constData());
        QVERIFY2(next.out.contains(text("Mine of old")), next.all().constData());
    }
    QVERIFY2(step > 5, QByteArray::number(step).constData());
}

void MachineTest::withoutFontsItSaysSo()
{
    set("FONTCONFIG_FILE",
        writeFile(text("fonts.conf"), "<?xml version=\"1.0\"?><fontconfig></fontconfig>\n"));
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.error.contains(text("no fonts")), result.all().constData());
    QVERIFY2(result.out.contains(text("codes: ")), result.all().constData());
}

void MachineTest::withoutAMessageBusItSaysSo()
{
    set("TKSV_BACKEND", text("modemmanager"));
    set("DBUS_SYSTEM_BUS_ADDRESS", text("unix:path=/nonexistent/bus"));
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.out.contains(text("D-Bus")), result.all().constData());
    const Run sending = run(QStringList() << text("--send") << text("*100#"));
    QCOMPARE(sending.code, 3);
    QVERIFY2(sending.error.contains(text("D-Bus")), sending.all().constData());
}

void MachineTest::installTexts(const QStringList &languages)
{
    const QString library = folder() + text("/prefix/" LIBRARY_FOLDER);
    const QString texts = textsFolder();
    QVERIFY(QDir().mkpath(library) && QDir().mkpath(texts));
    const QString core = QFileInfo(text(CORE_LIBRARY)).fileName();
    QVERIFY(QFile::copy(text(CORE_LIBRARY), library + QLatin1Char('/') + core));
    for (const QString &name : languages)
        QVERIFY(QFile::copy(text(BUILT_TEXTS "/") + name, texts + QLatin1Char('/') + name));
    set("LD_LIBRARY_PATH", library);
}

void MachineTest::aMissingLanguageIsSaid()
{
    QVERIFY(write(home() + text("/config/ussd-dashboard/ussd-dashboard.ini"),
                  "[General]\nlanguage=de\n"));
    installTexts(QStringList() << text("en.qm"));
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.error.contains(text("/de.qm")), result.all().constData());
    QVERIFY2(result.error.contains(text("missing")), result.all().constData());
    QVERIFY2(result.out.contains(text("codes: ")), result.all().constData());
}

void MachineTest::damageText(const char *file, uint seed)
{
    QFile content(textsFolder() + QLatin1Char('/') + text(file));
    QVERIFY(content.open(QIODevice::ReadWrite));
    std::mt19937 random(seed);
    for (int bytes = 20; bytes > 0; --bytes) {
        QVERIFY(content.seek(random() % uint(content.size())));
        QVERIFY(content.putChar(char(random())));
    }
}

void MachineTest::aMissingLanguageIsNotCalledUnknown()
{
    installTexts(QStringList() << text("en.qm"));
    const Run result = run(QStringList() << text("--language") << text("de"));
    QCOMPARE(result.code, 2);
    QVERIFY2(result.error.contains(text("missing")), result.all().constData());
    QVERIFY2(result.error.contains(text("/de.qm")), result.all().constData());
}

void MachineTest::aDamagedLanguageIsSaid_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 0; seed < 10; ++seed)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

void MachineTest::aDamagedLanguageIsSaid()
{
    QFETCH(uint, seed);
    installTexts(QStringList() << text("en.qm") << text("de.qm"));
    damageText("de.qm", seed);
    const Run chosen = run(QStringList() << text("--language") << text("de"));
    QCOMPARE(chosen.code, 2);
    QVERIFY2(chosen.error.contains(text("damaged: ") + textsFolder() + text("/de.qm")),
             chosen.all().constData());
    QVERIFY(write(home() + text("/config/ussd-dashboard/ussd-dashboard.ini"),
                  "[General]\nlanguage=de\n"));
    const Run remembered = run();
    QVERIFY2(remembered.isGood(), remembered.all().constData());
    QVERIFY2(remembered.error.contains(text("damaged: ") + textsFolder() + text("/de.qm")),
             remembered.all().constData());
}

void MachineTest::damagedEnglishIsSaid()
{
    installTexts(QStringList() << text("en.qm"));
    damageText("en.qm", 1);
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.error.contains(text("/en.qm is damaged")), result.all().constData());
}

void MachineTest::withoutAnyTextItSaysSo()
{
    installTexts(QStringList());
    const Run result = run();
    QVERIFY2(result.isGood(), result.all().constData());
    QVERIFY2(result.error.contains(text("/en.qm is missing")), result.all().constData());
    QVERIFY2(result.out.contains(text("codes: ")), result.all().constData());
}

USSD_TEST_MAIN(MachineTest)
#include "machine_test.moc"
