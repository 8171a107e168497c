#ifndef CONFIGURATIONCHECK_H
#define CONFIGURATIONCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Checks the configuration except for the SMSUSSD section. The check follows the plug-in's forward
/// scan and adds findings to the report.
void checkConfiguration(const XmlElements &elements, CheckReport &report);

/// Returns the values that the plug-in's own parser reads from the configuration, as tables.
QList<CheckTable> configurationTables(const QByteArray &xml);

} // namespace Tools

#endif
