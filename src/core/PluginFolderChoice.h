#ifndef PLUGINFOLDERCHOICE_H
#define PLUGINFOLDERCHOICE_H

#include <QString>

namespace HostCore
{

/**
 * Decides from which folder plug-ins read their configuration and their profiles. The folder
 * contains "plugins/". A host can choose the folder of an operator. Otherwise, it is the folder
 * that $USSD_PLUGIN_LIBRARY_PATH names, or else the installed folder. No path ends in a separator.
 * May be used on any thread.
 */
class Q_DECL_EXPORT PluginFolderChoice
{
public:
    /// Returns the folder in use. Plug-ins receive it from CommonUtils::GetPluginLibraryPath().
    static QString current();
    /// Returns the folder that is used if the host has not chosen one.
    static QString installed();
    /// Chooses a folder. An empty path selects installed() again.
    static void use(const QString &folder);
};

} // namespace HostCore

#endif
