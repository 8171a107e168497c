#include "ProfileSaveCheck.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include "ProfileXml.h"

namespace Formats
{

namespace
{

/// Returns true if there is enough disk space for the profiles. Only a complete write detects a
/// full disk. QTemporaryFile deletes the trial file.
bool isRoomFor(QTemporaryFile &trial, const QList<USSDProfile> &profiles)
{
    ProfileXml::write(trial, profiles);
    return trial.flush() && trial.error() == QFile::NoError;
}

/// Returns true if the existing file can be opened for writing. This may be possible even if no new
/// file can be created in the folder.
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
