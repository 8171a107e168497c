#ifndef FORMATFILES_H
#define FORMATFILES_H

#include "ToolArguments.h"

namespace Tools
{

/// Formats XML files, as "ussd-config fmt". Returns a ToolExit.
int formatFiles(const ToolArguments &arguments);

} // namespace Tools

#endif
