#include "PluginTest.h"
#include "profiles/USSDEditCmd.h"
#include "ProviderChoice.h"
#include "ProvisionWriter.h"
#include "requests/USSDLogic.h"
#include "SmsLayout.h"
#include "UssdCode.h"
#include "UssdTemplate.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>

using namespace Formats;
using namespace Provisioning;

/// Tests that the plug-in's own code can read the generated files for all operators in the
/// installed database.
class InstalledOperatorsTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUpClass() override;

private slots:
    void databaseIsReadWithoutComplaints();
    void sharedNetworksAreNeverChosenSilently();
    void someSharedNetworksHaveDifferentCodes();
    void operatorsOfTheDatabase_data();
    void operatorsOfTheDatabase();

private:
    void useFolder(const QString &path);
    void checkAccount(const ProvisionPlan &plan);
    void checkProfiles(const ProvisionPlan &plan);
    void checkSims(const ProvisionPlan &plan);
    void checkServices(const ProvisionPlan &plan);
};

namespace
{
ProviderDatabase g_database;
QByteArray g_shipped;

const int PREPAID = 0;
const int POSTPAID = 1;
const int BALANCE = 0;
const int CHARGE = 1;
const int ONLINE_CHARGE = 2;
const int MSISDN = 3;
const int VALUE = 0;
const int COMMAND = 2;
const int LENGTH = 5;

QString commandOf(int paidType, int component)
{
    QString command;
    USSDLogic::GetUSSDLogicInstance()->GetComponentAttrStr(paidType, component, COMMAND, command);
    return command;
}

bool isShown(int paidType, int component)
{
    return USSDLogic::GetUSSDLogicInstance()->GetComponentAttrInt(paidType, component, VALUE) == 1;
}

QStringList sharedNetworks()
{
    QMap<QString, int> owners;
    for (const Provider &provider : g_database.providers) {
        for (const QString &network : provider.networks)
            ++owners[network];
    }
    QStringList shared;
    for (const QString &network : owners.keys()) {
        if (owners.value(network) > 1)
            shared << network;
    }
    return shared;
}

ProviderChoice choiceFor(const QString &network)
{
    ProviderQuery query;
    query.network = network;
    return chooseProvider(g_database, query);
}

/// Returns the USSD codes for balance, own number and top-up, with "%s" in place of the input. Does
/// not use the code under test.
QStringList usableCodes(const Provider &provider)
{
    QStringList codes;
    for (const ProviderCode &code : provider.balance + provider.ownNumber + provider.topUp) {
        QString text = code.code;
        if (code.takesInput && !code.replacement.isEmpty())
            text.replace(code.replacement, QLatin1String("%s"));
        if (code.way == ProviderCode::Ussd && text.endsWith(QLatin1Char('#')))
            codes << text;
    }
    codes.removeDuplicates();
    return codes;
}
} // namespace

void InstalledOperatorsTest::setUpClass()
{
    g_database = readProviderDatabaseFile(installedProviderDatabase());
    QVERIFY2(g_database.error.isEmpty(), qPrintable(g_database.error));
    QFile file(QLatin1String(SHIPPED_DATA_DIR "/USSDPluginConfig.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    g_shipped = file.readAll();
}

void InstalledOperatorsTest::databaseIsReadWithoutComplaints()
{
    QVERIFY(g_database.providers.count() > 100);
    for (const ProviderComplaint &complaint : g_database.complaints)
        qInfo("%lld: %s", complaint.line, qPrintable(complaint.text));
    QCOMPARE(g_database.complaints.count(), 0);
}

void InstalledOperatorsTest::sharedNetworksAreNeverChosenSilently()
{
    const QStringList shared = sharedNetworks();
    QVERIFY(!shared.isEmpty());
    QSet<QString> all;
    for (const Provider &provider : g_database.providers) {
        for (const QString &network : provider.networks) {
            all.insert(network);
            const ProviderChoice choice = choiceFor(network);
            const bool isShared = shared.contains(network);
            QCOMPARE(choice.state, isShared ? ProviderChoice::Ambiguous : ProviderChoice::Chosen);
        }
    }
    qInfo("%d network codes, %d of several operators", int(all.count()), int(shared.count()));
}

void InstalledOperatorsTest::someSharedNetworksHaveDifferentCodes()
{
    int differing = 0;
    for (const QString &network : sharedNetworks()) {
        QSet<QString> balances;
        for (const Provider &candidate : choiceFor(network).candidates) {
            const QString balance = provisionPlan(candidate).balance;
            if (!balance.isEmpty())
                balances.insert(balance);
        }
        differing += balances.count() > 1 ? 1 : 0;
    }
    qInfo("%d network codes whose operators have different balance codes", differing);
    QVERIFY(differing > 0);
}

void InstalledOperatorsTest::operatorsOfTheDatabase_data()
{
    QTest::addColumn<int>("index");
    int provisioned = 0;
    for (int i = 0; i < g_database.providers.count(); ++i) {
        const Provider &provider = g_database.providers.at(i);
        if (!provider.hasCodes())
            continue;
        const QString row = provider.country + QLatin1Char(' ') + provider.name();
        QTest::newRow(qPrintable(row)) << i;
        ++provisioned;
    }
    QVERIFY(provisioned > 100);
}

void InstalledOperatorsTest::useFolder(const QString &path)
{
    USSDLogic::Destroy();
    qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(path));
}

void InstalledOperatorsTest::operatorsOfTheDatabase()
{
    QFETCH(int, index);
    const Provider &provider = g_database.providers.at(index);
    const ProvisionPlan plan = provisionPlan(provider);
    if (plan.isEmpty()) { // the operator has only phone numbers, or messages without a text
        QCOMPARE(usableCodes(provider), QStringList());
        QVERIFY(!plan.notes.isEmpty());
        return;
    }
    ProvisionOrder order;
    order.folder = folder() + QLatin1String("/operator");
    const ProvisionFiles files = provisionFiles(plan, g_shipped);
    QCOMPARE(files.error, QString());
    QCOMPARE(writeProvision(order, plan, files).state, ProvisionOutcome::Written);
    useFolder(order.folder);
    checkAccount(plan);
    checkProfiles(plan);
    checkSims(plan);
    checkServices(plan);
    // Saving unchanged profiles in the editor does not change the file.
    QCOMPARE(USSDEditCmd().saveToXMLFile(true), 0);
    QCOMPARE(readProvision(order.folder).changedFiles, QStringList());
    QCOMPARE(readProvision(order.folder).record.provider, provider.name());
    // The file contains all usable codes from the database.
    QStringList codes;
    QList<USSDProfile> profiles;
    USSDEditCmd().GetProfileList(profiles);
    for (const USSDProfile &profile : profiles)
        codes << profile.value;
    for (const QString &code : usableCodes(provider))
        QVERIFY2(codes.contains(code), qPrintable(code));
}

void InstalledOperatorsTest::checkAccount(const ProvisionPlan &plan)
{
    for (const int paidType : {PREPAID, POSTPAID}) {
        QCOMPARE(commandOf(paidType, BALANCE), plan.balance);
        QCOMPARE(commandOf(paidType, MSISDN), plan.ownNumber);
        QCOMPARE(commandOf(paidType, CHARGE), plan.topUp);
        QCOMPARE(isShown(paidType, BALANCE), !plan.balance.isEmpty());
        QCOMPARE(isShown(paidType, MSISDN), !plan.ownNumber.isEmpty());
    }
    QCOMPARE(isShown(PREPAID, CHARGE), !plan.topUp.isEmpty());
    QVERIFY(!isShown(POSTPAID, CHARGE));
    QVERIFY(!isShown(PREPAID, ONLINE_CHARGE) && !isShown(POSTPAID, ONLINE_CHARGE));
    PrePostDiffer detection;
    detection.value = true;
    USSDLogic::GetUSSDLogicInstance()->GetPrePostDiffer(detection);
    QVERIFY(!detection.value); // the database contains no detection code
    if (plan.topUp.isEmpty())
        return;
    QString longest = plan.topUp;
    const int length =
        USSDLogic::GetUSSDLogicInstance()->GetComponentAttrInt(PREPAID, CHARGE, LENGTH);
    QVERIFY(length > 10);
    longest.replace(QLatin1String("%s"), QString(length, QLatin1Char('1')));
    QVERIFY(longest.length() <= LONGEST_COMMAND && isUssdCode(longest));
}

void InstalledOperatorsTest::checkProfiles(const ProvisionPlan &plan)
{
    QList<USSDProfile> profiles;
    USSDEditCmd().GetProfileList(profiles);
    QCOMPARE(profiles.count(), plan.profiles.count());
    for (int i = 0; i < profiles.count(); ++i) {
        QCOMPARE(profiles.at(i).value, plan.profiles.at(i).value);
        QCOMPARE(profiles.at(i).langID, plan.profiles.at(i).langID);
        QCOMPARE(profiles.at(i).desLangID, plan.profiles.at(i).desLangID);
        QCOMPARE(profiles.at(i).showButton, plan.profiles.at(i).showButton);
        QVERIFY(profiles.at(i).isSystem);
        QVERIFY(!profiles.at(i).name.isEmpty());
    }
}

void InstalledOperatorsTest::checkSims(const ProvisionPlan &plan)
{
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    QCOMPARE(logic->IsImsiDynamicMatch(), !plan.imsiPrefixes.isEmpty());
    for (const QString &prefix : plan.imsiPrefixes) {
        int windows = 0;
        QVERIFY(logic->CheckImsiIsValid(prefix + QLatin1String("123456789"), windows));
        QVERIFY(windows & WINDOW_ADVANCED);
        const bool account =
            !plan.balance.isEmpty() || !plan.topUp.isEmpty() || !plan.ownNumber.isEmpty();
        QCOMPARE((windows & WINDOW_PREPAID) != 0, account);
        QCOMPARE((windows & WINDOW_COMMONPAID) != 0, !plan.messages.isEmpty());
    }
    int none = 0;
    QVERIFY(!logic->CheckImsiIsValid(QLatin1String("00101123456789"), none));
}

void InstalledOperatorsTest::checkServices(const ProvisionPlan &plan)
{
    QFile file(folder() + QLatin1String("/operator/plugins/USSDUIPlugin/USSDPluginConfig.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QXmlStreamReader reader(&file);
    SmsLayout layout;
    QVERIFY(SmsLayoutFile::read(reader, layout));
    QCOMPARE(layout.complaints, QStringList());
    QCOMPARE(layout.ordinaryEntries, plan.messages.count());
    for (int i = 0; i < plan.messages.count(); ++i) {
        const CWidgetItemInfo *button = layout.groups.value(i + 1)->controls.at(3);
        QCOMPARE(button->kind, int(CONTROL_KIND_SMS));
        QCOMPARE(button->command, plan.messages.at(i).text);
        QCOMPARE(button->number, plan.messages.at(i).number);
        QVERIFY(!layout.entries.value(i + 1)->textId.isEmpty());
    }
}

USSD_TEST_MAIN(InstalledOperatorsTest)
#include "installed_operators_test.moc"
