#ifndef SOAKCLOCK_H
#define SOAKCLOCK_H

#include <QtGlobal>

/**
 * The clock of the simulated network and of the reply time-out. The clock advances only on request.
 * The process has only one such clock. now() may be called from any thread. All other functions
 * must be called from the GUI thread.
 */
namespace SoakClock
{

/// Replaces the system clock permanently.
void install();
void advance(int milliseconds);
/// Returns the number of milliseconds since install().
qint64 now();

} // namespace SoakClock

#endif
