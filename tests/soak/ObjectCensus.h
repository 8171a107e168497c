#ifndef OBJECTCENSUS_H
#define OBJECTCENSUS_H

/**
 * Counts the QObjects, with or without a parent, that have been created since install() and still
 * exist. Qt's hooks for inspection tools are the only way to find leaked objects.
 */
namespace ObjectCensus
{

/// Starts counting. Must be called before the application object is constructed.
void install();
/// Returns the number of existing QObjects. May be called from any thread.
int objects();
/// Returns the number of active Qt timers in the calling thread.
int timers();

} // namespace ObjectCensus

#endif
