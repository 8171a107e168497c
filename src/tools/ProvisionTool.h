#ifndef PROVISIONTOOL_H
#define PROVISIONTOOL_H

#include "ToolArguments.h"

/// The program ussd-provision: prints, writes the operator's folder, and returns a ToolExit.
int runProvisionTool(const QStringList &words);

#endif
