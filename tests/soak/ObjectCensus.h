#ifndef OBJECTCENSUS_H
#define OBJECTCENSUS_H

/**
 * Counts all QObjects that the process has created since install(), with and without a parent. It
 * uses the hooks that Qt provides for inspectors, because no other way finds a leaked object.
 */
namespace ObjectCensus
{

/// Starts counting. Must be called before the application object is constructed.
void install();
/// Returns the number of existing QObjects. May be called from any thread.
int objects();
/// Returns the number of running Qt timers in the calling thread.
int timers();

} // namespace ObjectCensus

#endif
