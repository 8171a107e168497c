#ifndef USSDEDITCMD_H
#define USSDEDITCMD_H

#include <QList>
#include <QObject>

#include "USSDProfile.h"

class QXmlStreamReader;

/**
 * The command profiles: those of the system file, then those that the user added. GUI thread.
 *
 * The list is read when the object is made; a second object sees the files as they are then.
 */
class USSDEditCmd : public QObject
{
    Q_OBJECT
public:
    /// What saveToXMLFile() returns.
    enum SaveStatus {
        SAVE_OK = 0,
        SAVE_NO_DIRECTORY = 21, // the user file's folder is missing and cannot be made
        SAVE_NO_PATH = 23,      // no user data folder
        SAVE_NOT_OPENED = 25    // the file cannot be opened for writing
    };

    USSDEditCmd();
    ~USSDEditCmd() override;

    void getSystemProfileXMLFilePath(QString &path);
    /// Empty when there is no user data folder. Moves a file of the old place to the new one.
    void getUserProfileXMLFilePath(QString &path);
    bool skipXmlReaderTillString(QXmlStreamReader &reader, QString name);
    /// Adds the profiles of one file. A user profile whose code is there already is dropped.
    void load(QString xmlFilePath, bool isSystem);
    /// Reads both files anew.
    void load();
    /// Replaces `list` by all profiles, in order.
    void GetProfileList(QList<USSDProfile> &list);
    /// Writes the profiles of one kind to their file. The old file is deleted first, so a failure
    /// leaves none; this order is intended.
    int saveToXMLFile(bool isSystem);

private:
    QString movedLegacyFile(const QString &oldPath, const QString &newPath);
    bool makeParentDirectory(const QString &path, bool isSystem);

    QList<USSDProfile> m_listUSSDProfiles;
};

#endif
