#ifndef TRANSCRIPTCOLORS_H
#define TRANSCRIPTCOLORS_H

#include <QStringList>

namespace Formats
{
struct PluginConfig;
}

namespace Dashboard
{

/// Returns a warning for each configured colour of the transcript whose contrast with the
/// background is too low in the light or in the dark theme.
QStringList paleTranscriptColors(const Formats::PluginConfig &configuration);

/// Logs the warnings of paleTranscriptColors() for the current configuration of the plug-in. Does
/// nothing if the file cannot be read, because the plug-in reports this error.
void warnAboutPaleTranscript();

} // namespace Dashboard

#endif
