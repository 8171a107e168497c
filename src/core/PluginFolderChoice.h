#ifndef PLUGINFOLDERCHOICE_H
#define PLUGINFOLDERCHOICE_H

#include <QString>

namespace HostCore
{

/**
 * Selects the folder from which plug-ins read their configuration and their profiles. This folder
 * contains the folder "plugins". A host can select the folder of an operator. If the host does not
 * select a folder, $USSD_PLUGIN_LIBRARY_PATH specifies the folder. If this variable is not set
 * either, the installed folder is used. The paths do not end with a separator. The functions may be
 * called from any thread.
 */
class Q_DECL_EXPORT PluginFolderChoice
{
public:
    /// Returns the folder in use. Plug-ins receive it from CommonUtils::GetPluginLibraryPath().
    static QString current();
    /// Returns the folder that is used if the host has not selected a folder.
    static QString installed();
    /// Returns the folder of the installation, regardless of the other choices.
    static QString shipped();
    /// Selects a folder. An empty path selects installed() again.
    static void use(const QString &folder);
};

} // namespace HostCore

#endif
