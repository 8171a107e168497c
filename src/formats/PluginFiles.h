#ifndef PLUGINFILES_H
#define PLUGINFILES_H

#include <QLatin1String>
#include <QString>

namespace Formats
{

/*
 * The names of the plug-in's folder and files. CommonUtils::GetPluginLibraryPath() returns the path
 * of the folder that contains FOLDER.
 */
namespace PluginFiles
{

const QLatin1String FOLDER("/plugins/USSDUIPlugin"); // does not end with a separator

const QLatin1String CONFIGURATION("USSDPluginConfig.xml");
const QLatin1String SYSTEM_PROFILES("ussdsysprofile.xml");
const QLatin1String LIBRARY("libUSSDUIPlugin.so");

/// Returns the path of the file. `pluginLibrary` is the folder that contains FOLDER.
inline QString path(const QString &pluginLibrary, QLatin1String file)
{
    return pluginLibrary + FOLDER + QLatin1Char('/') + file;
}

} // namespace PluginFiles

} // namespace Formats

#endif
