/*
 * Measures complete processes: the time from the start of a program until its first window has been
 * painted, and the peak memory usage up to this point. A preloaded library, which is built from
 * first_window.cpp, takes these measurements in all programs.
 */
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "Benchmark.h"

extern char **environ;

namespace
{

const int STARTS = 41;
const double KILOBYTES_IN_MEGABYTE = 1024;

struct Start {
    double milliseconds;
    double peakMegabytes;
};

long long nanosecondsNow()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

[[noreturn]] void fail(const char *program)
{
    std::fprintf(stderr, "%s showed no window\n", program);
    std::exit(1);
}

std::string readAll(int descriptor)
{
    std::string text;
    char piece[128];
    for (ssize_t length; (length = read(descriptor, piece, sizeof(piece))) > 0;)
        text.append(piece, static_cast<size_t>(length));
    return text;
}

/// Returns the environment of this process, extended so that the measuring library is preloaded and
/// writes its results to `descriptor`.
std::vector<std::string> watchedEnvironment(int descriptor)
{
    char **end = environ;
    while (*end)
        ++end;
    std::vector<std::string> result(environ, end);
    result.push_back("LD_PRELOAD=" USSD_FIRST_WINDOW);
    result.push_back("FIRST_WINDOW_FD=" + std::to_string(descriptor));
    return result;
}

void spawn(const char *program, int descriptor, pid_t &child)
{
    std::vector<std::string> entries = watchedEnvironment(descriptor);
    std::vector<char *> environment;
    environment.reserve(entries.size() + 1);
    for (std::string &entry : entries)
        environment.push_back(&entry[0]);
    environment.push_back(nullptr);
    char *arguments[] = {const_cast<char *>(program), nullptr};
    if (posix_spawn(&child, program, nullptr, nullptr, arguments, environment.data()) != 0)
        fail(program);
}

Start start(const char *program)
{
    int ends[2];
    if (pipe(ends) != 0)
        fail(program);
    pid_t child = 0;
    const long long begin = nanosecondsNow();
    spawn(program, ends[1], child);
    close(ends[1]);
    const std::string answer = readAll(ends[0]);
    close(ends[0]);
    waitpid(child, nullptr, 0);
    long long shown = 0;
    long peak = 0;
    if (std::sscanf(answer.c_str(), "%lld %ld", &shown, &peak) != 2)
        fail(program);
    Start result = {static_cast<double>(shown - begin) / 1e6, peak / KILOBYTES_IN_MEGABYTE};
    return result;
}

std::vector<double> figures(const std::vector<Start> &starts, double Start::*figure)
{
    std::vector<double> result(starts.size());
    std::transform(starts.begin(), starts.end(), result.begin(),
                   [figure](const Start &one) { return one.*figure; });
    return result;
}

void compareStarts(const char *baseline, const std::vector<Start> &measured,
                   const std::vector<Start> &base)
{
    Benchmark::report(Benchmark::Title("program start to first window", baseline, 1.3, "ms"),
                      figures(measured, &Start::milliseconds), figures(base, &Start::milliseconds));
    Benchmark::report(Benchmark::Title("peak resident memory at that time", baseline, 1.2, "MB"),
                      figures(measured, &Start::peakMegabytes),
                      figures(base, &Start::peakMegabytes));
}

} // namespace

int main()
{
    std::vector<Start> dashboard, plain, empty;
    for (const char *program : {USSD_DASHBOARD, USSD_PLAIN_WINDOW, USSD_EMPTY_WINDOW})
        start(program); // loads the files into the page cache
    for (int i = 0; i < STARTS; ++i) {
        dashboard.push_back(start(USSD_DASHBOARD));
        plain.push_back(start(USSD_PLAIN_WINDOW));
        empty.push_back(start(USSD_EMPTY_WINDOW));
    }
    compareStarts("empty Qt main window", dashboard, empty);
    compareStarts("Qt main window with the same widgets", dashboard, plain);
    return 0;
}
