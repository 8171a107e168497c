#ifndef PLUGINFOLDERCHOICE_H
#define PLUGINFOLDERCHOICE_H

#include <QString>

namespace HostCore
{

/**
 * Decides from which folder plug-ins read their configuration and their profiles. This folder
 * contains the folder "plugins". A host can select the folder of an operator. If it does not, the
 * folder is the one that $USSD_PLUGIN_LIBRARY_PATH names, or else the installed folder. The paths
 * do not end with a separator. The functions may be called from any thread.
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
