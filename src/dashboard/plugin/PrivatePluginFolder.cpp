#include "PrivatePluginFolder.h"

#include <QDir>
#include <QFile>

#include <cstdlib>

#include "InputFile.h"
#include "PluginFiles.h"
#include "PluginFolderChoice.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

const char LIBRARY_PATH[] = "USSD_PLUGIN_LIBRARY_PATH";
const char USER_DATA[] = "TKSV_USER_DATA";
const char USER_FOLDER[] = "/user/";
const QLatin1String DATA_FILES[] = {PluginFiles::CONFIGURATION, PluginFiles::SYSTEM_PROFILES};

QString makeTemporaryFolder()
{
    QByteArray path = QFile::encodeName(QDir::tempPath() + QLatin1String("/ussd-dashboard-XXXXXX"));
    return mkdtemp(path.data()) ? QFile::decodeName(path) : QString();
}

void removeFolder(const QString &path)
{
    const QDir folder(path);
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo &entry : folder.entryInfoList(all)) {
        if (entry.isDir() && !entry.isSymLink())
            removeFolder(entry.filePath());
        else
            QFile::remove(entry.filePath());
    }
    QDir().rmdir(path);
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(content) == content.size() && file.flush();
}

void setOrUnset(const char *variable, const QByteArray &value)
{
    if (value.isEmpty())
        unsetenv(variable);
    else
        qputenv(variable, value);
}

} // namespace

PrivatePluginFolder::PrivatePluginFolder()
    : m_installed(HostCore::PluginFolderChoice::installed() + PluginFiles::FOLDER),
      m_path(makeTemporaryFolder()), m_oldLibraryPath(qgetenv(LIBRARY_PATH)),
      m_oldUserData(qgetenv(USER_DATA))
{
    m_isValid = !m_path.isEmpty() && make();
    qputenv(LIBRARY_PATH, QFile::encodeName(m_path));
    qputenv(USER_DATA, QFile::encodeName(m_path + QLatin1String(USER_FOLDER)));
}

PrivatePluginFolder::~PrivatePluginFolder()
{
    setOrUnset(LIBRARY_PATH, m_oldLibraryPath);
    setOrUnset(USER_DATA, m_oldUserData);
    if (!m_path.isEmpty())
        removeFolder(m_path);
}

bool PrivatePluginFolder::make()
{
    bool isMade = QDir().mkpath(m_path + PluginFiles::FOLDER) &&
                  QDir().mkpath(m_path + QLatin1String(USER_FOLDER));
    for (const QLatin1String &name : DATA_FILES)
        isMade = isMade && restore(name);
    const QString plugin = m_installed + QLatin1Char('/') + PluginFiles::LIBRARY;
    return isMade && QFile::link(plugin, fileName(PluginFiles::LIBRARY));
}

QString PrivatePluginFolder::fileName(const QString &name) const
{
    return m_path + PluginFiles::FOLDER + QLatin1Char('/') + name;
}

QString PrivatePluginFolder::userProfileFile() const
{
    return m_path + QLatin1String(USER_FOLDER) + QLatin1String("ussdprofile.xml");
}

bool PrivatePluginFolder::restore(const QString &name)
{
    return write(name, InputFile::content(m_installed + QLatin1Char('/') + name));
}

bool PrivatePluginFolder::change(const QString &name, const QByteArray &anchor,
                                 const QByteArray &before, const QByteArray &after)
{
    QByteArray content = InputFile::content(fileName(name));
    const int start = content.indexOf(anchor);
    const int place = start < 0 ? -1 : content.indexOf(before, start);
    return place >= 0 && write(name, content.replace(place, before.size(), after));
}

bool PrivatePluginFolder::write(const QString &name, const QByteArray &content)
{
    return writeFile(fileName(name), content);
}

} // namespace Dashboard
