#ifndef DISKFAULTS_H
#define DISKFAULTS_H

#include <string>

/*
 * Injects a fault into the n-th step that this process performs on the files below a folder. Steps
 * are calls of write(), fsync(), ftruncate(), rename(), link(), symlink(), mkdir(), chmod(),
 * unlink() and rmdir(), and of open() if it creates or truncates a file. All variants of these
 * functions are included. The functions are replaced in the program that is linked with this file
 * and in all libraries that it loads.
 * libraries that it loads.
 *
 * A program that is started by a test reads its fault from the environment:
 * USSD_DISK_FAULT=kill:STEP:FOLDER, full:STEP:FOLDER or read-only:STEP:FOLDER.
 */

const int KILLED = 77; // exit code of a killed process

namespace DiskFaults
{

enum Kind {
    None,
    // Ends the process before the step, like a kill. A write consists of two steps: a kill at the
    // second step leaves half of the data written.
    Kill,
    Full,    // from this step on, no file can grow or be created
    ReadOnly // from this step on, nothing can be changed
};

/// Sets the fault. Steps are counted from 1, and each call restarts the count.
void set(Kind kind, int step, const std::string &folder);

} // namespace DiskFaults

#endif
