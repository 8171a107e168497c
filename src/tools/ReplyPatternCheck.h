#ifndef REPLYPATTERNCHECK_H
#define REPLYPATTERNCHECK_H

#include <QByteArray>

#include "CheckReport.h"

namespace Tools
{

/// Returns true if the first line of the content says that it is a file of reply patterns.
bool areReplyPatterns(const QByteArray &content);

/// Checks how the dashboard reads a file of reply patterns. Adds findings and the table to the
/// report.
void checkReplyPatterns(const QByteArray &content, CheckReport &report);

} // namespace Tools

#endif
