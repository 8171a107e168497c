#ifndef HOSTSTATE_H
#define HOSTSTATE_H

#include <QtGlobal>

class IPluginContainer;
class QWidget;

namespace HostCore
{

/**
 * The state of the host's program, which the program sets and plug-ins read through CommonUtils and
 * Startup. Does not own the objects. Must be used on the GUI thread, unless said otherwise.
 */
class Q_DECL_EXPORT HostState
{
public:
    /// Sets the window that frames are centred over and are children of. The window may be deleted
    /// at any time; mainWindow() then returns null.
    static void setMainWindow(QWidget *window);
    static QWidget *mainWindow();

    static void setMiniMode(bool mini);
    static bool isMiniMode();

    /// Announces that the host is shutting down; to be called before the plug-ins are shut down.
    /// May be called on any thread.
    static void setShuttingDown(bool shuttingDown);
    static bool isShuttingDown();

    /// Sets the container, which must be reset to null before it is deleted.
    static void setPluginContainer(IPluginContainer *container);
    static IPluginContainer *pluginContainer();
};

} // namespace HostCore

#endif
