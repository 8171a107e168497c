#ifndef CONFIGURATIONCHECK_H
#define CONFIGURATIONCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Checks how the plug-in's forward scan reads all sections except SMSUSSD. Adds findings to the
/// report.
void checkConfiguration(const XmlElements &elements, CheckReport &report);

/// Returns tables of the values that the plug-in's own parser reads from the configuration.
QList<CheckTable> configurationTables(const QByteArray &xml);

} // namespace Tools

#endif
