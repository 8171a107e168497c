#ifndef ODDFILES_H
#define ODDFILES_H

#include <QString>

/*
 * Creates unusual files that may exist in place of a regular input file: a named pipe, a folder, a
 * device, an endless file, or a file that is too large.
 */
namespace OddFiles
{

/// Adds a test row for each kind of file, including a file that is one byte larger than
/// `mostBytes`. Must be called in a data function.
void addColumns(qint64 mostBytes = qint64(8) * 1024 * 1024);
/// Replaces the file at `path` with the kind of file that the current test row specifies. Must be
/// called in a test function. Returns the expected error message.
QString make(const QString &path);

} // namespace OddFiles

#endif
