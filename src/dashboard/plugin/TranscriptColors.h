#ifndef TRANSCRIPTCOLORS_H
#define TRANSCRIPTCOLORS_H

#include <QStringList>

namespace Formats
{
struct PluginConfig;
}

namespace Dashboard
{

/// Returns a warning for each colour of the transcript that is hard to read on the transcript's
/// paper, in the light or in the dark theme.
QStringList paleTranscriptColors(const Formats::PluginConfig &configuration);

/// Logs these warnings for the plug-in's current configuration file. Does nothing if the file
/// cannot be read, because the plug-in reports that itself.
void warnAboutPaleTranscript();

} // namespace Dashboard

#endif
