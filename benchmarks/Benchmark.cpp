#include "Benchmark.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sched.h>

#include <QtGlobal>

namespace
{

void dropMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// Prints the median, the minimum and the maximum of the values.
void printFigures(const std::vector<double> &values)
{
    std::printf("\t%.6g\t%.6g\t%.6g", median(values),
                *std::min_element(values.begin(), values.end()),
                *std::max_element(values.begin(), values.end()));
}

std::vector<double> ratios(const std::vector<double> &measured, const std::vector<double> &baseline)
{
    std::vector<double> result;
    for (size_t i = 0; i < measured.size(); ++i)
        result.push_back(measured[i] / baseline[i]);
    return result;
}

} // namespace

namespace Benchmark
{

double microseconds(const std::function<void()> &work)
{
    typedef std::chrono::steady_clock Clock;
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

void compare(const Title &title, const Measurement &measure, const Measurement &baseline,
             int rounds)
{
    std::vector<double> measured, base;
    measure();
    baseline();
    for (int i = 0; i < rounds; ++i) {
        measured.push_back(measure());
        base.push_back(baseline());
    }
    report(title, measured, base);
}

void report(const Title &title, const std::vector<double> &measured,
            const std::vector<double> &baseline)
{
    std::printf("%s\t%s", title.what.c_str(), title.unit.c_str());
    printFigures(measured);
    std::printf("\t%s", title.baseline.c_str());
    printFigures(baseline);
    printFigures(ratios(measured, baseline));
    std::printf("\t%g\n", title.limit);
    std::fflush(stdout);
}

void dropMessages()
{
    qInstallMessageHandler(dropMessage);
}

bool stayOnCore(int core)
{
    cpu_set_t cores;
    CPU_ZERO(&cores);
    CPU_SET(core, &cores);
    return sched_setaffinity(0, sizeof(cores), &cores) == 0;
}

} // namespace Benchmark
