#ifndef SOAKCLOCK_H
#define SOAKCLOCK_H

#include <QtGlobal>

/**
 * The time of the simulated network and of the reply time-out, which passes only when it is told
 * to. One for the whole process; GUI thread, but for reading it.
 */
namespace SoakClock
{

/// Puts this clock in place of the system's, for good.
void install();
void advance(int milliseconds);
/// Milliseconds since install().
qint64 now();

} // namespace SoakClock

#endif
