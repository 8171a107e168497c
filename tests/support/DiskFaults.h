#ifndef DISKFAULTS_H
#define DISKFAULTS_H

#include <string>

/*
 * Faults at the n-th step that this process takes on the files below a folder. What counts as a
 * step: open() that makes or empties a file, write(), fsync(), ftruncate(), rename(), link(),
 * symlink(), mkdir(), chmod(), unlink() and rmdir(), in all their forms. They are put in front of
 * the C library's, for the program that is linked with this file and for all libraries it loads.
 *
 * A program that is only started gets its fault from the environment:
 * USSD_DISK_FAULT=kill:STEP:FOLDER, full:STEP:FOLDER or read-only:STEP:FOLDER.
 */

const int KILLED = 77; // what a killed process ends with

namespace DiskFaults
{

enum Kind {
    None,
    Kill,    // ends the process, as a kill would, before the step; a write takes two steps, of
             // which the second one is killed when half is written
    Full,    // from that step on no file grows, and none is made
    ReadOnly // from that step on nothing can be changed
};

/// Counts from 1, anew with each call.
void set(Kind kind, int step, const std::string &folder);

} // namespace DiskFaults

#endif
