#include "InstallPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace HostCore
{

namespace
{

QString findLibraryFolder()
{
    Dl_info info;
    if (!dladdr(reinterpret_cast<const void *>(&findLibraryFolder), &info) || !info.dli_fname)
        return QDir::currentPath();
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
}

} // namespace

QString InstallPaths::library()
{
    static const QString folder = findLibraryFolder();
    return folder;
}

QString InstallPaths::share()
{
    return QDir::cleanPath(library() + QLatin1String("/" USSD_SHARE_FROM_LIB));
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
