#ifndef CONFIGTOOL_H
#define CONFIGTOOL_H

#include "ToolArguments.h"

namespace Tools
{

/// Runs ussd-config, which checks files and creates folders for operators. Returns a ToolExit.
int runConfigTool(const QStringList &words);

} // namespace Tools

#endif
