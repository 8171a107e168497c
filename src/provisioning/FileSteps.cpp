#include "FileSteps.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "InputFile.h"

namespace Provisioning
{

namespace
{

bool failed(const QString &path, QString &problem)
{
    problem = path + QLatin1String(": ") + QString::fromLocal8Bit(strerror(errno));
    return false;
}

} // namespace

namespace FileSteps
{

bool makeFolder(const QString &path, QString &problem)
{
    errno = 0;
    return QDir().mkpath(path) || failed(path, problem);
}

bool writeNew(const QString &path, const QByteArray &content, QString &problem)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        file.write(content) != content.size() || !file.flush()) {
        problem = path + QLatin1String(": ") + file.errorString();
        return false;
    }
    return fsync(file.handle()) == 0 || failed(path, problem);
}

bool link(const QString &target, const QString &path, QString &problem)
{
    return symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()) ==
               0 ||
           failed(path, problem);
}

bool rename(const QString &from, const QString &to, QString &problem)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) ==
               0 ||
           failed(to, problem);
}

bool syncFolder(const QString &path, QString &problem)
{
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY);
    if (descriptor < 0)
        return failed(path, problem);
    const bool synced = fsync(descriptor) == 0 || failed(path, problem);
    close(descriptor);
    return synced;
}

QString linkTarget(const QString &path)
{
    char target[PATH_MAX];
    const ssize_t length = readlink(QFile::encodeName(path).constData(), target, sizeof target);
    return length > 0 ? QFile::decodeName(QByteArray(target, int(length))) : QString();
}

bool exists(const QString &path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0;
}

QByteArray content(const QString &path)
{
    return InputFile::content(path);
}

Lock::Lock(const QString &path)
    : m_descriptor(open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                        S_IRUSR | S_IWUSR))
{
    if (m_descriptor < 0)
        return;
    int result = -1;
    do
        result = flock(m_descriptor, LOCK_EX);
    while (result != 0 && errno == EINTR);
}

Lock::~Lock()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

} // namespace FileSteps

} // namespace Provisioning
