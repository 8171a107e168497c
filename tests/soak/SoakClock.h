#ifndef SOAKCLOCK_H
#define SOAKCLOCK_H

#include <QtGlobal>

/**
 * The clock of the simulated network and of the reply time-out, which advances only on request. The
 * process has one such clock. now() may be called from any thread; all other functions must be
 * called on the GUI thread.
 */
namespace SoakClock
{

/// Replaces the system's clock permanently.
void install();
void advance(int milliseconds);
/// Returns the milliseconds since install().
qint64 now();

} // namespace SoakClock

#endif
