#ifndef NEWFOLDER_H
#define NEWFOLDER_H

#include "ToolArguments.h"

namespace Tools
{

/// Implements "ussd-config new", which creates a folder with the plug-in's files for an operator.
/// Returns a ToolExit.
int createNewFolder(const ToolArguments &arguments);

/// Returns the options of "ussd-config new" that require a value.
QStringList newFolderOptions();

} // namespace Tools

#endif
