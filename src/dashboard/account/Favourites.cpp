#include "Favourites.h"

#include <QFile>
#include <QSettings>

#include "ProvisionWriter.h"

namespace Dashboard
{

namespace
{

const char FILE_NAME[] = "/favourites.ini";
const char NONE[] = "none"; // distinguishes an empty list from a missing one

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

} // namespace

QString Favourites::userFile()
{
    return Provisioning::userDataHome() + QLatin1String(FILE_NAME);
}

QString Favourites::key() const
{
    return QLatin1String("favourites/") +
           (m_network.isEmpty() ? QLatin1String("unknown") : m_network);
}

QList<NamedCode> Favourites::among(const AccountCodes &codes) const
{
    const QStringList selected =
        m_file.isEmpty() ? m_selected.value(key())
                         : QSettings(m_file, QSettings::IniFormat).value(key()).toStringList();
    if (selected.isEmpty())
        return usual(codes);
    QList<NamedCode> result;
    for (const QString &code : selected) {
        for (const NamedCode &named : codes.all) {
            if (named.code == code && result.size() < MOST)
                result << named;
        }
    }
    return result;
}

bool Favourites::select(const QStringList &codes)
{
    const QStringList stored = codes.isEmpty() ? QStringList(QLatin1String(NONE)) : codes;
    if (m_file.isEmpty()) {
        m_selected.insert(key(), stored);
        return true;
    }
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setValue(key(), stored);
    settings.sync();
    QFile::setPermissions(m_file, QFile::ReadOwner | QFile::WriteOwner);
    return settings.status() == QSettings::NoError;
}

void Favourites::removeAll()
{
    m_selected.clear();
    if (m_file.isEmpty())
        return;
    QSettings settings(m_file, QSettings::IniFormat);
    settings.clear(); // otherwise, another object may write what it has in memory
    settings.sync();
    QFile::remove(m_file);
}

} // namespace Dashboard
