#include "OperatorCodes.h"

#include "device/DashboardSettings.h"
#include "device/DeviceWatcher.h"
#include "InputFile.h"
#include "InstallPaths.h"
#include "plugin/LoadedPlugin.h"
#include "PluginFiles.h"
#include "PluginFolderChoice.h"
#include "tksv_device.h"

using namespace Formats;
using namespace Provisioning;

namespace Dashboard
{

namespace
{

const char DECLINED[] = "none";
const int COUNTRY_DIGITS = 3; // the length of the MCC in a network code (ITU-T E.212)

/// Returns the folder of the configuration without codes.
QString folderWithoutCodes()
{
    return HostCore::InstallPaths::share() + QLatin1String("/plain");
}

QByteArray shippedConfiguration()
{
    return InputFile::content(
        PluginFiles::path(HostCore::PluginFolderChoice::installed(), PluginFiles::CONFIGURATION));
}

bool isOfCountry(const Provider &provider, const QString &countryCode)
{
    for (const QString &network : provider.networks) {
        if (network.startsWith(countryCode))
            return true;
    }
    return false;
}

/// Returns true if the operator has a code that the plug-in can use.
bool isUseful(const Provider &provider, const QString &network)
{
    return !provisionPlan(provider, network).isEmpty();
}

} // namespace

OperatorPlaces OperatorPlaces::ofUser()
{
    OperatorPlaces places;
    places.isFree = qgetenv("USSD_PLUGIN_LIBRARY_PATH").isEmpty();
    return places;
}

OperatorCodes::OperatorCodes(const DeviceWatcher *device, DashboardSettings *settings,
                             QObject *parent)
    : QObject(parent), m_device(device), m_settings(settings), m_places(OperatorPlaces::ofUser())
{
    connect(device, SIGNAL(changed()), this, SLOT(look()));
}

OperatorCodes::~OperatorCodes()
{
    HostCore::PluginFolderChoice::use(QString());
}

void OperatorCodes::setPlaces(const OperatorPlaces &places)
{
    m_places = places;
    m_isRead = false;
    m_network.clear();
    m_hasLooked = false;
    look();
    emit networkChanged();
}

QString OperatorCodes::currentNetwork() const
{
    const DeviceStatus &status = m_device->status();
    if (!status.homeNetwork.isEmpty())
        return status.homeNetwork;
    if (!status.isSimulated && !status.imsi.isEmpty())
        return networkOfImsi(database(), status.imsi);
    // If the IMSI is empty, the SIM may not have been read yet. It may be the previous SIM, so the
    // network is kept.
    return status.imsi.isEmpty() ? m_network : QString();
}

void OperatorCodes::look()
{
    if (!m_places.isFree)
        return use(QString());
    const bool isSimulated = m_device->status().isSimulated;
    const QString before = m_network;
    if (isSimulated != m_isSimulated)
        m_network.clear(); // a different device has a different SIM
    m_network = currentNetwork();
    if (m_hasLooked && m_network == before && isSimulated == m_isSimulated)
        return;
    m_hasLooked = true;
    m_isSimulated = isSimulated;
    use(wantedFolder());
    if (m_network != before)
        emit networkChanged();
}

QString OperatorCodes::wantedFolder() const
{
    if (!isDeclined() && readProvision(folder()).isUsable())
        return folder();
    return m_isSimulated ? QString() : folderWithoutCodes();
}

void OperatorCodes::use(const QString &folder)
{
    if (folder == m_folderInUse)
        return;
    m_folderInUse = folder;
    HostCore::PluginFolderChoice::use(folder);
    emit folderChanged();
}

QString OperatorCodes::folder() const
{
    if (m_network.isEmpty())
        return QString();
    return operatorFolder(m_places.folders.isEmpty() ? operatorsFolder() : m_places.folders,
                          m_network);
}

QString OperatorCodes::operatorInUse() const
{
    return isProvisioned() ? readProvision(m_folderInUse).record.provider : QString();
}

bool OperatorCodes::isProvisioned() const
{
    return !m_folderInUse.isEmpty() && m_folderInUse == folder();
}

bool OperatorCodes::areSample() const
{
    return m_places.isFree && m_folderInUse.isEmpty();
}

bool OperatorCodes::areAbsent() const
{
    return m_folderInUse == folderWithoutCodes();
}

bool OperatorCodes::areOfOperator() const
{
    return !m_places.isFree || isProvisioned();
}

bool OperatorCodes::isDecided() const
{
    return isDeclined() || isProvisioned();
}

bool OperatorCodes::isDeclined() const
{
    const QString word =
        m_settings ? m_settings->operatorCodes(m_network) : m_decisions.value(m_network);
    return word == QLatin1String(DECLINED);
}

void OperatorCodes::setDeclined(bool declined)
{
    const QString word = declined ? QLatin1String(DECLINED) : QString();
    m_decisions.insert(m_network, word);
    if (m_settings)
        m_settings->setOperatorCodes(m_network, word);
}

const ProviderDatabase &OperatorCodes::database() const
{
    if (!m_isRead)
        m_database = readProviderDatabaseFile(
            m_places.database.isEmpty() ? installedProviderDatabase() : m_places.database);
    m_isRead = true;
    return m_database;
}

bool OperatorCodes::hasDatabase() const
{
    return database().error.isEmpty();
}

ProviderChoice OperatorCodes::choice() const
{
    ProviderQuery query;
    query.network = m_network;
    query.simName = m_device->status().simOperator;
    ProviderChoice result;
    if (m_network.isEmpty())
        return result;
    const ProviderChoice all = chooseProvider(database(), query);
    for (const Provider &provider : all.candidates) {
        if (isUseful(provider, m_network))
            result.candidates << provider;
    }
    // Keep the original state: if several operators are possible, the choice is ambiguous even if
    // only one of them has codes.
    result.state = result.candidates.isEmpty() ? ProviderChoice::None : all.state;
    return result;
}

QList<Provider> OperatorCodes::candidates() const
{
    QList<Provider> found = choice().candidates;
    if (!found.isEmpty())
        return found;
    const QString country = m_network.left(COUNTRY_DIGITS);
    for (const Provider &provider : database().providers) {
        if (isOfCountry(provider, country) && isUseful(provider, m_network))
            found << provider;
    }
    return found;
}

ProvisionOutcome OperatorCodes::take(const Provider &provider, bool setAside)
{
    const ProvisionPlan plan = provisionPlan(provider, m_network);
    const ProvisionFiles files = provisionFiles(plan, shippedConfiguration());
    ProvisionOutcome outcome;
    outcome.problem = files.error;
    if (!files.error.isEmpty())
        return outcome;
    ProvisionOrder order;
    order.folder = folder();
    order.pluginLibrary = LoadedPlugin::installedFile();
    order.setChangedAside = setAside;
    outcome = writeProvision(order, plan, files);
    if (outcome.state == ProvisionOutcome::Written || outcome.state == ProvisionOutcome::Current) {
        setDeclined(false);
        m_folderInUse.clear(); // forces use() to emit folderChanged()
        use(order.folder);
    }
    return outcome;
}

void OperatorCodes::decline()
{
    setDeclined(true);
    use(wantedFolder());
}

} // namespace Dashboard
