#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QProcess>
#include <QTemporaryDir>

#include "CommonUtils.h"
#include "InstallPaths.h"
#include "PluginFolderChoice.h"
#include "UssdTest.h"

namespace
{

QByteArray languageFile(const QByteArray &messages)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\">"
           "<context><name>Test</name>" +
           messages + "</context></TS>";
}

QByteArray message(const char *key, const char *text)
{
    return QByteArray("<message><source>") + key + "</source><translation>" + text +
           "</translation></message>";
}

void store(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace

/** Tests that files and translations are found after the installation prefix has been moved. */
class InstallPathsTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUpClass() override;
    void tearDown() override { qunsetenv("USSD_PLUGIN_LIBRARY_PATH"); }

private slots:
    void thePluginFolderStandsBesideTheLibrary();
    void theVariableWins();
    void shippedFolderIgnoresTheVariable();
    void trailingSeparatorsAreRemoved_data();
    void trailingSeparatorsAreRemoved();
    void anEmptyVariableCountsAsUnset();
    void aMovedPrefixIsFound();
    void aTextThatALanguageLacksIsEnglish();
    void aLanguageFileThatIsNoneIsRefused();

private:
    QStringList probe(const QStringList &arguments);
    void compile(const QString &code, const QByteArray &messages);

    QTemporaryDir m_prefix;
    QString m_library;
    QString m_translations;
};

void InstallPathsTest::setUpClass()
{
    QVERIFY(m_prefix.isValid());
    const QString root = QDir(m_prefix.path()).canonicalPath();
    m_library = root + QLatin1String("/" USSD_LIB_DIR);
    m_translations = root + QLatin1String("/" USSD_SHARE_DIR "/translations");
    QVERIFY(QDir().mkpath(m_library));
    QVERIFY(QDir().mkpath(m_translations));
    QVERIFY(
        QFile::copy(QLatin1String(HOSTCORE_FILE), m_library + QLatin1String("/libhostcore.so.1")));
    compile(QLatin1String("en"), message("BOTH", "both") + message("ONE", "english only"));
    compile(QLatin1String("de"), message("BOTH", "beide") + message("ONE", ""));
    store(m_translations + QLatin1String("/fr.qm"), "this is no language file");
}

void InstallPathsTest::compile(const QString &code, const QByteArray &messages)
{
    const QString source = m_translations + QLatin1Char('/') + code + QLatin1String(".ts");
    store(source, languageFile(messages));
    QCOMPARE(QProcess::execute(QLatin1String(LRELEASE_PROGRAM),
                               QStringList() << QLatin1String("-silent") << source),
             0);
    const QString compiled = m_translations + QLatin1Char('/') + code + QLatin1String(".qm");
    QCOMPARE(QProcess::execute(QLatin1String("sh"),
                               QStringList() << QLatin1String(SEAL_TRANSLATION) << compiled),
             0);
}

QStringList InstallPathsTest::probe(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("LD_LIBRARY_PATH"), m_library);
    process.setProcessEnvironment(environment);
    process.start(QLatin1String(PROBE_FILE), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        return QStringList(QString::fromLocal8Bit(process.readAllStandardError()));
    return QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
}

void InstallPathsTest::thePluginFolderStandsBesideTheLibrary()
{
    const QString folder = QFileInfo(QLatin1String(HOSTCORE_FILE)).canonicalPath();
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), folder + QLatin1String("/ussd-dashboard"));
}

void InstallPathsTest::theVariableWins()
{
    qputenv("USSD_PLUGIN_LIBRARY_PATH", "/somewhere else/h\xc3\xb6st");
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), QString::fromUtf8("/somewhere else/höst"));
}

void InstallPathsTest::shippedFolderIgnoresTheVariable()
{
    const QString unset = HostCore::PluginFolderChoice::installed();
    qputenv("USSD_PLUGIN_LIBRARY_PATH", "/opt/host");
    QCOMPARE(HostCore::PluginFolderChoice::shipped(), unset);
    QCOMPARE(HostCore::PluginFolderChoice::installed(), QStringLiteral("/opt/host"));
}

void InstallPathsTest::trailingSeparatorsAreRemoved_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::newRow("none") << QByteArray("/opt/host");
    QTest::newRow("one") << QByteArray("/opt/host/");
    QTest::newRow("several") << QByteArray("/opt/host///");
}

void InstallPathsTest::trailingSeparatorsAreRemoved()
{
    QFETCH(QByteArray, variable);
    qputenv("USSD_PLUGIN_LIBRARY_PATH", variable);
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), QLatin1String("/opt/host"));
}

void InstallPathsTest::anEmptyVariableCountsAsUnset()
{
    const QString unset = CommonUtils::GetPluginLibraryPath();
    qputenv("USSD_PLUGIN_LIBRARY_PATH", "");
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), unset);
}

void InstallPathsTest::aMovedPrefixIsFound()
{
    const QStringList lines = probe(QStringList());
    QCOMPARE(lines.value(0), m_library + QLatin1String("/ussd-dashboard"));
    QCOMPARE(lines.value(1) + QLatin1String("/translations"), m_translations);
}

void InstallPathsTest::aTextThatALanguageLacksIsEnglish()
{
    const QStringList lines =
        probe(QStringList() << QLatin1String("de:BOTH") << QLatin1String("de:ONE")
                            << QLatin1String("de:NONE"));
    QCOMPARE(lines.mid(2, 3), QStringList()
                                  << QLatin1String("beide") << QLatin1String("english only")
                                  << QLatin1String("NONE"));
}

void InstallPathsTest::aLanguageFileThatIsNoneIsRefused()
{
    const QStringList lines =
        probe(QStringList() << QLatin1String("de:BOTH") << QLatin1String("fr:BOTH")
                            << QLatin1String("es:BOTH"));
    QCOMPARE(lines.mid(2, 3), QStringList()
                                  << QLatin1String("beide") << QLatin1String("no fr beide")
                                  << QLatin1String("no es beide"));
}

USSD_TEST_MAIN(InstallPathsTest)
#include "install_paths_test.moc"
