#ifndef FILESTEPS_H
#define FILESTEPS_H

#include <QByteArray>
#include <QString>

namespace Provisioning
{

/*
 * File operations for replacing a set of files safely. On failure, the functions return false and
 * set `problem` to the system's error message.
 */
namespace FileSteps
{

/// Creates a folder and its missing parents.
bool makeFolder(const QString &path, QString &problem);
/// Writes a file. The contents are on the disk when the function returns.
bool writeNew(const QString &path, const QByteArray &content, QString &problem);
/// Creates a symbolic link. Fails if `path` exists.
bool link(const QString &target, const QString &path, QString &problem);
/// Renames a file. An existing file is replaced atomically.
bool rename(const QString &from, const QString &to, QString &problem);
/// Waits until the directory entries of the folder are on the disk.
bool syncFolder(const QString &path, QString &problem);

/// Returns the target as stored in the link, or an empty string if the path is not a link.
QString linkTarget(const QString &path);
/// Returns true if the path exists. A dangling link is treated as existing.
bool exists(const QString &path);
QByteArray content(const QString &path); ///< empty if the file cannot be read

/**
 * Waits until no other process holds the lock. Then holds the lock until this object is destroyed.
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
