#ifndef OBJECTCENSUS_H
#define OBJECTCENSUS_H

/**
 * Counts the QObjects that were created since install() and still exist, with and without a parent.
 * The census uses the hooks that Qt provides for inspection tools, because there is no other way to
 * find a leaked object.
 * find a leaked object.
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
