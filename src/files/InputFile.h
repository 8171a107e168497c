#ifndef INPUTFILE_H
#define INPUTFILE_H

#include <QByteArray>
#include <QFile>
#include <QString>

/*
 * Opens files that come from outside the program. Only a regular file of a limited size, or a link
 * to such a file, is opened. A named pipe would block the program until another process writes to
 * it, and a device may have no end. The functions may be called from any thread.
 */
namespace InputFile
{

/// The default size limit. It is far above the size of any configuration, profile or language file.
/// An XML parser may need 50 times the size of a file in memory if the file consists only of start
/// tags.
const qint64 MOST_BYTES = qint64(8) * 1024 * 1024;

/// Opens `file`, whose name must be set, with `mode` and QIODevice::ReadOnly. Returns false and
/// sets `problem` if the file cannot be read. `problem` is worded to follow the file name in a
/// sentence, for example "it is larger than 9 bytes".
bool open(QFile &file, QIODevice::OpenMode mode, QString &problem, qint64 mostBytes = MOST_BYTES);

/// Reads the entire file into `content`. On failure, returns false, clears `content` and sets
/// `problem` in the same way as open().
bool read(const QString &path, QByteArray &content, QString &problem,
          qint64 mostBytes = MOST_BYTES);

/// Returns the contents of the file, or an empty array if the file cannot be read.
QByteArray content(const QString &path);

/// Returns the reason why the file cannot be read, or an empty string if the file can be read.
QString problem(const QString &path, qint64 mostBytes = MOST_BYTES);

} // namespace InputFile

#endif
