#include "Favourites.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

#include "base/DashboardText.h"
#include "InputFile.h"
#include "ProvisionWriter.h"
#include "Words.h"

namespace Dashboard
{

namespace
{

const QFile::Permissions OWNER_ONLY = QFile::ReadOwner | QFile::WriteOwner;

const char DAMAGED[] = ".damaged-"; // followed by the current date in the file name

// The file of earlier versions, which contained codes but no chains.
const char EARLIER_FILE[] = "favourites.ini";
const char EARLIER_GROUP[] = "favourites";
const char EARLIER_NONE[] = "none"; // stored instead of an empty list

const CodeKind USUAL_KINDS[] = {CodeKind::Balance, CodeKind::Data, CodeKind::Menu, CodeKind::Packs,
                                CodeKind::Roaming};

QList<NamedCode> usual(const AccountCodes &codes)
{
    QList<NamedCode> result;
    for (const CodeKind kind : USUAL_KINDS) {
        for (const NamedCode &code : codes.all) {
            if (code.kind == kind && !code.takesNumber()) {
                result << code;
                break;
            }
        }
    }
    return result;
}

NamedCode namedChain(const Chains::Chain &chain)
{
    NamedCode named;
    named.name = QString::fromStdString(chain.name);
    named.code = QString::fromStdString(chain.code);
    named.keys = QString::fromStdString(chain.keys());
    named.kind = CodeKind::Menu;
    return named;
}

Chains::Favourite favouriteOf(const NamedCode &code)
{
    const QString &name = code.name.isEmpty() ? code.code : code.name;
    return {name.toStdString(), code.isChain() ? std::string() : code.code.toStdString()};
}

QString earlierFile(const QString &file)
{
    return QFileInfo(file).path() + QLatin1Char('/') + QLatin1String(EARLIER_FILE);
}

/// Converts the favourite codes of a network from the file of an earlier version.
Chains::NetworkFavourites earlierFavourites(const QStringList &codes)
{
    Chains::NetworkFavourites favourites;
    favourites.areSelected = true;
    for (const QString &code : codes) {
        if (code != QLatin1String(EARLIER_NONE))
            favourites.favourites.push_back({code.toStdString(), code.toStdString()});
    }
    return favourites;
}

/// Returns true if a favourite code, or a chain other than `except`, has this name.
bool isNameInUse(const Chains::NetworkFavourites &favourites, const std::string &name,
                 const std::string &except = std::string())
{
    for (const Chains::Chain &chain : favourites.chains) {
        if (chain.name != except && Chains::areSameNames(chain.name, name))
            return true;
    }
    for (const Chains::Favourite &favourite : favourites.favourites) {
        if (!favourite.isChain() && Chains::areSameNames(favourite.name, name))
            return true;
    }
    return false;
}

} // namespace

Favourites::Favourites(const QString &file, QObject *parent) : QObject(parent), m_file(file) {}

QString Favourites::userFile()
{
    return Provisioning::userDataHome() + QLatin1Char('/') + QLatin1String(Chains::FAVOURITE_FILE);
}

void Favourites::setNetwork(const QString &network)
{
    if (network == m_network)
        return;
    m_network = network;
    emit changed();
}

std::string Favourites::key() const
{
    return m_network.isEmpty() ? Chains::UNKNOWN_NETWORK : m_network.toStdString();
}

Chains::NetworkFavourites Favourites::current() const
{
    read();
    const auto found = m_content.networks.find(key());
    return found == m_content.networks.end() ? Chains::NetworkFavourites() : found->second;
}

QList<NamedCode> Favourites::among(const AccountCodes &codes) const
{
    const Chains::NetworkFavourites kept = current();
    if (!kept.areSelected)
        return (usual(codes) + chains()).mid(0, MOST);
    QList<NamedCode> result;
    for (const Chains::Favourite &favourite : kept.favourites) {
        if (const Chains::Chain *const chain =
                favourite.isChain() ? kept.chain(favourite.name) : nullptr)
            result << namedChain(*chain);
        for (const NamedCode &named : codes.all) {
            if (!favourite.isChain() && named.code == QString::fromStdString(favourite.code))
                result << named;
        }
    }
    return result.mid(0, MOST);
}

bool Favourites::select(const QList<NamedCode> &favourites)
{
    Chains::NetworkFavourites now = current();
    now.areSelected = true;
    now.favourites.clear();
    for (const NamedCode &code : favourites)
        now.favourites.push_back(favouriteOf(code));
    return store(now);
}

// ---- chains --------------------------------------------------------------------------------

QList<NamedCode> Favourites::chains() const
{
    QList<NamedCode> named;
    for (const Chains::Chain &chain : current().chains)
        named << namedChain(chain);
    return named;
}

Chains::Chain Favourites::chain(const QString &name) const
{
    const Chains::NetworkFavourites kept = current();
    const Chains::Chain *const chain = kept.chain(name.toStdString());
    return chain ? *chain : Chains::Chain();
}

bool Favourites::isKept(const Chains::Chain &walk) const
{
    for (const Chains::Chain &chain : current().chains) {
        if (chain.isSameWalk(walk))
            return true;
    }
    return false;
}

bool Favourites::isNameFree(const QString &name) const
{
    return !isNameInUse(current(), name.toStdString());
}

bool Favourites::keep(const Chains::Chain &chain)
{
    Chains::NetworkFavourites now = current();
    if (!Chains::isComplete(chain) || isNameInUse(now, chain.name))
        return false;
    now.chains.push_back(chain);
    if (now.areSelected && now.favourites.size() < std::size_t(MOST))
        now.favourites.push_back({chain.name, std::string()});
    return store(now);
}

bool Favourites::rename(const QString &from, const QString &to)
{
    Chains::NetworkFavourites now = current();
    const std::string name = to.trimmed().toStdString();
    const std::string before = from.toStdString();
    if (name.empty() || !now.chain(before) || isNameInUse(now, name, before))
        return false;
    for (Chains::Chain &chain : now.chains) {
        if (chain.name == before)
            chain.name = name;
    }
    for (Chains::Favourite &favourite : now.favourites) {
        if (favourite.isChain() && favourite.name == before)
            favourite.name = name;
    }
    return store(now);
}

bool Favourites::remove(const QString &chain)
{
    const Chains::NetworkFavourites before = current();
    const std::string name = chain.toStdString();
    Chains::NetworkFavourites now;
    now.areSelected = before.areSelected;
    for (const Chains::Chain &other : before.chains) {
        if (other.name != name)
            now.chains.push_back(other);
    }
    for (const Chains::Favourite &favourite : before.favourites) {
        if (!favourite.isChain() || favourite.name != name)
            now.favourites.push_back(favourite);
    }
    return before.chain(name) && store(now);
}

// ---- the file ------------------------------------------------------------------------------

void Favourites::read() const
{
    if (m_isRead || m_file.isEmpty())
        return;
    m_isRead = true;
    QByteArray content;
    QString error;
    if (!QFileInfo::exists(m_file))
        return migrate();
    m_content.isWhole = InputFile::read(m_file, content, error, Chains::LARGEST_FAVOURITE_FILE);
    if (m_content.isWhole)
        m_content = Chains::FavouriteFile::fromJson(content.toStdString());
}

/// Imports the file of an earlier version, and removes this file when its content has been stored
/// in the new file.
void Favourites::migrate() const
{
    const QString earlier = earlierFile(m_file);
    if (!QFileInfo::exists(earlier))
        return;
    QSettings settings(earlier, QSettings::IniFormat);
    settings.beginGroup(QLatin1String(EARLIER_GROUP));
    for (const QString &network : settings.childKeys())
        m_content.networks[network.toStdString()] =
            earlierFavourites(settings.value(network).toStringList());
    if (settings.status() == QSettings::NoError && write())
        QFile::remove(earlier);
}

bool Favourites::store(const Chains::NetworkFavourites &favourites)
{
    m_content.networks[key()] = favourites;
    const bool isStored = m_file.isEmpty() || ((m_content.isWhole || setAside()) && write());
    if (!isStored)
        emit problem(dashboardText("FAVOURITES_NOT_STORED").arg(m_file));
    emit changed();
    return isStored;
}

bool Favourites::write() const
{
    QDir().mkpath(QFileInfo(m_file).path());
    const QByteArray content = QByteArray::fromStdString(m_content.toJson());
    QSaveFile file(m_file);
    return file.open(QIODevice::WriteOnly) && file.setPermissions(OWNER_ONLY) &&
           file.write(content) == content.size() && file.commit();
}

/// Renames a damaged file instead of replacing it, because the new file does not contain the
/// entries that could not be read. Returns false if the file cannot be renamed.
bool Favourites::setAside() const
{
    const QString start =
        m_file + QLatin1String(DAMAGED) + QDate::currentDate().toString(Qt::ISODate);
    QString name = start;
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = start + QLatin1Char('-') + QString::number(i);
    if (!QFile::rename(m_file, name))
        return false;
    m_content.isWhole = true;
    emit const_cast<Favourites *>(this)->problem(dashboardText("FAVOURITES_DAMAGED").arg(name));
    return true;
}

void Favourites::removeAll()
{
    m_content = Chains::FavouriteFile();
    m_isRead = true;
    if (!m_file.isEmpty()) {
        QFile::remove(m_file);
        QFile::remove(earlierFile(m_file));
        const QFileInfo file(m_file);
        for (const QString &damaged :
             file.dir().entryList({file.fileName() + QLatin1String(DAMAGED) + QLatin1Char('*')}))
            QFile::remove(file.dir().filePath(damaged));
    }
    emit changed();
}

} // namespace Dashboard
