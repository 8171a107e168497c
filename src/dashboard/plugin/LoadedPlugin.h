#ifndef LOADEDPLUGIN_H
#define LOADEDPLUGIN_H

#include <QPluginLoader>
#include <QPointer>
#include <QRect>

#include "PluginFailure.h"

class INotify;
class IUIPlugin;
class IUSSD;
class QWidget;

namespace Dashboard
{

/**
 * Loads a USSD plug-in and calls its functions as the interfaces require of a host. All functions
 * must be called from the GUI thread.
 *
 * The library is never unloaded, because the plug-in does not allow this while the program is
 * running.
 */
class LoadedPlugin
{
public:
    LoadedPlugin() = default;
    LoadedPlugin(const LoadedPlugin &) = delete;
    LoadedPlugin &operator=(const LoadedPlugin &) = delete;
    /// Calls shutDown().
    ~LoadedPlugin();

    /// Returns the path of the plug-in library. If the current plug-in folder contains a
    /// configuration but no library, returns the path of the library that is installed with the
    /// program.
    static QString installedFile();

    /// Loads and initializes the plug-in and gets its USSD service. Must be called only once for
    /// each object.
    PluginFailure load(const QString &file);
    bool isUsable() const { return m_plugin && m_ussd; }

    /// Returns the plug-in, or null before load() and after shutDown(). This object owns the
    /// plug-in.
    IUIPlugin *plugin() const { return m_plugin; }
    IUSSD *ussd() const { return m_ussd; }

    /// Notifies the plug-in that the language has changed. Does nothing if no plug-in is loaded.
    void notifyLanguageChange();
    /// Notifies the plug-in that the SIM may have changed. Does nothing if no plug-in is loaded.
    void notifySimChange();

    /// Makes the plug-in delete all of its windows and services, and then gets the USSD service
    /// again, so that the plug-in reloads its configuration.
    PluginFailure restart();

    /// Makes the plug-in unregister its call-backs and delete its windows, and then deletes the
    /// plug-in object. Must be called before the windows that contain the plug-in's windows are
    /// deleted. Further calls have no effect.
    void shutDown();

private:
    PluginFailure openLibrary(const QString &file);
    PluginFailure takeInterfaces();
    PluginFailure startService();
    PluginFailure takeService();
    PluginFailure failure(PluginFailure::Step step, const QString &detail = QString()) const;

    QPluginLoader m_loader;
    QPointer<QObject> m_instance;
    IUIPlugin *m_plugin = nullptr;
    INotify *m_notify = nullptr;
    IUSSD *m_ussd = nullptr;
};

} // namespace Dashboard

#endif
