#include "Startup.h"

#include "HostState.h"

IPluginContainer *Startup::GetPluginContainer()
{
    return HostCore::HostState::pluginContainer();
}
