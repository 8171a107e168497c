#ifndef HOSTSTATE_H
#define HOSTSTATE_H

#include <QtGlobal>

class IPluginContainer;
class QWidget;

namespace HostCore
{

/**
 * What the host's program tells the core library about itself; the plug-in reads it through
 * CommonUtils and Startup. GUI thread, unless said otherwise. Nothing here is owned.
 */
class Q_DECL_EXPORT HostState
{
public:
    /// The window that frames are centred over and are children of. May be deleted at any time;
    /// null from then on.
    static void setMainWindow(QWidget *window);
    static QWidget *mainWindow();

    static void setMiniMode(bool mini);
    static bool isMiniMode();

    /// Said once, before the plug-ins are shut down. Any thread.
    static void setShuttingDown(bool shuttingDown);
    static bool isShuttingDown();

    /// Must outlive its use; set to null before it is deleted.
    static void setPluginContainer(IPluginContainer *container);
    static IPluginContainer *pluginContainer();
};

} // namespace HostCore

#endif
