#ifndef HOSTSTATE_H
#define HOSTSTATE_H

#include <QtGlobal>

class IPluginContainer;
class QWidget;

namespace HostCore
{

/**
 * The state of the host program. The host sets the state, and plug-ins query it through CommonUtils
 * and Startup. HostState owns neither the main window nor the container. Unless documented
 * otherwise, the functions must be called from the GUI thread.
 */
class Q_DECL_EXPORT HostState
{
public:
    /// Sets the main window, which becomes the parent of all frames. If the window is deleted,
    /// mainWindow() returns null.
    static void setMainWindow(QWidget *window);
    /// Returns the main window, or null if there is none.
    static QWidget *mainWindow();

    /// Sets whether the host runs in its small mode, in which windows have no frames.
    static void setMiniMode(bool mini);
    /// Returns true if the host runs in its small mode.
    static bool isMiniMode();

    /// Sets whether the host is shutting down. The host must set this flag before it shuts down the
    /// plug-ins. May be called from any thread.
    static void setShuttingDown(bool shuttingDown);
    /// Returns true if the host is shutting down. May be called from any thread.
    static bool isShuttingDown();

    /// Sets the plug-in container. Must be called with null before the container is deleted.
    static void setPluginContainer(IPluginContainer *container);
    /// Returns the plug-in container, or null if there is none.
    static IPluginContainer *pluginContainer();
};

} // namespace HostCore

#endif
