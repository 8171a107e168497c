#ifndef PROFILEBACKUP_H
#define PROFILEBACKUP_H

#include <QDateTime>
#include <QString>

/**
 * The copy of the user's own codes. The plug-in deletes their file before it saves them anew, so a
 * full disk, or the end of the program at that moment, costs the user all of them or leaves half a
 * file.
 *
 * Only a file that is whole XML is copied or restored. Both are written beside their place first
 * and put there by a rename, and only their user can read them.
 */
class ProfileBackup
{
public:
    /// An empty `userFile` says that there is no folder for it: then nothing is ever done.
    /// `legacyFile` is where the plug-in still finds a file of old, and takes it from.
    ProfileBackup(const QString &userFile, const QString &legacyFile, const QString &copy);
    /// With the folders of the user who runs the program.
    static ProfileBackup ofUser();

    /// Makes the copy that of the file as it is now, if that is good. Whether it is so.
    bool refresh() const;
    /// Whether there is something that refresh() has to copy.
    bool isOutdated() const;
    /// Whether the user's file has gone while there is a good copy.
    bool isLost() const;
    /// Whether the user's file is there but is not whole XML, while there is a good copy.
    bool isDamaged() const;
    /// Puts the copy in the file's place; a damaged file stays beside it as damagedFile(). False
    /// when it cannot be written, or is not good.
    bool restore() const;
    /// Deletes the copy.
    bool forget() const;

    QString userFile() const { return m_userFile; }
    QString damagedFile() const { return m_userFile + QLatin1String(".damaged"); }
    QString copy() const { return m_copy; }
    /// When the copy was made.
    QDateTime time() const;

private:
    QString m_userFile;
    QString m_legacyFile;
    QString m_copy;
};

#endif
