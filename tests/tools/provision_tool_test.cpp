#include "OddFiles.h"
#include "ToolArguments.h"
#include "ToolTest.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Tools;

/// Tests the output, the files and the exit code of ussd-provision.
class ProvisionToolTest : public ToolTest
{
    Q_OBJECT
public:
    ProvisionToolTest() : ToolTest(PROVISION_PROGRAM) {}

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
    int provision(const QStringList &arguments);
    QStringList named(const char *name);
    QString target() { return folder() + QLatin1String("/target"); }
    QString inUse() { return target() + QLatin1String("/plugins/USSDUIPlugin/"); }

    QString m_database;
};

namespace
{
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

int ProvisionToolTest::provision(const QStringList &arguments)
{
    return run(QStringList() << QLatin1String("--database") << m_database << arguments);
}

QStringList ProvisionToolTest::named(const char *name)
{
    return words("--country de --provider")
           << QString::fromUtf8(name) << words("--folder") << target();
}

void ProvisionToolTest::severalOperatorsArePrintedAndNoneIsWritten()
{
    QCOMPARE(provision(words("--network 26207 --folder") << target()), int(TOOL_CHOOSE));
    QCOMPARE(outText().count(QLatin1Char('\n')), 2);
    QVERIFY(outText().contains(QLatin1String("Alpha")) &&
            outText().contains(QLatin1String("Beta")));
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
    QCOMPARE(provision(words("--country jp --provider") << QLatin1String("It's M")),
             int(TOOL_CHOOSE));
    const QStringList lines = errorText().trimmed().split(QLatin1Char('\n'));
    QCOMPARE(lines.count(), 4);
    QVERIFY(lines.at(1).contains(QLatin1String("nothing distinguishes It's M")));
    QCOMPARE(lines.at(2), QLatin1String("  --country jp --provider 'It'\\''s M' --network 44051"));
    QCOMPARE(lines.at(3), QString::fromUtf8("  --country jp --provider \xe3\x83\x9e"));
    QCOMPARE(provision(words("--country jp --provider")
                       << QLatin1String("It's M") << words("--network 44051 --folder") << target()),
             int(TOOL_GOOD));
    QVERIFY(outText().contains(QLatin1String("*2#")));
    QCOMPARE(provision(words("--country jp --provider \xe3\x83\x9e --folder") << target()),
             int(TOOL_GOOD));
    QVERIFY(outText().contains(QLatin1String("*3#")));
}

/// Tests that the suggested arguments contain the network code, because the name of the folder
/// depends on it.
void ProvisionToolTest::argumentsThatSelectKeepTheNetwork()
{
    QCOMPARE(provision(words("--network 26207")), int(TOOL_CHOOSE));
    QVERIFY2(
        errorText().contains(QLatin1String("\n  --country de --provider Alpha --network 26207\n"
                                           "  --country de --provider Beta --network 26207\n")),
        qPrintable(errorText()));
}

void ProvisionToolTest::namedOperatorIsWritten()
{
    QCOMPARE(provision(named("alpha")), int(TOOL_GOOD));
    QVERIFY(outText().contains(QLatin1String("*103*%s#")));
    QVERIFY(outText().endsWith(QLatin1String("USSD_PLUGIN_LIBRARY_PATH=") + target() +
                               QLatin1Char('\n')));
    for (const char *file : {"USSDPluginConfig.xml", "ussdsysprofile.xml", "libUSSDUIPlugin.so"})
        QVERIFY2(QFileInfo(inUse() + QLatin1String(file)).isFile(), file);
    QCOMPARE(provision(named("alpha")), int(TOOL_GOOD));
    QVERIFY(outText().startsWith(QLatin1String("Alpha (de): there already")));
}

void ProvisionToolTest::nameOfTheSimDecides()
{
    QCOMPARE(provision(words("--network 26207 --sim-name BETA --folder") << target()),
             int(TOOL_GOOD));
    QVERIFY(outText().startsWith(QLatin1String("Beta (de): written")));
}

void ProvisionToolTest::folderGoesByTheNetwork()
{
    QCOMPARE(provision(words("--network 26207 --sim-name Beta")), int(TOOL_GOOD));
    const QString operators = folder() + QLatin1String("/data/ussd-dashboard/operators/");
    QVERIFY(QFileInfo(operators + QLatin1String("26207/plugins/USSDUIPlugin")).isDir());
    QCOMPARE(provision(words("--country de --provider Beta")), int(TOOL_GOOD));
    QVERIFY(QFileInfo(operators + QLatin1String("de-beta/plugins/USSDUIPlugin")).isDir());
}

void ProvisionToolTest::changedFilesStandInTheWay()
{
    QCOMPARE(provision(named("Alpha")), int(TOOL_GOOD));
    const QString file = inUse() + QLatin1String("USSDPluginConfig.xml");
    QFile changed(file);
    QVERIFY(changed.open(QIODevice::Append) && changed.write("\n") == 1);
    changed.close();
    QCOMPARE(provision(named("Beta")), int(TOOL_REFUSED));
    QVERIFY2(errorText().contains(QLatin1String("USSDPluginConfig.xml")), qPrintable(errorText()));
    QCOMPARE(provision(named("Beta") << words("--set-aside")), int(TOOL_GOOD));
    QVERIFY2(outText().contains(QLatin1String("kept  ")), qPrintable(outText()));
}

void ProvisionToolTest::unknownOperatorFails()
{
    QCOMPARE(provision(named("Omega")), int(TOOL_BAD));
    QVERIFY(errorText().contains(QLatin1String("no such operator")));
}

void ProvisionToolTest::operatorWithoutCodesFails()
{
    QCOMPARE(provision(named("Silent[31m")), int(TOOL_BAD));
    QVERIFY(errorText().contains(QLatin1String("no code")));
    QVERIFY(!QFileInfo::exists(target()));
}

void ProvisionToolTest::listHasALineForEachOperator()
{
    QCOMPARE(provision(words("--list")), int(TOOL_GOOD));
    QCOMPARE(outText().count(QLatin1Char('\n')), 3);
    QVERIFY(outText().startsWith(QLatin1String("de\tAlpha\t*101#\t*103*%s#\t-\t26207\n")));
    QCOMPARE(provision(words("--list --network 26299")), int(TOOL_GOOD));
    QCOMPARE(outText(), QString());
}

void ProvisionToolTest::oddDatabasesAreNotRead_data()
{
    OddFiles::addColumns(64 << 20);
}

void ProvisionToolTest::oddDatabasesAreNotRead()
{
    m_database = folder() + QLatin1String("/odd.xml");
    const QString said = m_database + QLatin1String(": ") + OddFiles::make(m_database);
    QCOMPARE(provision(words("--list")), int(TOOL_USAGE));
    QVERIFY2(errorText().contains(said), qPrintable(errorText()));
}

void ProvisionToolTest::complaintsNameLineAndColumn()
{
    m_database = writeFile(QLatin1String("bad.xml"),
                           QByteArray(DATABASE).replace('\x1b', "").replace("mnc='07'", "mnc='x'"));
    QCOMPARE(provision(words("--list")), int(TOOL_GOOD));
    QVERIFY2(errorText().contains(QRegularExpression(QLatin1String("bad\\.xml:2:\\d+: .*\"x\""))),
             qPrintable(errorText()));
    m_database = writeFile(QLatin1String("worse.xml"), QByteArray(DATABASE).left(200));
    QCOMPARE(provision(words("--list")), int(TOOL_USAGE));
    QVERIFY(errorText().contains(QLatin1String("worse.xml: line 2")));
}

void ProvisionToolTest::namesCannotSteerTheTerminal()
{
    QCOMPARE(provision(words("--list")), int(TOOL_GOOD));
    QVERIFY(!outText().contains(QChar(0x9b)));
    QVERIFY(outText().contains(QString::fromLatin1("Silent") + QChar(QChar::ReplacementCharacter)));
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
    QCOMPARE(provision(given), int(TOOL_USAGE));
    QVERIFY(errorText().contains(QLatin1String("--help")));
    QCOMPARE(outText(), QString());
}

void ProvisionToolTest::helpAndVersion()
{
    QCOMPARE(provision(words("--help --network")), int(TOOL_GOOD));
    for (const char *option : {"--network", "--sim-name", "--country", "--provider", "--folder",
                               "--set-aside", "--database", "--list"})
        QVERIFY2(outText().contains(QLatin1String(option)), option);
    QCOMPARE(provision(words("--version")), int(TOOL_GOOD));
    QVERIFY(outText().startsWith(QLatin1String("ussd-provision ")));
}

USSD_TEST_MAIN(ProvisionToolTest)
#include "provision_tool_test.moc"
