#ifndef PROVISIONTOOL_H
#define PROVISIONTOOL_H

#include "ToolArguments.h"

/// Runs the program ussd-provision, which lists operators or writes the folder of one. Returns a
/// ToolExit.
int runProvisionTool(const QStringList &words);

#endif
