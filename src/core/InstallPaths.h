#ifndef INSTALLPATHS_H
#define INSTALLPATHS_H

#include <QString>

namespace HostCore
{

/**
 * The paths of the program's files. They are relative to the path of this library, so that an
 * installed prefix can be moved. The build tree has the same layout. No path ends in a separator.
 * PluginFolderChoice has the folder of the plug-in's files. May be used on any thread.
 */
class Q_DECL_EXPORT InstallPaths
{
public:
    /// Returns the folder of this library. The path is resolved only once, because the loader may
    /// have stored a path that is relative to the working directory at the start of the program.
    static QString library();
    /// Returns the folder of architecture-independent data.
    static QString share();
    static QString translations();
    /// Returns the folder of the simulated networks, each of which has one file.
    static QString scenarios();
};

} // namespace HostCore

#endif
