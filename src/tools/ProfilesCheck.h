#ifndef PROFILESCHECK_H
#define PROFILESCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Returns the names of a profile's elements in the required order.
QStringList profileFields();

/// Checks a profile file as the plug-in would read it. Adds findings to the report.
void checkProfiles(const XmlElements &elements, CheckReport &report);

/// Returns tables of the profiles that the plug-in's own parser reads, and of their buttons.
QList<CheckTable> profileTables(const QByteArray &xml);

} // namespace Tools

#endif
