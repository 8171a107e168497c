#ifndef KILLPOINT_H
#define KILLPOINT_H

/*
 * Ends this process, as a kill would, just before its n-th step on the disk: fsync(), rename(),
 * symlink(), mkdir(), unlink() and rmdir() are counted.
 */

const int KILLED = 77; // what the process ends with

void killBeforeStep(int step); ///< counts from 1; 0: never

#endif
