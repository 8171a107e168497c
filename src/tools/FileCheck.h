#ifndef FILECHECK_H
#define FILECHECK_H

#include <QByteArray>

#include "CheckReport.h"

/// Says what the plug-in, or the simulated network, makes of a file's content. The kind of file is
/// seen from what is in it. `file` is the name in the report.
CheckReport checkContent(const QByteArray &content, const QString &file);
/// The same of a file.
CheckReport checkFile(const QString &path);

#endif
