#ifndef LAYOUTCHECK_H
#define LAYOUTCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Checks the section SMSUSSD: the complaints of the plug-in's own parser, the keys, the commands
/// and the geometry. Adds findings to the report.
void checkLayout(const XmlElements &elements, const QByteArray &xml, CheckReport &report);

/// Returns the services that the plug-in's own parser finds in the section, as a table.
CheckTable layoutTable(const QByteArray &xml);

} // namespace Tools

#endif
