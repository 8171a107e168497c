#ifndef INSTALLPATHS_H
#define INSTALLPATHS_H

#include <QString>

namespace HostCore
{

/**
 * The paths of the program's files. They are relative to the path of this library, so that an
 * installed prefix can be moved; the build tree has the same layout. No path ends in a separator.
 * May be used on any thread.
 */
class Q_DECL_EXPORT InstallPaths
{
public:
    /// Returns the folder that contains "plugins/": the one set by usePluginLibrary(), or else the
    /// installed one.
    static QString pluginLibrary();
    /// Returns the folder of the installed plug-in. $USSD_PLUGIN_LIBRARY_PATH overrides it when it
    /// is set and not empty.
    static QString installedPluginLibrary();
    /// Sets the folder that plug-ins read their files from; an empty path selects the installed
    /// one.
    static void usePluginLibrary(const QString &folder);
    /// Returns the folder of architecture-independent data.
    static QString share();
    static QString translations();
    /// Returns the folder of the simulated networks, which have one file each.
    static QString scenarios();
};

} // namespace HostCore

#endif
