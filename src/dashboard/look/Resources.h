#ifndef RESOURCES_H
#define RESOURCES_H

namespace Dashboard
{

/// Makes the style sheet and the icons available. Resources of a static library need this call.
void openResources();

} // namespace Dashboard

#endif
