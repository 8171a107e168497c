#ifndef HOSTSTATE_H
#define HOSTSTATE_H

#include <QtGlobal>

class IPluginContainer;
class QWidget;

namespace HostCore
{

/**
 * The state of the host program. The program sets the state, and plug-ins read it through
 * CommonUtils and Startup. HostState does not own the objects. The functions must be called from
 * the GUI thread, unless their comments allow any thread.
 */
class Q_DECL_EXPORT HostState
{
public:
    /// Sets the window that is the parent of frames and over which frames are centred. The window
    /// may be deleted at any time. mainWindow() then returns null.
    static void setMainWindow(QWidget *window);
    /// Returns the main window, or null if there is none.
    static QWidget *mainWindow();

    /// Sets the host's small mode, in which windows have no frames.
    static void setMiniMode(bool mini);
    /// Returns true if the host runs in its small mode.
    static bool isMiniMode();

    /// Sets the flag that the host is shutting down. Must be called before the plug-ins are shut
    /// down. May be called from any thread.
    static void setShuttingDown(bool shuttingDown);
    /// Returns true if the host is shutting down. May be called from any thread.
    static bool isShuttingDown();

    /// Sets the container. Must be called with null before the container is deleted.
    static void setPluginContainer(IPluginContainer *container);
    /// Returns the container, or null if there is none.
    static IPluginContainer *pluginContainer();
};

} // namespace HostCore

#endif
