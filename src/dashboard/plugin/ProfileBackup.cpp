#include "ProfileBackup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <cstdio>
#include <memory>
#include <unistd.h>

#include "ForwardXml.h"
#include "InputFile.h"
#include "ProvisionWriter.h"
#include "tksv.h"

namespace Dashboard
{

namespace
{

const char FILE_NAME[] = "ussdprofile.xml";
const qint64 LARGEST = 4 << 20; // in bytes; the plug-in does not write larger files

const QFile::Permissions OWNER_ONLY = QFile::ReadOwner | QFile::WriteOwner;

bool isWholeXml(const QByteArray &text)
{
    QXmlStreamReader reader;
    Formats::ForwardXml::start(reader, text);
    while (!reader.atEnd())
        Formats::ForwardXml::next(reader);
    return !reader.hasError();
}

/// Returns the contents of the file. Returns an empty array if the file cannot be read or is not
/// well-formed XML.
QByteArray goodContent(const QString &path)
{
    QByteArray text;
    QString problem;
    if (!InputFile::read(path, text, problem, LARGEST) && QFile::exists(path))
        qWarning("%s: %s", path.toLocal8Bit().constData(), problem.toLocal8Bit().constData());
    return isWholeXml(text) ? text : QByteArray();
}

bool writeWhole(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || !file.setPermissions(OWNER_ONLY))
        return false;
    return file.write(text) == text.size() && file.flush() && fsync(file.handle()) == 0;
}

// Moves the file with std::rename(), because QFile::rename() does not replace an existing file.
bool moveFile(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool replaceFile(const QString &path, const QByteArray &text)
{
    const QString beside = path + QLatin1String(".new");
    if (writeWhole(beside, text) && moveFile(beside, path))
        return true;
    QFile::remove(beside);
    return false;
}

/// Returns the folder of the user's codes, which ends with "/". Returns an empty string if there is
/// no such folder.
QString userDataFolder()
{
    unsigned short *units = nullptr;
    const long result = TKSV_GetUserDataDirectory(&units);
    const std::unique_ptr<unsigned short[]> owner(units);
    return result == 0 && units ? QString::fromUtf16(reinterpret_cast<const char16_t *>(units))
                                : QString();
}

} // namespace

ProfileBackup::ProfileBackup(const QString &userFile, const QString &legacyFile,
                             const QString &copy)
    : m_userFile(userFile), m_legacyFile(legacyFile), m_copy(copy)
{
}

ProfileBackup ProfileBackup::ofUser()
{
    const QString name = QLatin1String(FILE_NAME);
    const QString copy = Provisioning::userDataHome() + QLatin1String("/last-good/") + name;
    const QString folder = userDataFolder();
    if (folder.isEmpty())
        return ProfileBackup(QString(), QString(), copy);
    return ProfileBackup(folder + name, folder + QLatin1String("userdata/") + name, copy);
}

bool ProfileBackup::refresh() const
{
    const QByteArray text = goodContent(m_userFile);
    if (text.isEmpty())
        return false;
    if (text == goodContent(m_copy))
        return true;
    return QDir().mkpath(QFileInfo(m_copy).path()) && replaceFile(m_copy, text);
}

bool ProfileBackup::isOutdated() const
{
    const QByteArray text = goodContent(m_userFile);
    return !text.isEmpty() && text != goodContent(m_copy);
}

bool ProfileBackup::isLost() const
{
    return !m_userFile.isEmpty() && !QFile::exists(m_userFile) && !QFile::exists(m_legacyFile) &&
           !goodContent(m_copy).isEmpty();
}

bool ProfileBackup::isDamaged() const
{
    if (m_userFile.isEmpty() || !InputFile::problem(m_userFile, LARGEST).isEmpty())
        return false;
    return goodContent(m_userFile).isEmpty() && !goodContent(m_copy).isEmpty();
}

// Moves the damaged file away and restores the backup copy. If the program is terminated between
// these steps, the user's file is missing, and the dashboard offers the backup copy again.
bool ProfileBackup::restore() const
{
    const QByteArray text = goodContent(m_copy);
    if (m_userFile.isEmpty() || text.isEmpty())
        return false;
    if (isDamaged() && !moveFile(m_userFile, damagedFile()))
        return false;
    return replaceFile(m_userFile, text);
}

bool ProfileBackup::forget() const
{
    return QFile::remove(m_copy);
}

QDateTime ProfileBackup::time() const
{
    return QFileInfo(m_copy).lastModified();
}

} // namespace Dashboard
