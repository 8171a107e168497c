#ifndef INPUTFILE_H
#define INPUTFILE_H

#include <QByteArray>
#include <QFile>
#include <QString>

/*
 * The one way to open a file for reading. A named pipe would hold the program until somebody writes
 * to it, and a device need not end: only a regular file, or a link to one, of a bounded size is
 * opened. Any thread.
 */
namespace InputFile
{

/// Far more than any configuration, profile or language file has. An XML reader may need 50 times
/// as much memory, when the file is nothing but start tags.
const qint64 MOST_BYTES = qint64(8) * 1024 * 1024;

/// Opens `file`, whose name is set, for reading; `mode` is what that needs besides. Returns false
/// and says in `problem` why it cannot be read, as the end of a line that begins with its name.
bool open(QFile &file, QIODevice::OpenMode mode, QString &problem, qint64 mostBytes = MOST_BYTES);

/// Reads the whole file. Returns false, leaves `content` empty and sets `problem` as above.
bool read(const QString &path, QByteArray &content, QString &problem,
          qint64 mostBytes = MOST_BYTES);

/// The whole file; empty when it cannot be read.
QByteArray content(const QString &path);

/// Why the file cannot be read; empty when it can.
QString problem(const QString &path, qint64 mostBytes = MOST_BYTES);

} // namespace InputFile

#endif
