#include "Scenarios.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "InstallPaths.h"
#include "tksv_device.h"

namespace Dashboard
{

namespace
{

const char PATTERN[] = "*.scenario";
const int MESSAGE_BYTES = 2048;

} // namespace

QStringList Scenarios::shipped()
{
    const QDir folder(HostCore::InstallPaths::scenarios());
    QStringList files;
    for (const QString &name :
         folder.entryList(QStringList(QLatin1String(PATTERN)), QDir::Files, QDir::Name))
        files << folder.filePath(name);
    return files;
}

QString Scenarios::displayName(const QString &file)
{
    return QFileInfo(file).completeBaseName();
}

QString Scenarios::use(const QString &file)
{
    char message[MESSAGE_BYTES] = "";
    if (TKSV_Device_UseScenario(QFile::encodeName(file).constData(), message, sizeof message) == 0)
        return QString();
    return message[0] ? QString::fromUtf8(message) : file;
}

} // namespace Dashboard
