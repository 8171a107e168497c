#ifndef LOGFILE_H
#define LOGFILE_H

#include <QString>

/**
 * The file that the program's log lines go to when the user asks for it. They hold codes and
 * replies, so it is readable by its user alone, and follows no symbolic link.
 */
namespace LogFile
{

/// Opens the file, makes it empty and private, and writes what its lines will hold into the first.
/// Returns why it cannot be used, in words; empty when it is open. Once, before there are threads.
QString open(const QString &path);

/// Adds a line, as terminalText() gives it; nothing when no file is open. Any thread.
void write(const QString &line);

} // namespace LogFile

#endif
