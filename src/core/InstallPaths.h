#ifndef INSTALLPATHS_H
#define INSTALLPATHS_H

#include <QString>

namespace HostCore
{

/**
 * Where the program's files lie, found from where this library lies, so that an installed prefix
 * can be moved; the build tree is laid out alike. No path ends in a separator. Any thread.
 */
class Q_DECL_EXPORT InstallPaths
{
public:
    /// The folder that holds "plugins/" for plug-ins: the one that usePluginLibrary() has named,
    /// else the installed one.
    static QString pluginLibrary();
    /// The one of the installed plug-in: $USSD_PLUGIN_LIBRARY_PATH when it is set and not empty.
    static QString installedPluginLibrary();
    /// Names the folder that plug-ins read their files in from now on; empty: the installed one.
    static void usePluginLibrary(const QString &folder);
    /// The folder of data that no machine word length changes.
    static QString share();
    static QString translations();
    /// Simulated networks, one file each.
    static QString scenarios();
};

} // namespace HostCore

#endif
