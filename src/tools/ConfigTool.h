#ifndef CONFIGTOOL_H
#define CONFIGTOOL_H

#include "ToolArguments.h"

/// The program ussd-config: prints what it finds and returns a ToolExit.
int runConfigTool(const QStringList &words);

#endif
