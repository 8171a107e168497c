#include "InstallPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>

#include <dlfcn.h>

namespace HostCore
{

namespace
{

const char LIBRARY_PATH_VARIABLE[] = "USSD_PLUGIN_LIBRARY_PATH";

QString findLibraryFolder()
{
    Dl_info info;
    if (!dladdr(reinterpret_cast<const void *>(&findLibraryFolder), &info) || !info.dli_fname)
        return QDir::currentPath();
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
}

// Returns the folder of this library. The path is resolved only once, because the loader may have
// stored a path relative to the working directory at program start.
QString libraryFolder()
{
    static const QString folder = findLibraryFolder();
    return folder;
}

QString withoutTrailingSeparators(QString path)
{
    while (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

/**
 * The folder that the host uses instead of the installed folder. The path is empty if the host uses
 * the installed folder.
 */
struct ChosenFolder {
    QMutex mutex; // guards `path`
    QString path;
};

ChosenFolder &chosenFolder()
{
    static ChosenFolder chosen;
    return chosen;
}

} // namespace

QString InstallPaths::pluginLibrary()
{
    ChosenFolder &chosen = chosenFolder();
    QMutexLocker lock(&chosen.mutex);
    return chosen.path.isEmpty() ? installedPluginLibrary() : chosen.path;
}

void InstallPaths::usePluginLibrary(const QString &folder)
{
    ChosenFolder &chosen = chosenFolder();
    QMutexLocker lock(&chosen.mutex);
    chosen.path = withoutTrailingSeparators(folder);
}

QString InstallPaths::installedPluginLibrary()
{
    const QByteArray chosen = qgetenv(LIBRARY_PATH_VARIABLE);
    if (!chosen.isEmpty())
        return withoutTrailingSeparators(QFile::decodeName(chosen));
    return libraryFolder() + QLatin1String("/" USSD_PACKAGE_NAME);
}

QString InstallPaths::share()
{
    return QDir::cleanPath(libraryFolder() + QLatin1String("/" USSD_SHARE_FROM_LIB));
}

QString InstallPaths::translations()
{
    return share() + QLatin1String("/translations");
}

QString InstallPaths::scenarios()
{
    return share() + QLatin1String("/scenarios");
}

} // namespace HostCore
