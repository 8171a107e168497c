/*
 * Fuzzes the operator database. The plug-in must read the planned values from the generated files,
 * and all generated codes must be valid.
 */
#include "FuzzSupport.h"

#include <QFile>
#include <QXmlStreamReader>

#include "PluginConfig.h"
#include "ProfileXml.h"
#include "ProviderChoice.h"
#include "ProviderDatabase.h"
#include "ProvisionFiles.h"
#include "ProvisionPlan.h"
#include "ProvisionRecord.h"
#include "UssdCode.h"
#include "UssdTemplate.h"

using namespace Formats;
using namespace Provisioning;

namespace
{

const int MOST_PROVIDERS = 20; // the maximum number of operators that are checked per input

QByteArray shipped;

void checkCode(const QString &code)
{
    QString filled = code;
    filled.replace(QLatin1String("%s"), QLatin1String("1"));
    FUZZ_REQUIRE(isUssdCode(filled) && filled.length() <= LONGEST_COMMAND);
}

void checkTemplate(const ProviderCode &code)
{
    const UssdTemplate made = ussdTemplate(code);
    FUZZ_REQUIRE(made.code.isEmpty() != made.problem.isEmpty());
    if (made.code.isEmpty())
        return;
    FUZZ_REQUIRE(made.code.count(QLatin1String("%s")) == (made.takesInput ? 1 : 0));
    if (code.way == ProviderCode::Ussd)
        checkCode(made.code);
}

void checkProvider(const Provider &provider)
{
    FUZZ_REQUIRE(!provider.names.isEmpty());
    for (const QString &network : provider.networks)
        FUZZ_REQUIRE(network.length() == 5 || network.length() == 6);
    for (const ProviderCode &code : provider.balance + provider.topUp + provider.ownNumber)
        checkTemplate(code);
}

QList<USSDProfile> profilesIn(const QByteArray &file)
{
    QXmlStreamReader reader(file);
    QList<USSDProfile> profiles;
    USSDProfile profile;
    while (ProfileXml::readNext(reader, profile))
        profiles << profile;
    FUZZ_REQUIRE(!reader.hasError());
    return profiles;
}

void checkProfiles(const ProvisionPlan &plan, const QByteArray &file)
{
    const QList<USSDProfile> profiles = profilesIn(file);
    FUZZ_REQUIRE(profiles.count() == plan.profiles.count());
    for (int i = 0; i < profiles.count(); ++i)
        FUZZ_REQUIRE(profiles.at(i).value == plan.profiles.at(i).value);
}

void checkConfiguration(const ProvisionPlan &plan, const QByteArray &file)
{
    QXmlStreamReader reader(file);
    PluginConfig config;
    readPrePostDiffer(reader, config.prePostDiffer);
    readPaidSection(reader, 0, config);
    readPaidSection(reader, 1, config);
    readAutoUSSD(reader, config.autoUSSD);
    FUZZ_REQUIRE(!reader.hasError());
    FUZZ_REQUIRE(config.balance[0].command == plan.balance);
    FUZZ_REQUIRE(config.charge[0].command == plan.topUp);
    FUZZ_REQUIRE(config.msisdn[0].command == plan.ownNumber);
    for (const QString &prefix : plan.imsiPrefixes)
        FUZZ_REQUIRE(config.autoUSSD.imsiMap.contains(prefix));
}

void checkPlan(const Provider &provider)
{
    const ProvisionPlan plan = provisionPlan(provider, provider.networks.value(0));
    for (const QString &code : {plan.balance, plan.topUp, plan.ownNumber}) {
        if (!code.isEmpty())
            checkCode(code);
    }
    const ProvisionFiles files = provisionFiles(plan, shipped);
    FUZZ_REQUIRE(files.error.isEmpty());
    checkProfiles(plan, files.profiles);
    checkConfiguration(plan, files.configuration);
}

void checkChoice(const ProviderDatabase &database, const Provider &provider)
{
    ProviderQuery query;
    query.network = provider.networks.value(0);
    query.country = provider.country;
    const ProviderChoice choice = chooseProvider(database, query);
    FUZZ_REQUIRE((choice.state == ProviderChoice::None) == choice.candidates.isEmpty());
    FUZZ_REQUIRE(choice.state != ProviderChoice::Chosen || choice.candidates.count() == 1);
}

void checkRecord(const QByteArray &text)
{
    const ProvisionRecord record = provisionRecordFrom(text);
    if (!record.isValid())
        return;
    const ProvisionRecord again = provisionRecordFrom(provisionRecordText(record));
    FUZZ_REQUIRE(again.files == record.files && again.provider == record.provider);
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzSupport::dropMessages();
    QFile file(QString::fromLocal8Bit(SHIPPED_DATA_DIR "/USSDPluginConfig.xml"));
    FUZZ_REQUIRE(file.open(QIODevice::ReadOnly));
    shipped = file.readAll();
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const ProviderDatabase database = readProviderDatabase(file);
    FUZZ_REQUIRE(database.error.isEmpty() || database.providers.isEmpty());
    for (const Provider &provider : database.providers.mid(0, MOST_PROVIDERS)) {
        checkProvider(provider);
        checkPlan(provider);
        checkChoice(database, provider);
    }
    FUZZ_REQUIRE(readProviderDatabase(file).providers.count() == database.providers.count());
    checkRecord(file);
    return 0;
}
