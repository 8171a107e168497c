#ifndef PLUGINCONTAINER_H
#define PLUGINCONTAINER_H

#include <QHash>
#include <QPointer>

#include "IPluginContainer.h"

/**
 * The objects that the dashboard offers to its plug-ins, by their identifiers. The core library
 * hands it out while it exists; one at a time. GUI thread.
 */
class PluginContainer : public IPluginContainer
{
public:
    PluginContainer();
    ~PluginContainer() override;
    PluginContainer(const PluginContainer &) = delete;
    PluginContainer &operator=(const PluginContainer &) = delete;

    /// `plugin` stays its owner's and is forgotten when it dies.
    void add(const QString &clsid, QObject *plugin);
    QObject *GetPlugin(const QString &clsid) override;

private:
    QHash<QString, QPointer<QObject>> m_plugins;
};

#endif
