#ifndef ODDFILES_H
#define ODDFILES_H

#include <QString>

/*
 * Provides a data function and its test function with what a program may find in place of a file
 * that it reads: a named pipe, a folder, a device, or an endless file.
 */
namespace OddFiles
{

/// Adds a row for each kind; to be called in the data function. One kind is a file that is a byte
/// too large.
void addColumns(qint64 mostBytes = qint64(8) * 1024 * 1024);
/// Replaces the file at `path` by the kind of the row; to be called in the test function. Returns
/// the expected error message.
QString make(const QString &path);

} // namespace OddFiles

#endif
