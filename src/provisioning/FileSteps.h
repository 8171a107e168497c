#ifndef FILESTEPS_H
#define FILESTEPS_H

#include <QByteArray>
#include <QString>

/*
 * Steps on files that are on the disk when they return, each undivided: a program that is killed
 * has done the whole of one or nothing. False sets `problem` to what the system says.
 */
namespace FileSteps
{

bool makeFolder(const QString &path, QString &problem); ///< with those above it
bool writeNew(const QString &path, const QByteArray &content, QString &problem);
bool link(const QString &target, const QString &path, QString &problem); ///< must not be there yet
bool rename(const QString &from, const QString &to, QString &problem);   ///< replaces what is there
bool syncFolder(const QString &path, QString &problem);

/// What the link says; empty when the path is none.
QString linkTarget(const QString &path);
/// Whether something is there, also a link that leads nowhere.
bool exists(const QString &path);
QByteArray content(const QString &path); ///< empty when it cannot be read

/** Waits until no other process holds the lock, and holds it until it is deleted. */
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

#endif
