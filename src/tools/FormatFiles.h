#ifndef FORMATFILES_H
#define FORMATFILES_H

#include "ToolArguments.h"

namespace Tools
{

/// Implements "ussd-config fmt", which formats XML files. Returns a ToolExit.
int formatFiles(const ToolArguments &arguments);

} // namespace Tools

#endif
