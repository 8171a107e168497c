#ifndef REPLYPATTERNCHECK_H
#define REPLYPATTERNCHECK_H

#include <QByteArray>

#include "CheckReport.h"

namespace Tools
{

/// Returns true if the first line identifies the content as a pattern file.
bool areReplyPatterns(const QByteArray &content);

/// Checks a pattern file as the dashboard would read it. Adds findings and a table to the report.
void checkReplyPatterns(const QByteArray &content, CheckReport &report);

} // namespace Tools

#endif
