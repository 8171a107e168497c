#ifndef FILECHECK_H
#define FILECHECK_H

#include <QByteArray>

#include "CheckReport.h"

namespace Tools
{

/// Checks how the plug-in or the simulated network reads the contents of a file. The kind of file
/// is determined from the contents. `file` is the name in the report.
CheckReport checkContent(const QByteArray &content, const QString &file);
/// Reads a file and checks its contents. If the file cannot be read, the report contains an error.
CheckReport checkFile(const QString &path);
/// Checks a file, or the files in an operator's folder: the files of the plug-in, and the
/// scenarios. If a folder contains none of these files, the only report contains an error.
QList<CheckReport> checkPath(const QString &path);

} // namespace Tools

#endif
