#ifndef INPUTFILE_H
#define INPUTFILE_H

#include <QByteArray>
#include <QFile>
#include <QString>

/*
 * Opens files that come from outside the program. Only a regular file of a limited size, or a link
 * to such a file, is opened. A named pipe would block the program until somebody writes to it, and
 * a device may have no end. May be used on any thread.
 */
namespace InputFile
{

/// The default limit. It is far above the size of any configuration, profile or language file. An
/// XML reader may need 50 times as much memory if the file consists only of start tags.
const qint64 MOST_BYTES = qint64(8) * 1024 * 1024;

/// Opens `file`, whose name must be set, with `mode` and QIODevice::ReadOnly. Returns false and
/// sets `problem` if the file cannot be read. The wording of `problem` continues a sentence after
/// the file name, such as "it is larger than 9 bytes".
bool open(QFile &file, QIODevice::OpenMode mode, QString &problem, qint64 mostBytes = MOST_BYTES);

/// Reads the whole file into `content`. On failure, returns false, clears `content` and sets
/// `problem` as open() does.
bool read(const QString &path, QByteArray &content, QString &problem,
          qint64 mostBytes = MOST_BYTES);

/// Returns the content of the file, or an empty array if it cannot be read.
QByteArray content(const QString &path);

/// Returns the reason why the file cannot be read, or an empty string if it can be read.
QString problem(const QString &path, qint64 mostBytes = MOST_BYTES);

} // namespace InputFile

#endif
