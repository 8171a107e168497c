#ifndef PLUGINFILES_H
#define PLUGINFILES_H

#include <QLatin1String>
#include <QString>

/* The plug-in's folder below the folder of CommonUtils::GetPluginLibraryPath(), and its files. */
namespace PluginFiles
{

const QLatin1String FOLDER("/plugins/USSDUIPlugin"); // without a separator at its end

const QLatin1String CONFIGURATION("USSDPluginConfig.xml");
const QLatin1String SYSTEM_PROFILES("ussdsysprofile.xml");
const QLatin1String LIBRARY("libUSSDUIPlugin.so");

/// The path of one of the files below the folder `pluginLibrary`.
inline QString path(const QString &pluginLibrary, QLatin1String file)
{
    return pluginLibrary + FOLDER + QLatin1Char('/') + file;
}

} // namespace PluginFiles

#endif
