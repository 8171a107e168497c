#include "OddFiles.h"
#include "ToolArguments.h"
#include "UssdTest.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

using namespace Tools;

/// Tests the output, the files and the exit code of ussd-provision.
class ProvisionToolTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;

private slots:
    void severalOperatorsArePrintedAndNoneIsWritten();
    void everyNamesakeCanBeSelected();
    void argumentsThatSelectKeepTheNetwork();
    void namedOperatorIsWritten();
    void nameOfTheSimDecides();
    void folderGoesByTheNetwork();
    void changedFilesStandInTheWay();
    void unknownOperatorFails();
    void operatorWithoutCodesFails();
    void listHasALineForEachOperator();
    void oddDatabasesAreNotRead_data();
    void oddDatabasesAreNotRead();
    void complaintsNameLineAndColumn();
    void namesCannotSteerTheTerminal();
    void unusableArguments_data();
    void unusableArguments();
    void helpAndVersion();

private:
    int run(const QStringList &arguments);
    QStringList named(const char *name);
    QString target() { return folder() + QLatin1String("/target"); }
    QString inUse() { return target() + QLatin1String("/plugins/USSDUIPlugin/"); }

    QString m_database;
    QString m_out;
    QString m_error;
};

namespace
{
QStringList words(const char *blankSeparated)
{
    return QString::fromUtf8(blankSeparated).split(QLatin1Char(' '));
}

const char DATABASE[] =
    "<serviceproviders format='2.0'><country code='de'><name>Germany</name>\n"
    "<provider><name>Alpha</name><gsm><network-id mcc='262' mnc='07'/>"
    "<balance-check><ussd>*101#</ussd></balance-check>"
    "<balance-top-up><ussd replacement='PIN'>*103*PIN#</ussd></balance-top-up></gsm></provider>\n"
    "<provider><name>Beta</name><gsm><network-id mcc='262' mnc='07'/>"
    "<balance-check><ussd>*102#</ussd></balance-check></gsm></provider>\n"
    "<provider><name>Silent\x1b[31m</name></provider>\n"
    "</country></serviceproviders>";
} // namespace

void ProvisionToolTest::setUp()
{
    m_database =
        writeFile(QLatin1String("database.xml"), QByteArray(DATABASE).replace('\x1b', "&#x9b;"));
}

int ProvisionToolTest::run(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("XDG_DATA_HOME"), folder() + QLatin1String("/data"));
    process.setProcessEnvironment(environment);
    process.start(QLatin1String(PROVISION_PROGRAM),
                  QStringList() << QLatin1String("--database") << m_database << arguments);
    if (!process.waitForFinished())
        return -1;
    m_out = QString::fromUtf8(process.readAllStandardOutput());
    m_error = QString::fromUtf8(process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QStringList ProvisionToolTest::named(const char *name)
{
    return words("--country de --provider")
           << QString::fromUtf8(name) << words("--folder") << target();
}

void ProvisionToolTest::severalOperatorsArePrintedAndNoneIsWritten()
{
    QCOMPARE(run(words("--network 26207 --folder") << target()), int(TOOL_CHOOSE));
    QCOMPARE(m_out.count(QLatin1Char('\n')), 2);
    QVERIFY(m_out.contains(QLatin1String("Alpha")) && m_out.contains(QLatin1String("Beta")));
    QVERIFY(!QFileInfo::exists(target()));
}

/// Tests that the arguments that the program suggests for an operator select exactly this operator.
void ProvisionToolTest::everyNamesakeCanBeSelected()
{
    m_database =
        writeFile(QLatin1String("namesakes.xml"),
                  "<serviceproviders format='2.0'><country code='jp'>"
                  "<provider><name>It's M</name><gsm><network-id mcc='440' mnc='10'/>"
                  "<balance-check><ussd>*1#</ussd></balance-check></gsm></provider>"
                  "<provider><name>It's M</name><gsm><network-id mcc='440' mnc='10'/>"
                  "<network-id mcc='440' mnc='51'/>"
                  "<balance-check><ussd>*2#</ussd></balance-check></gsm></provider>"
                  "<provider><name>It's M</name><name xml:lang='ja'>\xe3\x83\x9e</name><gsm>"
                  "<network-id mcc='440' mnc='10'/>"
                  "<balance-check><ussd>*3#</ussd></balance-check></gsm></provider>"
                  "</country></serviceproviders>");
    QCOMPARE(run(words("--country jp --provider") << QLatin1String("It's M")), int(TOOL_CHOOSE));
    const QStringList lines = m_error.trimmed().split(QLatin1Char('\n'));
    QCOMPARE(lines.count(), 4);
    QVERIFY(lines.at(1).contains(QLatin1String("nothing distinguishes It's M")));
    QCOMPARE(lines.at(2), QLatin1String("  --country jp --provider 'It'\\''s M' --network 44051"));
    QCOMPARE(lines.at(3), QString::fromUtf8("  --country jp --provider \xe3\x83\x9e"));
    QCOMPARE(run(words("--country jp --provider")
                 << QLatin1String("It's M") << words("--network 44051 --folder") << target()),
             int(TOOL_GOOD));
    QVERIFY(m_out.contains(QLatin1String("*2#")));
    QCOMPARE(run(words("--country jp --provider \xe3\x83\x9e --folder") << target()),
             int(TOOL_GOOD));
    QVERIFY(m_out.contains(QLatin1String("*3#")));
}

/// Tests that the suggested arguments contain the network code, because the name of the folder
/// depends on it.
void ProvisionToolTest::argumentsThatSelectKeepTheNetwork()
{
    QCOMPARE(run(words("--network 26207")), int(TOOL_CHOOSE));
    QVERIFY2(m_error.contains(QLatin1String("\n  --country de --provider Alpha --network 26207\n"
                                            "  --country de --provider Beta --network 26207\n")),
             qPrintable(m_error));
}

void ProvisionToolTest::namedOperatorIsWritten()
{
    QCOMPARE(run(named("alpha")), int(TOOL_GOOD));
    QVERIFY(m_out.contains(QLatin1String("*103*%s#")));
    QVERIFY(
        m_out.endsWith(QLatin1String("USSD_PLUGIN_LIBRARY_PATH=") + target() + QLatin1Char('\n')));
    for (const char *file : {"USSDPluginConfig.xml", "ussdsysprofile.xml", "libUSSDUIPlugin.so"})
        QVERIFY2(QFileInfo(inUse() + QLatin1String(file)).isFile(), file);
    QCOMPARE(run(named("alpha")), int(TOOL_GOOD));
    QVERIFY(m_out.startsWith(QLatin1String("Alpha (de): there already")));
}

void ProvisionToolTest::nameOfTheSimDecides()
{
    QCOMPARE(run(words("--network 26207 --sim-name BETA --folder") << target()), int(TOOL_GOOD));
    QVERIFY(m_out.startsWith(QLatin1String("Beta (de): written")));
}

void ProvisionToolTest::folderGoesByTheNetwork()
{
    QCOMPARE(run(words("--network 26207 --sim-name Beta")), int(TOOL_GOOD));
    const QString operators = folder() + QLatin1String("/data/ussd-dashboard/operators/");
    QVERIFY(QFileInfo(operators + QLatin1String("26207/plugins/USSDUIPlugin")).isDir());
    QCOMPARE(run(words("--country de --provider Beta")), int(TOOL_GOOD));
    QVERIFY(QFileInfo(operators + QLatin1String("de-beta/plugins/USSDUIPlugin")).isDir());
}

void ProvisionToolTest::changedFilesStandInTheWay()
{
    QCOMPARE(run(named("Alpha")), int(TOOL_GOOD));
    const QString file = inUse() + QLatin1String("USSDPluginConfig.xml");
    QFile changed(file);
    QVERIFY(changed.open(QIODevice::Append) && changed.write("\n") == 1);
    changed.close();
    QCOMPARE(run(named("Beta")), int(TOOL_REFUSED));
    QVERIFY2(m_error.contains(QLatin1String("USSDPluginConfig.xml")), qPrintable(m_error));
    QCOMPARE(run(named("Beta") << words("--set-aside")), int(TOOL_GOOD));
    QVERIFY2(m_out.contains(QLatin1String("kept  ")), qPrintable(m_out));
}

void ProvisionToolTest::unknownOperatorFails()
{
    QCOMPARE(run(named("Omega")), int(TOOL_BAD));
    QVERIFY(m_error.contains(QLatin1String("no such operator")));
}

void ProvisionToolTest::operatorWithoutCodesFails()
{
    QCOMPARE(run(named("Silent[31m")), int(TOOL_BAD));
    QVERIFY(m_error.contains(QLatin1String("no code")));
    QVERIFY(!QFileInfo::exists(target()));
}

void ProvisionToolTest::listHasALineForEachOperator()
{
    QCOMPARE(run(words("--list")), int(TOOL_GOOD));
    QCOMPARE(m_out.count(QLatin1Char('\n')), 3);
    QVERIFY(m_out.startsWith(QLatin1String("de\tAlpha\t*101#\t*103*%s#\t-\t26207\n")));
    QCOMPARE(run(words("--list --network 26299")), int(TOOL_GOOD));
    QCOMPARE(m_out, QString());
}

void ProvisionToolTest::oddDatabasesAreNotRead_data()
{
    OddFiles::addColumns(64 << 20);
}

void ProvisionToolTest::oddDatabasesAreNotRead()
{
    m_database = folder() + QLatin1String("/odd.xml");
    const QString said = m_database + QLatin1String(": ") + OddFiles::make(m_database);
    QCOMPARE(run(words("--list")), int(TOOL_USAGE));
    QVERIFY2(m_error.contains(said), qPrintable(m_error));
}

void ProvisionToolTest::complaintsNameLineAndColumn()
{
    m_database = writeFile(QLatin1String("bad.xml"),
                           QByteArray(DATABASE).replace('\x1b', "").replace("mnc='07'", "mnc='x'"));
    QCOMPARE(run(words("--list")), int(TOOL_GOOD));
    QVERIFY2(m_error.contains(QRegularExpression(QLatin1String("bad\\.xml:2:\\d+: .*\"x\""))),
             qPrintable(m_error));
    m_database = writeFile(QLatin1String("worse.xml"), QByteArray(DATABASE).left(200));
    QCOMPARE(run(words("--list")), int(TOOL_USAGE));
    QVERIFY(m_error.contains(QLatin1String("worse.xml: line 2")));
}

void ProvisionToolTest::namesCannotSteerTheTerminal()
{
    QCOMPARE(run(words("--list")), int(TOOL_GOOD));
    QVERIFY(!m_out.contains(QChar(0x9b)));
    QVERIFY(m_out.contains(QString::fromLatin1("Silent") + QChar(QChar::ReplacementCharacter)));
}

void ProvisionToolTest::unusableArguments_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char *arguments :
         {"", "--network", "--network 2620", "--network 2620x", "--network 2620700", "--country de",
          "--provider Alpha", "--nonsense", "word", "--list --list", "--list=yes",
          "--network=", "--sim-name Alpha", "--network +2620"})
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
}

void ProvisionToolTest::unusableArguments()
{
    QFETCH(QString, arguments);
    const QStringList given =
        arguments.isEmpty() ? QStringList() : arguments.split(QLatin1Char(' '));
    QCOMPARE(run(given), int(TOOL_USAGE));
    QVERIFY(m_error.contains(QLatin1String("--help")));
    QCOMPARE(m_out, QString());
}

void ProvisionToolTest::helpAndVersion()
{
    QCOMPARE(run(words("--help --network")), int(TOOL_GOOD));
    for (const char *option : {"--network", "--sim-name", "--country", "--provider", "--folder",
                               "--set-aside", "--database", "--list"})
        QVERIFY2(m_out.contains(QLatin1String(option)), option);
    QCOMPARE(run(words("--version")), int(TOOL_GOOD));
    QVERIFY(m_out.startsWith(QLatin1String("ussd-provision ")));
}

USSD_TEST_MAIN(ProvisionToolTest)
#include "provision_tool_test.moc"
