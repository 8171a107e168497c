#include "OddFiles.h"
#include "ToolArguments.h"
#include "ToolTest.h"

#include <QJsonDocument>

using namespace Tools;

/// Tests the output and the exit code of ussd-config.
class ConfigToolTest : public ToolTest
{
    Q_OBJECT
public:
    ConfigToolTest() : ToolTest(CONFIG_PROGRAM) {}

private slots:
    void statusFollowsTheWorstFile();
    void oddFilesAreNotRead_data();
    void oddFilesAreNotRead();
    void findingsHaveFileLineAndColumn();
    void jsonIsOneDocument();
    void contentCannotSteerTheTerminal();
    void unusableArguments_data();
    void unusableArguments();
    void helpAndVersion();

private:
    QString good() { return QLatin1String(USSD_SOURCE_DIR "/scenarios/default.scenario"); }
    QString doubtful();
};

namespace
{
QStringList check()
{
    return QStringList() << QLatin1String("check");
}
} // namespace

QString ConfigToolTest::doubtful()
{
    return writeFile(QLatin1String("doubtful.xml"),
                     "<tksvdoc>\n  <item><name>&#x9b;31m</name><value>*1#</value>"
                     "<readonly>yes</readonly><showButton>false</showButton><langID/>"
                     "<desLangID/></item></tksvdoc>");
}

void ConfigToolTest::statusFollowsTheWorstFile()
{
    const QString none = folder() + QLatin1String("/none.xml");
    QCOMPARE(run(check() << good()), int(TOOL_GOOD));
    QCOMPARE(run(check() << good() << doubtful()), int(TOOL_BAD));
    QCOMPARE(run(check() << doubtful() << none << good()), int(TOOL_USAGE));
    QVERIFY(m_out.contains("none.xml: "));
    QVERIFY(m_out.contains("default.scenario: scenario, findings: 0"));
}

void ConfigToolTest::oddFilesAreNotRead_data()
{
    OddFiles::addColumns();
}

void ConfigToolTest::oddFilesAreNotRead()
{
    const QString path = folder() + QLatin1String("/odd.xml");
    const QString said = path + QLatin1String(": ") + OddFiles::make(path);
    QCOMPARE(run(check() << path), int(TOOL_USAGE));
    QVERIFY2(m_out.contains(said.toUtf8()), m_out.constData());
}

void ConfigToolTest::findingsHaveFileLineAndColumn()
{
    QCOMPARE(run(check() << doubtful()), int(TOOL_BAD));
    const QByteArray start = doubtful().toUtf8() + ":2:49: readonly \"yes\" reads as false";
    QVERIFY2(m_out.startsWith(start), m_out.constData());
}

void ConfigToolTest::jsonIsOneDocument()
{
    QCOMPARE(run(check() << QLatin1String("--format=json") << good() << doubtful()), int(TOOL_BAD));
    QJsonParseError error;
    QJsonDocument::fromJson(m_out, &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
}

void ConfigToolTest::contentCannotSteerTheTerminal()
{
    run(check() << doubtful());
    QVERIFY(!m_out.contains("\xc2\x9b"));
    QVERIFY(m_out.contains("\xef\xbf\xbd"
                           "31m"));
}

void ConfigToolTest::unusableArguments_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char *arguments : {"", "check", "chekc a.xml", "a.xml", "check --format",
                                  "check --format=xml a.xml", "check --nonsense a.xml"})
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
}

void ConfigToolTest::unusableArguments()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments.isEmpty() ? QStringList() : arguments.split(QLatin1Char(' '))),
             int(TOOL_USAGE));
    QVERIFY(m_error.contains("--help"));
    QVERIFY(m_out.isEmpty());
}

void ConfigToolTest::helpAndVersion()
{
    QCOMPARE(run(QStringList() << QLatin1String("--help")), int(TOOL_GOOD));
    QVERIFY(m_out.contains("--format=json"));
    QCOMPARE(run(QStringList() << QLatin1String("--version")), int(TOOL_GOOD));
    QVERIFY(m_out.startsWith("ussd-config "));
}

USSD_TEST_MAIN(ConfigToolTest)
#include "config_tool_test.moc"
