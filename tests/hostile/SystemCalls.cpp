#include "SystemCalls.h"

#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <spawn.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

std::mutex lock;
bool isWatching = false;
std::vector<std::string> calls;

void note(const std::string &what)
{
    const std::lock_guard<std::mutex> locked(lock);
    if (isWatching)
        calls.push_back(what);
}

template <typename Function>
Function *next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

mode_t modeOf(int flags, va_list rest)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
}

} // namespace

namespace SystemCalls
{

void watch()
{
    const std::lock_guard<std::mutex> locked(lock);
    calls.clear();
    isWatching = true;
}

std::vector<std::string> seen()
{
    const std::lock_guard<std::mutex> locked(lock);
    isWatching = false;
    return calls;
}

} // namespace SystemCalls

#define WATCHED __attribute__((visibility("default")))

extern "C" {

WATCHED int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    note(std::string("open ") + path);
    return next<int(const char *, int, ...)>("open")(path, flags, mode);
}

WATCHED int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    note(std::string("open ") + path);
    return next<int(const char *, int, ...)>("open64")(path, flags, mode);
}

WATCHED std::FILE *fopen(const char *path, const char *mode)
{
    note(std::string("open ") + path);
    return next<std::FILE *(const char *, const char *)>("fopen")(path, mode);
}

WATCHED std::FILE *fopen64(const char *path, const char *mode)
{
    note(std::string("open ") + path);
    return next<std::FILE *(const char *, const char *)>("fopen64")(path, mode);
}

WATCHED int socket(int domain, int type, int protocol) noexcept
{
    note("socket");
    return next<int(int, int, int)>("socket")(domain, type, protocol);
}

WATCHED pid_t fork() noexcept
{
    note("run");
    return next<pid_t()>("fork")();
}

WATCHED int posix_spawn(pid_t *pid, const char *path, const posix_spawn_file_actions_t *actions,
                        const posix_spawnattr_t *attributes, char *const argv[],
                        char *const environment[])
{
    note(std::string("run ") + path);
    return next<int(pid_t *, const char *, const posix_spawn_file_actions_t *,
                    const posix_spawnattr_t *, char *const[], char *const[])>("posix_spawn")(
        pid, path, actions, attributes, argv, environment);
}
}
