#include "PluginContainer.h"

#include <QObject>

#include "HostState.h"

namespace Dashboard
{

PluginContainer::PluginContainer()
{
    HostCore::HostState::setPluginContainer(this);
}

PluginContainer::~PluginContainer()
{
    if (HostCore::HostState::pluginContainer() == this)
        HostCore::HostState::setPluginContainer(nullptr);
}

void PluginContainer::add(const QString &clsid, QObject *plugin)
{
    m_plugins.insert(clsid, plugin);
}

QObject *PluginContainer::GetPlugin(const QString &clsid)
{
    return m_plugins.value(clsid);
}

} // namespace Dashboard
