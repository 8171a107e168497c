#ifndef NEWFOLDER_H
#define NEWFOLDER_H

#include "ToolArguments.h"

namespace Tools
{

/// Creates a folder with the plug-in's files for an operator, as "ussd-config new". Returns a
/// ToolExit.
int createNewFolder(const ToolArguments &arguments);

/// Returns the value options of "ussd-config new".
QStringList newFolderOptions();

} // namespace Tools

#endif
