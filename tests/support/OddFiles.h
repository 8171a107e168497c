#ifndef ODDFILES_H
#define ODDFILES_H

#include <QString>

/*
 * Creates the unusual files that a program may find in place of a regular input file: a named pipe,
 * a folder, a device, an endless file, or a file that is too large.
 */
namespace OddFiles
{

/// Adds a test row for each kind of file. Must be called in the data function. One kind is a file
/// that is one byte larger than `mostBytes`.
void addColumns(qint64 mostBytes = qint64(8) * 1024 * 1024);
/// Replaces the file at `path` with the kind of file in the current row. Must be called in the test
/// function. Returns the expected error message.
QString make(const QString &path);

} // namespace OddFiles

#endif
