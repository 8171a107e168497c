#ifndef INSTALLPATHS_H
#define INSTALLPATHS_H

#include <QString>

namespace HostCore
{

/**
 * The paths of the program's files. They are determined relative to the path of this library, so
 * that the installation prefix can be moved. The build tree has the same layout. The paths do not
 * end with a separator. The functions may be called from any thread. See PluginFolderChoice for the
 * folder of the plug-in's files.
 */
class Q_DECL_EXPORT InstallPaths
{
public:
    /// Returns the folder of this library. The path is resolved only once, because the loader may
    /// have stored a path that is relative to the working directory at the start of the program.
    static QString library();
    /// Returns the folder for architecture-independent data.
    static QString share();
    static QString translations();
    /// Returns the folder that contains the scenario files of the simulated networks.
    static QString scenarios();
};

} // namespace HostCore

#endif
