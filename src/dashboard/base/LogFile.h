#ifndef LOGFILE_H
#define LOGFILE_H

#include <QString>

namespace Dashboard
{

/**
 * The log file, which is written only if the user requests it. Log lines contain codes and replies.
 * Therefore, only the owner can read the file, and symbolic links are not followed.
 */
namespace LogFile
{

/// Opens the file, empties it, makes it private and writes a first line that explains its contents.
/// Returns an error message, or an empty string on success. Must be called at most once, before any
/// thread is started.
QString open(const QString &path);

/// Appends the line, in which terminalText() replaces control characters. Does nothing if no file
/// is open. May be called from any thread.
void write(const QString &line);

} // namespace LogFile

} // namespace Dashboard

#endif
