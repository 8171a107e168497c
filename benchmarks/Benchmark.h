#ifndef BENCHMARK_H
#define BENCHMARK_H

#include <functional>
#include <string>
#include <vector>

/*
 * Figures as ratios: a thing and its baseline are measured in turn in one process, because a
 * machine's speed drifts, and the median of the ratios is what counts.
 */
namespace Benchmark
{

/// What one measurement gives for one unit of work.
typedef std::function<double()> Measurement;

const char MICROSECONDS[] = "µs";

/// In place of a limit, for figures that are only shown.
const double NO_LIMIT = 0;

/// What is compared with what, and the ratio that is to be reached.
struct Title {
    std::string what;
    std::string baseline;
    double limit;
    std::string unit;

    Title(const std::string &what_, const std::string &baseline_, double limit_,
          const char *unit_ = MICROSECONDS)
        : what(what_), baseline(baseline_), limit(limit_), unit(unit_)
    {
    }
};

const int ROUNDS = 11;

/// Wall time of `work` in microseconds.
double microseconds(const std::function<void()> &work);

/// Measures both in turn, one round to warm up, and prints the row.
void compare(const Title &title, const Measurement &measure, const Measurement &baseline,
             int rounds = ROUNDS);

/// Prints a row of figures that were taken in turn: what, unit, median, smallest and largest of
/// both and of the ratios, and the limit, with tabs between. benchmark_report reads it.
void report(const Title &title, const std::vector<double> &measured,
            const std::vector<double> &baseline);

/// Every Qt message goes nowhere.
void dropMessages();

/// Binds this thread, and those it starts from now on, to one core. False when there is none of
/// this number.
bool stayOnCore(int core);

} // namespace Benchmark

#endif
