#ifndef PLUGINCONTAINER_H
#define PLUGINCONTAINER_H

#include <QHash>
#include <QPointer>

#include "IPluginContainer.h"

namespace Dashboard
{

/**
 * Contains the objects that the dashboard provides to its plug-ins, each with an identifier. The
 * constructor registers the container with the core library, and the destructor unregisters it.
 * Only one container may exist at a time. All functions must be called from the GUI thread.
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
