#ifndef PLUGINCONTAINER_H
#define PLUGINCONTAINER_H

#include <QHash>
#include <QPointer>

#include "IPluginContainer.h"

namespace Dashboard
{

/**
 * The objects that the dashboard offers to its plug-ins, by their identifiers. The container
 * registers itself with the core library while it exists. Only one container may exist at a time.
 * Must be used on the GUI thread.
 */
class PluginContainer : public IPluginContainer
{
public:
    PluginContainer();
    ~PluginContainer() override;
    PluginContainer(const PluginContainer &) = delete;
    PluginContainer &operator=(const PluginContainer &) = delete;

    /// Adds an object without taking ownership. A deleted object is removed automatically.
    void add(const QString &clsid, QObject *plugin);
    QObject *GetPlugin(const QString &clsid) override;

private:
    QHash<QString, QPointer<QObject>> m_plugins;
};

} // namespace Dashboard

#endif
