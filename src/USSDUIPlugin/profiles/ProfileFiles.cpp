/* The functions of USSDEditCmd that read and write the profile files. */
#include "USSDEditCmd.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QXmlStreamReader>

#include "base/PluginLog.h"
#include "CommonUtils.h"
#include "ForwardXml.h"
#include "InputFile.h"
#include "PluginFiles.h"
#include "ProfileRows.h"
#include "ProfileXml.h"
#include "requests/SdkRecords.h"
#include "tksv.h"
#include "XmlName.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDEditCmd.cpp");

namespace
{

QString parentDirectory(const QString &path)
{
    return path.left(path.lastIndexOf(QLatin1Char('/')));
}

/// Returns the target of the path if it is a symbolic link, otherwise the path itself. Installed
/// configuration files are links to files in /etc. Saving deletes the old file, and must not delete
/// the link.
QString linkTarget(const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return QFileInfo(path).isSymLink() && !target.isEmpty() ? target : path;
}

} // namespace

void USSDEditCmd::getSystemProfileXMLFilePath(QString &path)
{
    USSD_LOG_SCOPE();
    path = PluginFiles::path(CommonUtils::GetPluginLibraryPath(), PluginFiles::SYSTEM_PROFILES);
    USSD_LOG_EXIT(" Exit: system profile file path= %s", path.toLocal8Bit().constData());
}

void USSDEditCmd::getUserProfileXMLFilePath(QString &path)
{
    USSD_LOG_SCOPE();
    path.clear();
    USSD_LOG(" before caling TKSV_GetUserDataDirectory()");
    unsigned short *units = nullptr;
    const long result = TKSV_GetUserDataDirectory(&units);
    USSD_LOG(" after caling TKSV_GetUserDataDirectory(), retVal=%ld", result);
    const QString directory = result == 0 ? SdkRecords::textFromUnits(units) : QString();
    delete[] units;
    if (!directory.isEmpty()) {
        const QString newPath = directory + QLatin1String("ussdprofile.xml");
        path = movedLegacyFile(directory + QLatin1String("userdata/ussdprofile.xml"), newPath);
    }
    USSD_LOG_EXIT(" Exit: user profile file path=%s", path.toLocal8Bit().constData());
}

/// Moves the profile file from its former path. Returns the new path, or the old path if the file
/// cannot be copied.
QString USSDEditCmd::movedLegacyFile(const QString &oldPath, const QString &newPath)
{
    if (QFile::exists(newPath) || !QFile::exists(oldPath))
        return newPath;
    USSD_LOG(" %s exists!", oldPath.toLocal8Bit().constData());
    QFile oldFile(oldPath);
    QString problem = InputFile::problem(oldPath);
    if (problem.isEmpty() && !oldFile.copy(newPath))
        problem = oldFile.errorString();
    if (!problem.isEmpty()) {
        USSD_LOG(" %s copy failed! error : %s", oldPath.toLocal8Bit().constData(),
                 problem.toLocal8Bit().constData());
        return oldPath;
    }
    oldFile.remove();
    const QString oldDirectory = parentDirectory(oldPath);
    if (!QDir().rmdir(oldDirectory))
        USSD_LOG(" the path %s remove failed!", oldDirectory.toLocal8Bit().constData());
    return newPath;
}

bool USSDEditCmd::skipXmlReaderTillString(QXmlStreamReader &reader, QString name)
{
    return ForwardXml::skipToBefore(reader, name, QLatin1String(XmlName::ITEM));
}

void USSDEditCmd::load(QString xmlFilePath, bool isSystem)
{
    USSD_LOG(" Enter: xmlFilePath = %s", xmlFilePath.toLocal8Bit().constData());
    QFile file(xmlFilePath);
    QString problem;
    if (!InputFile::open(file, QIODevice::Text, problem)) {
        noteReading(isSystem, file.exists() ? NotReadWhole : NoFile);
        if (file.exists())
            USSD_LOG_IMPORTANT(" %s: %s", xmlFilePath.toLocal8Bit().constData(),
                               problem.toLocal8Bit().constData());
        USSD_LOG_IMPORTANT(" Exit: XML File is not opened");
        return;
    }
    QSet<QString> codes;
    for (int i = 0; i < m_listUSSDProfiles.count(); ++i)
        codes.insert(m_listUSSDProfiles.at(i).value);

    QXmlStreamReader reader;
    ForwardXml::start(reader, file);
    if (reader.hasError())
        USSD_LOG_IMPORTANT(" %s: %s", xmlFilePath.toLocal8Bit().constData(),
                           reader.errorString().toLocal8Bit().constData());
    USSDProfile profile;
    while (ProfileXml::readNext(reader, profile)) {
        USSD_LOG(" name = %s", profile.name.toLocal8Bit().constData());
        USSD_LOG(" value = %s", profile.value.toLocal8Bit().constData());
        profile.isSystem = isSystem;
        if (!isSystem && codes.contains(profile.value)) {
            USSD_LOG(" command = %s, already exists!!!", profile.value.toLocal8Bit().constData());
            continue;
        }
        if (!isSystem)
            codes.insert(profile.value);
        m_listUSSDProfiles.append(profile);
    }
    noteReading(isSystem, !reader.hasError() || file.size() == 0 ? ReadWhole : NotReadWhole);
    USSD_LOG(" Exit");
}

void USSDEditCmd::noteReading(bool isSystem, Reading reading)
{
    (isSystem ? m_systemFileReading : m_userFileReading) = reading;
}

/// Returns true if the file may be overwritten. A file that could not be read completely, or that
/// was created after the profiles had been read, must be kept.
bool USSDEditCmd::mayBeSavedOver(bool isSystem)
{
    const Reading reading = isSystem ? m_systemFileReading : m_userFileReading;
    return reading == ReadWhole || (reading == NoFile && !QFile::exists(profileFilePath(isSystem)));
}

void USSDEditCmd::load()
{
    m_listUSSDProfiles.clear();
    QString path;
    getSystemProfileXMLFilePath(path);
    if (!path.isEmpty())
        load(path, true);
    getUserProfileXMLFilePath(path);
    if (!path.isEmpty())
        load(path, false);
    USSD_LOG(" number of profiles = %d", int(m_listUSSDProfiles.count()));
}

void USSDEditCmd::GetProfileList(QList<USSDProfile> &list)
{
    list = m_listUSSDProfiles;
}

QString USSDEditCmd::profileFilePath(bool isSystem)
{
    QString path;
    if (isSystem)
        getSystemProfileXMLFilePath(path);
    else
        getUserProfileXMLFilePath(path);
    return path;
}

int USSDEditCmd::saveToXMLFile(bool isSystem)
{
    USSD_LOG(" Enter");
    const QString path = linkTarget(profileFilePath(isSystem));
    if (path.isEmpty()) {
        USSD_LOG_IMPORTANT(" Fail Exit: user profile file name is empty");
        return SAVE_NO_PATH;
    }
    QFile file(path);
    if (file.exists())
        file.remove();
    if (!makeParentDirectory(path, isSystem)) {
        USSD_LOG_IMPORTANT(" Exit: Directory is not created");
        return SAVE_NO_DIRECTORY;
    }
    // This call has no effect, because it is made only if the file does not exist. A file that
    // could not be deleted must keep its permissions, so that its owner can still read it.
    if (!file.exists())
        file.setPermissions(QFile::WriteOwner | QFile::WriteUser | QFile::WriteOther);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        USSD_LOG_IMPORTANT(" Exit: XML file open failed");
        return SAVE_NOT_OPENED;
    }
    ProfileXml::write(file, ProfileRows::ofFile(m_listUSSDProfiles, isSystem));
    file.close();
    USSD_LOG(" Exit");
    return SAVE_OK;
}

/// Creates the folder of the user file, but not its parent folders. Does not create the folder of
/// the system file. Returns false if the folder cannot be created.
bool USSDEditCmd::makeParentDirectory(const QString &path, bool isSystem)
{
    const QString directory = parentDirectory(path);
    USSD_LOG_AS("saveToXMLFile", " Dir path=%s", directory.toLocal8Bit().constData());
    return isSystem || QFileInfo(directory).isDir() || QDir().mkdir(directory);
}
