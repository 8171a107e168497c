#include "KillPoint.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

int g_stepsLeft = 0;

void countStep()
{
    if (g_stepsLeft > 0 && --g_stepsLeft == 0)
        _exit(KILLED);
}

} // namespace

void killBeforeStep(int step)
{
    g_stepsLeft = step;
}

// In front of the C library's, for this program and the libraries that it loads.
extern "C" {

int fsync(int descriptor)
{
    countStep();
    return int(syscall(SYS_fsync, descriptor));
}

int rename(const char *from, const char *to) noexcept
{
    countStep();
    return int(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int symlink(const char *target, const char *path) noexcept
{
    countStep();
    return int(syscall(SYS_symlinkat, target, AT_FDCWD, path));
}

int mkdir(const char *path, mode_t mode) noexcept
{
    countStep();
    return int(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

int unlink(const char *path) noexcept
{
    countStep();
    return int(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

int rmdir(const char *path) noexcept
{
    countStep();
    return int(syscall(SYS_unlinkat, AT_FDCWD, path, AT_REMOVEDIR));
}
}
