#ifndef CONFIGTOOL_H
#define CONFIGTOOL_H

#include "ToolArguments.h"

namespace Tools
{

/// Runs ussd-config, which checks and formats files, creates folders for operators and prints
/// schemas. Returns a ToolExit.
int runConfigTool(const QStringList &words);

} // namespace Tools

#endif
