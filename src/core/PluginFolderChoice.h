#ifndef PLUGINFOLDERCHOICE_H
#define PLUGINFOLDERCHOICE_H

#include <QString>

namespace HostCore
{

/**
 * Selects the folder from which plug-ins read their configuration and their profiles. This folder
 * contains the folder "plugins". The host can select a folder, for example that of an operator.
 * Otherwise, the folder in $USSD_PLUGIN_LIBRARY_PATH is used if the variable is set, or else the
 * installed folder. The paths do not end with a separator. The functions may be called from any
 * thread.
 */
class Q_DECL_EXPORT PluginFolderChoice
{
public:
    /// Returns the folder in use. CommonUtils::GetPluginLibraryPath() returns the same folder.
    static QString current();
    /// Returns the folder that is used if the host has not selected a folder.
    static QString installed();
    /// Returns the installed folder, even if another folder is in use.
    static QString shipped();
    /// Selects a folder. An empty path selects installed() again.
    static void use(const QString &folder);
};

} // namespace HostCore

#endif
