#ifndef SOAKCLOCK_H
#define SOAKCLOCK_H

#include <QtGlobal>

/**
 * The clock for the simulated network and the reply time-out. It advances only on request. There is
 * only one clock in the process. now() may be called from any thread, all other functions only from
 * the GUI thread.
 */
namespace SoakClock
{

/// Replaces the system clock for the rest of the process.
void install();
void advance(int milliseconds);
/// Returns the number of milliseconds since install().
qint64 now();

} // namespace SoakClock

#endif
