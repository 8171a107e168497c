#ifndef BENCHMARK_H
#define BENCHMARK_H

#include <functional>
#include <string>
#include <vector>

/*
 * Functions that measure ratios. The subject and its baseline are measured alternately in the same
 * process, because the speed of a machine varies over time. The median of the ratios is compared
 * with a limit.
 */
namespace Benchmark
{

/// A function that performs a measurement and returns the result per unit of work.
typedef std::function<double()> Measurement;

const char MICROSECONDS[] = "µs";

/// Stands for "no limit". A comparison with this value is reported but never fails.
const double NO_LIMIT = 0;

/// The name, the unit and the limit of a comparison between a subject and its baseline.
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

/// Returns the wall-clock time that `work` takes, in microseconds.
double microseconds(const std::function<void()> &work);

/// Measures the subject and the baseline alternately and prints the result as a row. The first
/// round is a warm-up and does not count.
void compare(const Title &title, const Measurement &measure, const Measurement &baseline,
             int rounds = ROUNDS);

/// Prints a row for benchmark_report. The fields are separated by tabs: the title; the unit; the
/// median, minimum and maximum of the subject, of the baseline and of the ratio; and the limit.
void report(const Title &title, const std::vector<double> &measured,
            const std::vector<double> &baseline);

/// Discards all Qt messages.
void dropMessages();

/// Binds the calling thread, and the threads that it starts later, to a core. Returns false if
/// there is no core with this number.
bool stayOnCore(int core);

} // namespace Benchmark

#endif
