#include "Startup.h"

#include "HostState.h"

IPluginContainer *Startup::GetPluginContainer()
{
    return HostState::pluginContainer();
}
