#include "ProfileFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include "ProfileXml.h"

namespace
{

/// Written whole, since only that finds a disk that is full. The file is gone at the end.
bool isRoomFor(QTemporaryFile &trial, const QList<USSDProfile> &profiles)
{
    ProfileXml::write(trial, profiles);
    return trial.flush() && trial.error() == QFile::NoError;
}

/// A file can be written in a folder in which none can be made.
bool canBeOpened(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadWrite);
}

} // namespace

namespace ProfileFile
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

} // namespace ProfileFile
