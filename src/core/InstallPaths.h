#ifndef INSTALLPATHS_H
#define INSTALLPATHS_H

#include <QString>

namespace HostCore
{

/**
 * The paths of the installed files. They are determined relative to the path of this library, so
 * that the installation can be moved to another prefix. The build tree has the same layout. The
 * paths do not end with a separator. The functions may be called from any thread. For the folder of
 * the plug-in's files, see PluginFolderChoice.
 */
class Q_DECL_EXPORT InstallPaths
{
public:
    /// Returns the folder that contains this library. The path is resolved only once, because it
    /// may be relative to the working directory in which the program was started.
    static QString library();
    /// Returns the folder for architecture-independent data.
    static QString share();
    static QString translations();
    /// Returns the folder that contains the scenario files of the simulated networks.
    static QString scenarios();
};

} // namespace HostCore

#endif
