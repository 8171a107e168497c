#ifndef BENCHMARK_H
#define BENCHMARK_H

#include <functional>
#include <vector>

/*
 * Figures as ratios: a thing and its baseline are measured in turn in one process, because a
 * machine's speed drifts, and the median of the ratios is what counts.
 */
namespace Benchmark
{

/// What one measurement gives, in microseconds for one unit of work.
typedef std::function<double()> Measurement;

/// Wall time of `work` in microseconds.
double microseconds(const std::function<void()> &work);

double median(std::vector<double> values);

/// Measures both in turn, one round to warm up, and prints a row of a Markdown table: name, median
/// of either, median of the ratios with the smallest and the largest.
void compare(const char *name, const char *baselineName, const Measurement &measure,
             const Measurement &baseline, int rounds = 7);

/// Every Qt message goes nowhere.
void dropMessages();

} // namespace Benchmark

#endif
