#ifndef PLUGINFOLDERCHOICE_H
#define PLUGINFOLDERCHOICE_H

#include <QString>

namespace HostCore
{

/**
 * Selects the folder from which plug-ins read their configuration and their profiles. This folder
 * contains the "plugins" folder. The host can select a folder, for example that of an operator.
 * Otherwise, the folder specified by $USSD_PLUGIN_LIBRARY_PATH is used or, if the variable is not
 * set, the installed folder. The paths do not end with a separator. The functions may be called
 * from any thread.
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
    /// Selects a folder. An empty path selects the folder that installed() returns.
    static void use(const QString &folder);
};

} // namespace HostCore

#endif
