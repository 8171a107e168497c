#ifndef LAYOUTCHECK_H
#define LAYOUTCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Checks the SMSUSSD section: the complaints of the plug-in's reader, the keys, the commands and
/// the geometry. Adds findings to the report.
void checkLayout(const XmlElements &elements, const QByteArray &xml, CheckReport &report);

/// Returns the table of the services that the plug-in's reader finds in the section.
CheckTable layoutTable(const QByteArray &xml);

} // namespace Tools

#endif
