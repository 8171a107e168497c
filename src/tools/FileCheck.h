#ifndef FILECHECK_H
#define FILECHECK_H

#include <QByteArray>

#include "CheckReport.h"

namespace Tools
{

/// Checks how the program that uses the file would read `content`. The kind of file is determined
/// from the contents. `file` is the file name for the report.
CheckReport checkContent(const QByteArray &content, const QString &file);
/// Reads a file and checks its contents. If the file cannot be read, the report contains an error.
CheckReport checkFile(const QString &path);
/// Checks a file, or all files of the plug-in and all scenarios in an operator's folder. If a
/// folder contains none of these files, returns a single report with an error.
QList<CheckReport> checkPath(const QString &path);

} // namespace Tools

#endif
