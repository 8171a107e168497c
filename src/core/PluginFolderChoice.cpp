#include "PluginFolderChoice.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>

#include "InstallPaths.h"
#include "Languages.h"

namespace HostCore
{

namespace
{

const char LIBRARY_PATH_VARIABLE[] = "USSD_PLUGIN_LIBRARY_PATH";

QString withoutTrailingSeparators(QString path)
{
    while (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

/**
 * The folder that the host has selected with use(). The path is empty if the host has not selected
 * a folder.
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

QString PluginFolderChoice::current()
{
    ChosenFolder &chosen = chosenFolder();
    QMutexLocker lock(&chosen.mutex);
    return chosen.path.isEmpty() ? installed() : chosen.path;
}

QString PluginFolderChoice::installed()
{
    const QByteArray named = qgetenv(LIBRARY_PATH_VARIABLE);
    if (!named.isEmpty())
        return withoutTrailingSeparators(QFile::decodeName(named));
    return shipped();
}

QString PluginFolderChoice::shipped()
{
    return InstallPaths::library() + QLatin1String("/" USSD_PACKAGE_NAME);
}

void PluginFolderChoice::use(const QString &folder)
{
    {
        ChosenFolder &chosen = chosenFolder();
        QMutexLocker lock(&chosen.mutex);
        chosen.path = withoutTrailingSeparators(folder);
    }
    Languages::forgetOperatorTexts(); // the files may have changed even if the path has not
}

} // namespace HostCore
