#ifndef RESOURCES_H
#define RESOURCES_H

namespace Dashboard
{

/// Registers the resources that contain the style sheet and the icons. Qt does not register the
/// resources of a static library automatically.
void openResources();

} // namespace Dashboard

#endif
