#include "LogFile.h"

#include <QFile>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "DashboardText.h"
#include "TerminalText.h"

namespace Dashboard
{

namespace
{

const mode_t OWNER_ONLY = S_IRUSR | S_IWUSR;

std::atomic<int> logFile(-1);

QString whyNotOpened()
{
    return errno == ELOOP ? dashboardText("LOG_IS_LINK")
                          : QString::fromLocal8Bit(std::strerror(errno));
}

/// Returns true if the file is a regular file that belongs to the user and has only one hard link.
/// Otherwise, another user may be able to read the file.
bool isOwnFile(int file)
{
    struct stat found;
    return fstat(file, &found) == 0 && S_ISREG(found.st_mode) && found.st_uid == geteuid() &&
           found.st_nlink == 1;
}

/// Empties the file and makes it private. Must be called only if isOwnFile() has returned true, so
/// that another user's file is never emptied.
bool makeEmptyAndPrivate(int file)
{
    return fchmod(file, OWNER_ONLY) == 0 && ftruncate(file, 0) == 0;
}

/// Returns an error message, or an empty string if the file can be used.
QString whyNotUsable(int file)
{
    if (!isOwnFile(file))
        return dashboardText("LOG_NOT_OWN");
    return makeEmptyAndPrivate(file) ? QString() : QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace

QString LogFile::open(const QString &path)
{
    // O_NONBLOCK prevents open() from blocking if the file is a named pipe.
    const int flags = O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
    const int file = ::open(QFile::encodeName(path).constData(), flags, OWNER_ONLY);
    const QString problem = file < 0 ? whyNotOpened() : whyNotUsable(file);
    if (!problem.isEmpty()) {
        if (file >= 0)
            close(file);
        return dashboardText("LOG_UNUSABLE").arg(path, problem);
    }
    logFile = file;
    write(dashboardText("LOG_HOLDS"));
    HostCore::setLogSink(write);
    return QString();
}

// Writes the line with a single call, so that lines from several threads are not mixed.
void LogFile::write(const QString &line)
{
    if (logFile < 0)
        return;
    const QByteArray bytes = HostCore::terminalText(line).toUtf8() + '\n';
    if (::write(logFile, bytes.constData(), size_t(bytes.size())) != bytes.size())
        logFile = -1; // the disk may be full; the program continues without a log
}

} // namespace Dashboard
