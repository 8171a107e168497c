#ifndef OBJECTCENSUS_H
#define OBJECTCENSUS_H

/**
 * Counts every QObject of the process since install(), with and without a parent. It uses Qt's
 * hooks for inspectors, because no other way finds a leaked object.
 */
namespace ObjectCensus
{

/// Starts counting. Must be called before the application object is constructed.
void install();
/// Returns the number of existing QObjects. May be called on any thread.
int objects();
/// Returns the number of running Qt timers of objects in the calling thread.
int timers();

} // namespace ObjectCensus

#endif
