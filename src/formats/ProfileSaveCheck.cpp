#include "ProfileSaveCheck.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include "ProfileXml.h"

namespace Formats
{

namespace
{

/// Returns true if there is enough disk space for the profiles. The function writes all profiles to
/// a temporary file, because only a complete write can detect a full disk.
bool isRoomFor(QTemporaryFile &trial, const QList<USSDProfile> &profiles)
{
    ProfileXml::write(trial, profiles);
    return trial.flush() && trial.error() == QFile::NoError;
}

/// Returns true if the file exists and can be opened for writing. An existing file may be writable
/// even if its folder is not.
bool canBeOpened(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadWrite);
}

} // namespace

namespace ProfileSaveCheck
{

bool canBeSaved(const QString &path, const QList<USSDProfile> &profiles, MissingFolder missing)
{
    if (path.isEmpty())
        return false;
    QString folder = QFileInfo(path).path();
    if (missing == FolderIsMade && !QFileInfo(folder).isDir())
        folder = QFileInfo(folder).path();
    QTemporaryFile trial(folder + QLatin1String("/ussdprofile.XXXXXX"));
    return trial.open() ? isRoomFor(trial, profiles) : canBeOpened(path);
}

} // namespace ProfileSaveCheck

} // namespace Formats
