#ifndef FILESTEPS_H
#define FILESTEPS_H

#include <QByteArray>
#include <QString>

namespace Provisioning
{

/*
 * File operations that are used to replace a set of files safely. If an operation fails, the
 * function returns false and sets `problem` to the error message of the system.
 */
namespace FileSteps
{

/// Creates a folder and its missing parents.
bool makeFolder(const QString &path, QString &problem);
/// Writes a file and waits until its contents are stored on the disk.
bool writeNew(const QString &path, const QByteArray &content, QString &problem);
/// Creates a symbolic link. Fails if `path` exists.
bool link(const QString &target, const QString &path, QString &problem);
/// Renames a file. An existing file is replaced atomically.
bool rename(const QString &from, const QString &to, QString &problem);
/// Waits until the entries of the folder are stored on the disk.
bool syncFolder(const QString &path, QString &problem);

/// Returns the target of the symbolic link as stored, or an empty string if the path is not a link.
QString linkTarget(const QString &path);
/// Returns true if the path exists, even if it is a dangling link.
bool exists(const QString &path);
QByteArray content(const QString &path); ///< returns an empty array if the file cannot be read

/**
 * An inter-process lock. The constructor waits until no other process holds the lock. The
 * destructor releases the lock.
 */
class Lock
{
public:
    explicit Lock(const QString &path);
    ~Lock();
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;
    bool isHeld() const { return m_descriptor >= 0; }

private:
    int m_descriptor;
};

} // namespace FileSteps

} // namespace Provisioning

#endif
