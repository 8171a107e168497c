#ifndef ODDFILES_H
#define ODDFILES_H

#include <QString>

/*
 * What may stand in the place of a file that a program reads: a named pipe, a folder, a device, a
 * file without end. For a data function and its test function.
 */
namespace OddFiles
{

/// In the data function: one row for each of them, one of them a file that has a byte too many.
void addColumns(qint64 mostBytes = 8 * 1024 * 1024);
/// In the test function: puts the row's thing there, in place of what is there. Returns what is to
/// be said of it.
QString make(const QString &path);

} // namespace OddFiles

#endif
