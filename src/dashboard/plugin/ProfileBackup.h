#ifndef PROFILEBACKUP_H
#define PROFILEBACKUP_H

#include <QDateTime>
#include <QString>

namespace Dashboard
{

/**
 * Manages a backup copy of the user's own codes. To save the codes, the plug-in deletes their file
 * and writes a new one. If the disk is full or the program crashes at that moment, the file is
 * missing or incomplete.
 *
 * Only well-formed XML files are copied or restored. Files are replaced atomically by renaming, and
 * only their owner can read them.
 */
class ProfileBackup
{
public:
    /// `userFile` is empty if the user does not have a data folder; all functions then have no
    /// effect. `legacyFile` is the file of earlier versions, which the plug-in still reads.
    ProfileBackup(const QString &userFile, const QString &legacyFile, const QString &copy);
    /// Returns an object with the paths for the user who runs the program.
    static ProfileBackup ofUser();

    /// Copies the user's file if it is well-formed. Returns true if the copy is up to date.
    bool refresh() const;
    /// Returns true if refresh() would copy the file.
    bool isOutdated() const;
    /// Returns true if the user's file is missing and there is a usable copy.
    bool isLost() const;
    /// Returns true if the user's file exists but is not well-formed, and there is a usable copy.
    bool isDamaged() const;
    /// Replaces the user's file with the copy. A damaged file is kept as damagedFile(). Returns
    /// false if the file cannot be written or the copy is not usable.
    bool restore() const;
    /// Deletes the copy.
    bool forget() const;

    QString userFile() const { return m_userFile; }
    QString damagedFile() const { return m_userFile + QLatin1String(".damaged"); }
    QString copy() const { return m_copy; }
    /// Returns the time at which the copy was created.
    QDateTime time() const;

private:
    QString m_userFile;
    QString m_legacyFile;
    QString m_copy;
};

} // namespace Dashboard

#endif
