#ifndef INSTALLPATHS_H
#define INSTALLPATHS_H

#include <QString>

namespace HostCore
{

/**
 * The paths of the program's files. They are determined relative to the path of this library, so
 * that the installation prefix can be moved. The build tree has the same layout. The paths do not
 * end with a separator. The functions may be called from any thread.
 */
class Q_DECL_EXPORT InstallPaths
{
public:
    /// Returns the folder that contains "plugins/". This is the folder set by usePluginLibrary(),
    /// or else the installed folder.
    static QString pluginLibrary();
    /// Returns the folder of the installed plug-in. If $USSD_PLUGIN_LIBRARY_PATH is set and not
    /// empty, returns its value instead.
    static QString installedPluginLibrary();
    /// Sets the folder from which plug-ins read their files. An empty path selects the installed
    /// folder.
    static void usePluginLibrary(const QString &folder);
    /// Returns the folder for architecture-independent data.
    static QString share();
    static QString translations();
    /// Returns the folder that contains the scenario files of the simulated networks.
    static QString scenarios();
};

} // namespace HostCore

#endif
