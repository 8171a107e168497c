#ifndef PROFILEBACKUP_H
#define PROFILEBACKUP_H

#include <QDateTime>
#include <QString>

namespace Dashboard
{

/**
 * The backup copy of the user's own codes. The plug-in deletes the file of codes before it writes
 * it again, so a full disk or a crash at that moment loses all codes or leaves half a file.
 *
 * Only a file that is well-formed XML is copied or restored. Files are replaced atomically, by a
 * rename, and only their owner can read them.
 */
class ProfileBackup
{
public:
    /// An empty `userFile` means that the user has no folder for it; every function then does
    /// nothing. `legacyFile` is the file of earlier versions, which the plug-in still reads.
    ProfileBackup(const QString &userFile, const QString &legacyFile, const QString &copy);
    /// Returns a backup with the paths of the user who runs the program.
    static ProfileBackup ofUser();

    /// Copies the user's file if it is well-formed. Returns whether the copy is up to date.
    bool refresh() const;
    /// Returns whether refresh() has something to copy.
    bool isOutdated() const;
    /// Returns whether the user's file is missing while there is a usable copy.
    bool isLost() const;
    /// Returns whether the user's file exists but is not well-formed, while there is a usable copy.
    bool isDamaged() const;
    /// Replaces the user's file by the copy; a damaged file is kept as damagedFile(). Returns false
    /// when the file cannot be written or the copy is not usable.
    bool restore() const;
    /// Deletes the copy.
    bool forget() const;

    QString userFile() const { return m_userFile; }
    QString damagedFile() const { return m_userFile + QLatin1String(".damaged"); }
    QString copy() const { return m_copy; }
    /// Returns the time at which the copy was made.
    QDateTime time() const;

private:
    QString m_userFile;
    QString m_legacyFile;
    QString m_copy;
};

} // namespace Dashboard

#endif
