#include "Resources.h"

#include <QDir> // Q_INIT_RESOURCE

// The macro Q_INIT_RESOURCE() must be outside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(look);
}

namespace Dashboard
{

void openResources()
{
    initResources();
}

} // namespace Dashboard
