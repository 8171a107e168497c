#ifndef INPUTFILE_H
#define INPUTFILE_H

#include <QByteArray>
#include <QFile>
#include <QString>

/*
 * Opens files that come from outside the program. Only a regular file of a bounded size, or a link
 * to one, is opened: a named pipe would block the program until somebody writes to it, and a device
 * may have no end. May be used on any thread.
 */
namespace InputFile
{

/// The default limit is far above the size of any configuration, profile or language file. An XML
/// reader may need 50 times as much memory when the file consists of start tags only.
const qint64 MOST_BYTES = qint64(8) * 1024 * 1024;

/// Opens `file`, whose name is set, with `mode` and QIODevice::ReadOnly. Returns false and sets
/// `problem` when the file cannot be read. The problem is worded to follow the name of the file:
/// "it is larger than 9 bytes".
bool open(QFile &file, QIODevice::OpenMode mode, QString &problem, qint64 mostBytes = MOST_BYTES);

/// Reads the whole file into `content`. On failure returns false, clears `content` and sets
/// `problem` as open() does.
bool read(const QString &path, QByteArray &content, QString &problem,
          qint64 mostBytes = MOST_BYTES);

/// Returns the content of the file, or nothing when it cannot be read.
QByteArray content(const QString &path);

/// Returns why the file cannot be read; empty when it can be.
QString problem(const QString &path, qint64 mostBytes = MOST_BYTES);

} // namespace InputFile

#endif
