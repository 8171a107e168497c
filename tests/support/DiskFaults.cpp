#include "DiskFaults.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace
{

enum Need { Room, NoRoom }; // whether the step needs free disk space

std::atomic<int> g_kind(DiskFaults::None);
std::atomic<int> g_stepsLeft(0);
char g_folder[PATH_MAX] = "";

bool isInFolder(const char *path)
{
    return strncmp(path, g_folder, strlen(g_folder)) == 0;
}

/// Returns true if the path is in the watched folder. The project's programs do not use relative
/// paths, so these are ignored.
bool isWatched(const char *path)
{
    return g_kind != DiskFaults::None && isInFolder(path);
}

bool isWatched(int descriptor)
{
    if (g_kind == DiskFaults::None)
        return false;
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    if (length <= 0)
        return false;
    path[length] = '\0';
    return isInFolder(path);
}

bool isDue()
{
    return g_stepsLeft > 0 ? --g_stepsLeft == 0 : true;
}

/// Counts the step. If it must fail, sets errno and returns false.
bool take(Need need)
{
    const int kind = g_kind;
    if (!isDue())
        return true;
    if (kind == DiskFaults::Kill)
        _exit(KILLED);
    if (kind == DiskFaults::Full && need == NoRoom)
        return true;
    errno = kind == DiskFaults::Full ? ENOSPC : EROFS;
    return false;
}

template <typename Place>
bool mayDo(Place place, Need need)
{
    return !isWatched(place) || take(need);
}

bool changes(const char *path, int flags)
{
    const bool makes = (flags & O_CREAT) && access(path, F_OK) != 0;
    return makes || (flags & O_TRUNC) || (flags & O_ACCMODE) != O_RDONLY;
}

int openFile(int folder, const char *path, int flags, mode_t mode)
{
    const int error = errno; // access() must not change errno
    const bool changing = isWatched(path) && changes(path, flags);
    const Need need = changing && access(path, F_OK) != 0 ? Room : NoRoom;
    errno = error;
    if (changing && !take(need))
        return -1;
    return int(syscall(SYS_openat, folder, path, flags, mode));
}

/// Writes only the first half of the data, as if the process had been killed during the call.
void takeHalfOfWrite(int descriptor, const void *data, size_t size)
{
    if (g_kind != DiskFaults::Kill || !isDue())
        return;
    syscall(SYS_write, descriptor, data, size / 2);
    _exit(KILLED);
}

DiskFaults::Kind kindOf(const char *word, size_t length)
{
    if (strncmp(word, "kill", length) == 0)
        return DiskFaults::Kill;
    return strncmp(word, "full", length) == 0 ? DiskFaults::Full : DiskFaults::ReadOnly;
}

__attribute__((constructor)) void setFromEnvironment()
{
    const char *text = getenv("USSD_DISK_FAULT");
    const char *step = text ? strchr(text, ':') : nullptr;
    const char *folder = step ? strchr(step + 1, ':') : nullptr;
    if (folder)
        DiskFaults::set(kindOf(text, size_t(step - text)), int(strtol(step + 1, nullptr, 10)),
                        folder + 1);
}

} // namespace

namespace DiskFaults
{

void set(Kind kind, int step, const std::string &folder)
{
    g_kind = None;
    snprintf(g_folder, sizeof g_folder, "%s", folder.c_str());
    g_stepsLeft = step;
    g_kind = kind;
}

} // namespace DiskFaults

extern "C" {

#define OPEN_MODE(flags)                                                                           \
    mode_t mode = 0;                                                                               \
    if ((flags) & (O_CREAT | O_TMPFILE)) {                                                         \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        mode = va_arg(rest, mode_t);                                                               \
        va_end(rest);                                                                              \
    }

int open(const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return openFile(AT_FDCWD, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return openFile(AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return openFile(folder, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return openFile(folder, path, flags, mode);
}

ssize_t write(int descriptor, const void *data, size_t size)
{
    if (isWatched(descriptor)) {
        if (!take(Room))
            return -1;
        takeHalfOfWrite(descriptor, data, size);
    }
    return syscall(SYS_write, descriptor, data, size);
}

ssize_t writev(int descriptor, const iovec *parts, int count)
{
    if (!mayDo(descriptor, Room))
        return -1;
    return syscall(SYS_writev, descriptor, parts, count);
}

int fsync(int descriptor)
{
    return mayDo(descriptor, Room) ? int(syscall(SYS_fsync, descriptor)) : -1;
}

int fdatasync(int descriptor)
{
    return mayDo(descriptor, Room) ? int(syscall(SYS_fdatasync, descriptor)) : -1;
}

int ftruncate(int descriptor, off_t size) noexcept
{
    return mayDo(descriptor, NoRoom) ? int(syscall(SYS_ftruncate, descriptor, size)) : -1;
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    return mayDo(descriptor, NoRoom) ? int(syscall(SYS_ftruncate, descriptor, size)) : -1;
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    if (!mayDo(to, NoRoom))
        return -1;
    return int(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept
{
    return renameat2(fromFolder, from, toFolder, to, 0);
}

int rename(const char *from, const char *to) noexcept
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    if (!mayDo(to, Room))
        return -1;
    return int(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int link(const char *from, const char *to) noexcept
{
    return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int symlink(const char *target, const char *path) noexcept
{
    return mayDo(path, Room) ? int(syscall(SYS_symlinkat, target, AT_FDCWD, path)) : -1;
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return mayDo(path, Room) ? int(syscall(SYS_mkdirat, AT_FDCWD, path, mode)) : -1;
}

int chmod(const char *path, mode_t mode) noexcept
{
    return mayDo(path, NoRoom) ? int(syscall(SYS_fchmodat, AT_FDCWD, path, mode)) : -1;
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return mayDo(descriptor, NoRoom) ? int(syscall(SYS_fchmod, descriptor, mode)) : -1;
}

int unlinkat(int folder, const char *path, int flags) noexcept
{
    return mayDo(path, NoRoom) ? int(syscall(SYS_unlinkat, folder, path, flags)) : -1;
}

int unlink(const char *path) noexcept
{
    return unlinkat(AT_FDCWD, path, 0);
}

int rmdir(const char *path) noexcept
{
    return unlinkat(AT_FDCWD, path, AT_REMOVEDIR);
}

int remove(const char *path) noexcept
{
    struct stat status;
    const bool isFolder = lstat(path, &status) == 0 && S_ISDIR(status.st_mode);
    return isFolder ? rmdir(path) : unlink(path);
}
}
