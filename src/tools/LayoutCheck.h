#ifndef LAYOUTCHECK_H
#define LAYOUTCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Checks the keys, the commands and the geometry in the SMSUSSD section. Adds findings to the
/// report, including the complaints of the plug-in's own parser.
void checkLayout(const XmlElements &elements, const QByteArray &xml, CheckReport &report);

/// Returns the services that the plug-in's own parser finds in the section, as a table.
CheckTable layoutTable(const QByteArray &xml);

} // namespace Tools

#endif
