#ifndef UIPLUGIN_H
#define UIPLUGIN_H

#include <QPluginLoader>
#include <QPointer>
#include <QRect>

#include "PluginFailure.h"

class INotify;
class IUIPlugin;
class IUSSD;
class QWidget;

/**
 * A loaded USSD plug-in and the host's duties towards it. GUI thread.
 *
 * The library is never unloaded: the plug-in does not allow it while the program runs.
 */
class UiPlugin
{
public:
    UiPlugin() = default;
    UiPlugin(const UiPlugin &) = delete;
    UiPlugin &operator=(const UiPlugin &) = delete;
    /// Shuts the plug-in down unless that was done.
    ~UiPlugin();

    /// Where the plug-in is installed.
    static QString installedFile();

    /// Loads the plug-in, initialises it and asks it for its USSD service. Once for each object.
    PluginFailure load(const QString &file);
    bool isUsable() const { return m_plugin && m_ussd; }

    /// Null unless isUsable(). The plug-in's.
    IUIPlugin *plugin() const { return m_plugin; }
    IUSSD *ussd() const { return m_ussd; }

    /// Tells the plug-in that the language has changed. Harmless when none is loaded.
    void notifyLanguageChange();
    /// Tells the plug-in to look at the SIM again. Harmless when none is loaded.
    void notifySimChange();

    /// Has the plug-in delete its windows and services, and asks it for its USSD service anew, so
    /// that it reads its configuration again. The frames and pages it had are gone.
    PluginFailure restart();

    /// Tells the plug-in that the program ends, takes its call-backs off the device, has its
    /// windows deleted and deletes the plug-in object. Must come before the windows that host the
    /// plug-in's go. Harmless when repeated.
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

#endif
