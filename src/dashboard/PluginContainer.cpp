#include "PluginContainer.h"

#include <QObject>

#include "HostState.h"

PluginContainer::PluginContainer()
{
    HostState::setPluginContainer(this);
}

PluginContainer::~PluginContainer()
{
    if (HostState::pluginContainer() == this)
        HostState::setPluginContainer(nullptr);
}

void PluginContainer::add(const QString &clsid, QObject *plugin)
{
    m_plugins.insert(clsid, plugin);
}

QObject *PluginContainer::GetPlugin(const QString &clsid)
{
    return m_plugins.value(clsid);
}
