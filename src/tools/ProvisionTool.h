#ifndef PROVISIONTOOL_H
#define PROVISIONTOOL_H

#include "ToolArguments.h"

namespace Tools
{

/// Runs ussd-provision, which lists operators or creates the folder of an operator. Returns a
/// ToolExit.
int runProvisionTool(const QStringList &words);

} // namespace Tools

#endif
