#ifndef BENCHMARK_H
#define BENCHMARK_H

#include <functional>
#include <string>
#include <vector>

/*
 * Measures ratios. A subject and its baseline are measured alternately in one process, because the
 * speed of a machine drifts. The median of the ratios is compared with the limit.
 */
namespace Benchmark
{

/// Performs one measurement and returns the result per unit of work.
typedef std::function<double()> Measurement;

const char MICROSECONDS[] = "µs";

/// Used for comparisons that have no limit.
const double NO_LIMIT = 0;

/// Describes a comparison: the subject, its baseline and the limit of the ratio.
struct Title {
    std::string what;
    std::string baseline;
    double limit;
    std::string unit;

    Title(const std::string &measured, const std::string &against, double bound,
          const char *in = MICROSECONDS)
        : what(measured), baseline(against), limit(bound), unit(in)
    {
    }
};

const int ROUNDS = 11;

/// Returns the wall-clock time of `work` in microseconds.
double microseconds(const std::function<void()> &work);

/// Measures subject and baseline alternately, after one warm-up round, and prints the row.
void compare(const Title &title, const Measurement &measure, const Measurement &baseline,
             int rounds = ROUNDS);

/// Prints a row for benchmark_report. Its fields, separated by tabs, are: the title; the unit; the
/// median, minimum and maximum of the subject, of the baseline and of the ratios; and the limit.
void report(const Title &title, const std::vector<double> &measured,
            const std::vector<double> &baseline);

/// Discards all Qt messages.
void dropMessages();

/// Binds this thread, and the threads that it starts later, to one core. Returns false if no core
/// has this number.
bool stayOnCore(int core);

} // namespace Benchmark

#endif
