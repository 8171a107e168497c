#include "FileCheck.h"
#include "ProvisionPlan.h"
#include "SampleNetwork.h"
#include "ToolArguments.h"
#include "ToolTest.h"

#include <QDir>

using namespace Tools;

/// Tests "ussd-config new": the created folder, and the exit code.
class ConfigNewTest : public ToolTest
{
    Q_OBJECT
public:
    ConfigNewTest() : ToolTest(CONFIG_PROGRAM) {}

protected:
    void setUp() override;

private slots:
    void sampleIsCompleteAndClean();
    void operatorsFolderIsCompleteAndClean();
    void networkCodeSelectsAnOperator();
    void severalOperatorsAreListed();
    void unusableOperators_data();
    void unusableOperators();
    void existingFolderIsLeftAlone();
    void emptyFolderIsUsed();
    void failureLeavesNothing();
    void folderIsCheckedAsAWhole();
    void unusableArguments_data();
    void unusableArguments();
    void sampleNetworkTakesAnyName();

private:
    int create(const QStringList &options = QStringList());
    QString target() { return folder() + QLatin1String("/new one"); }
    QStringList database() { return QStringList() << QLatin1String("--database") << m_database; }

    QString m_database;
};

namespace
{
const char DATABASE[] =
    "<serviceproviders format='2.0'><country code='de'>\n"
    "<provider><name>Alpha</name><gsm><network-id mcc='262' mnc='07'/>"
    "<balance-check><ussd>*101#</ussd></balance-check>"
    "<balance-top-up><ussd replacement='PIN'>*103*PIN#</ussd></balance-top-up></gsm></provider>\n"
    "<provider><name>Beta</name><gsm><network-id mcc='262' mnc='07'/>"
    "<network-id mcc='262' mnc='08'/>"
    "<balance-check><ussd>*102#</ussd></balance-check></gsm></provider>\n"
    "<provider><name>Silent</name><gsm><network-id mcc='262' mnc='09'/></gsm></provider>\n"
    "</country><country code='at'>"
    "<provider><name>Alpha</name><gsm><network-id mcc='232' mnc='01'/>"
    "<balance-check><ussd>*104#</ussd></balance-check></gsm></provider>\n"
    "</country></serviceproviders>";

const char CONFIGURATION[] = "/plugins/USSDUIPlugin/USSDPluginConfig.xml";
const char PROFILES[] = "/plugins/USSDUIPlugin/ussdsysprofile.xml";
const char SCENARIO[] = "/network.scenario";
} // namespace

void ConfigNewTest::setUp()
{
    m_database = writeFile(QLatin1String("database.xml"), DATABASE);
}

int ConfigNewTest::create(const QStringList &options)
{
    return run(words("new") << target() << options);
}

void ConfigNewTest::sampleIsCompleteAndClean()
{
    QCOMPARE(create(), int(TOOL_GOOD));
    QVERIFY(outText().contains(QLatin1String("replace its codes")));
    QCOMPARE(
        contentOf(target() + QLatin1String(CONFIGURATION)),
        contentOf(QLatin1String(USSD_SOURCE_DIR "/plugins/USSDUIPlugin/USSDPluginConfig.xml")));
    QCOMPARE(run(words("check") << target()), int(TOOL_GOOD));
    QCOMPARE(outText().count(QLatin1String("findings: 0")), 3);
}

void ConfigNewTest::operatorsFolderIsCompleteAndClean()
{
    QCOMPARE(create(words("--operator alpha --country de") << database()), int(TOOL_GOOD));
    QVERIFY(outText().contains(QLatin1String("operator    Alpha (de)\n")));
    QVERIFY(contentOf(target() + QLatin1String(CONFIGURATION)).contains("*103*%s#"));
    QVERIFY(contentOf(target() + QLatin1String(PROFILES)).contains("*101#"));
    const QByteArray scenario = contentOf(target() + QLatin1String(SCENARIO));
    QVERIFY(scenario.contains("IMSI=262070000000000\n"));
    QVERIFY(scenario.contains("[*103*%s#]\n"));
    QCOMPARE(run(words("check") << target()), int(TOOL_GOOD));
    QCOMPARE(outText().count(QLatin1String("findings: 0")), 3);
}

void ConfigNewTest::networkCodeSelectsAnOperator()
{
    QCOMPARE(create(words("--operator 26208") << database()), int(TOOL_GOOD));
    QVERIFY(outText().contains(QLatin1String("operator    Beta (de)\n")));
    QVERIFY(contentOf(target() + QLatin1String(SCENARIO)).contains("IMSI=262080000000000\n"));
}

void ConfigNewTest::severalOperatorsAreListed()
{
    QCOMPARE(create(words("--operator Alpha") << database()), int(TOOL_CHOOSE));
    QVERIFY(errorText().contains(QLatin1String("  --operator Alpha --country at\n")));
    QVERIFY(errorText().contains(QLatin1String("  --operator Alpha --country de\n")));
    QCOMPARE(create(words("--operator 26207") << database()), int(TOOL_CHOOSE));
    QVERIFY(errorText().contains(QLatin1String("  --operator Beta --country de\n")));
    QVERIFY(!QFile::exists(target()));
}

void ConfigNewTest::unusableOperators_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("said");
    QTest::newRow("unknown") << QStringLiteral("Gamma") << QStringLiteral("no such operator");
    QTest::newRow("no code") << QStringLiteral("Silent") << QStringLiteral("no code of Silent");
}

void ConfigNewTest::unusableOperators()
{
    QFETCH(QString, name);
    QFETCH(QString, said);
    QCOMPARE(create(words("--operator") << name << database()), int(TOOL_BAD));
    QVERIFY2(errorText().contains(said), qPrintable(errorText()));
    QVERIFY(!QFile::exists(target()));
}

void ConfigNewTest::existingFolderIsLeftAlone()
{
    QVERIFY(QDir().mkpath(target()));
    writeFile(QLatin1String("new one/mine.txt"), "mine");
    QCOMPARE(create(), int(TOOL_REFUSED));
    QVERIFY(errorText().contains(QLatin1String("exists already")));
    QCOMPARE(QDir(target()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), words("mine.txt"));
}

void ConfigNewTest::emptyFolderIsUsed()
{
    QVERIFY(QDir().mkpath(target()));
    QCOMPARE(create(), int(TOOL_GOOD));
    QVERIFY(QFile::exists(target() + QLatin1String(PROFILES)));
}

/// Tests that nothing is left behind if the folder cannot be created because its parent is a file.
void ConfigNewTest::failureLeavesNothing()
{
    const QStringList before = QDir(folder()).entryList();
    QCOMPARE(run(words("new") << m_database + QLatin1String("/folder")), int(TOOL_BAD));
    QVERIFY(!errorText().isEmpty());
    QCOMPARE(QDir(folder()).entryList(), before);
}

void ConfigNewTest::folderIsCheckedAsAWhole()
{
    QCOMPARE(create(), int(TOOL_GOOD));
    writeFile(QLatin1String("new one") + QLatin1String(PROFILES), "<tksvdoc><item/></tksvdoc>");
    QCOMPARE(run(words("check") << target()), int(TOOL_BAD));
    QCOMPARE(run(words("check") << folder()), int(TOOL_USAGE));
}

void ConfigNewTest::unusableArguments_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char *arguments :
         {"new", "new a b", "new a --country de", "new a --format json", "check a --operator b"})
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
}

void ConfigNewTest::unusableArguments()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments.split(QLatin1Char(' '))), int(TOOL_USAGE));
    QVERIFY(errorText().contains(QLatin1String("--help")));
}

void ConfigNewTest::sampleNetworkTakesAnyName()
{
    Provisioning::ProvisionPlan plan;
    plan.provider = QStringLiteral(" a\\b\n[c]");
    Formats::USSDProfile profile;
    profile.name = QStringLiteral("d\\n# e");
    profile.value = QStringLiteral("*1#");
    plan.profiles << profile << profile;
    const CheckReport report = checkContent(sampleNetwork(plan), QStringLiteral("sample"));
    QCOMPARE(report.kind, QStringLiteral("scenario"));
    QVERIFY2(report.findings.isEmpty(), qPrintable(reportText(report)));
    QVERIFY(sampleNetwork(plan).contains("IMSI=001010000000000\n"));
}

USSD_TEST_MAIN(ConfigNewTest)
#include "config_new_test.moc"
