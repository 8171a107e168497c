#include "Resources.h"

#include <QDir> // Q_INIT_RESOURCE

// Q_INIT_RESOURCE() cannot be used inside a namespace.
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
