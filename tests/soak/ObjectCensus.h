#ifndef OBJECTCENSUS_H
#define OBJECTCENSUS_H

/**
 * Counts every QObject of the process from install() on, with parent or without, by the hooks that
 * Qt has for inspectors; nothing else sees an object that somebody has forgotten.
 */
namespace ObjectCensus
{

/// Before the application object is made.
void install();
/// QObjects alive. Any thread.
int objects();
/// Timers of Qt that run for objects of the calling thread.
int timers();

} // namespace ObjectCensus

#endif
