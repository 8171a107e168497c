#ifndef DISKFAULTS_H
#define DISKFAULTS_H

#include <string>

/*
 * Injects a fault into the n-th disk operation of this process in a given folder and its
 * subfolders. Disk operations are calls to write(), fsync(), ftruncate(), rename(), link(),
 * symlink(), mkdir(), chmod(), unlink() and rmdir(), and calls to open() that create or truncate a
 * file. All variants of these functions are included. The functions are replaced in the program
 * that is linked with this file, and in all libraries that the program loads.
 *
 * If a test starts another program, that program reads its fault from the environment:
 * USSD_DISK_FAULT=kill:STEP:FOLDER, full:STEP:FOLDER or read-only:STEP:FOLDER.
 */

const int KILLED = 77; // the exit status of a killed process

namespace DiskFaults
{

enum Kind {
    None,
    // Ends the process before the step, as if it were killed. A write counts as two steps. With a
    // fault in the second step, half of the data has been written.
    Kill,
    Full,    // from this step on, files cannot be created or enlarged
    ReadOnly // from this step on, nothing can be changed
};

/// Sets the fault and restarts the count. The first step has the number 1.
void set(Kind kind, int step, const std::string &folder);

} // namespace DiskFaults

#endif
