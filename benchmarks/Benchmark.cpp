#include "Benchmark.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "QtCompat.h"

namespace
{

void dropMessage(QtMsgType type, const char *text)
{
    Q_UNUSED(type);
    Q_UNUSED(text);
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

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void compare(const char *name, const char *baselineName, const Measurement &measure,
             const Measurement &baseline, int rounds)
{
    std::vector<double> measured, base, ratios;
    measure();
    baseline();
    for (int i = 0; i < rounds; ++i) {
        measured.push_back(measure());
        base.push_back(baseline());
        ratios.push_back(measured.back() / base.back());
    }
    std::printf("| %s | %.2f | %s | %.2f | %.3g (%.3g to %.3g) |\n", name, median(measured),
                baselineName, median(base), median(ratios),
                *std::min_element(ratios.begin(), ratios.end()),
                *std::max_element(ratios.begin(), ratios.end()));
    std::fflush(stdout);
}

void dropMessages()
{
    QtCompat::installMessageHandler(dropMessage);
}

} // namespace Benchmark
