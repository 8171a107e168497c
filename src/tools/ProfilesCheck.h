#ifndef PROFILESCHECK_H
#define PROFILESCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Returns the names of the elements of a profile, in their order.
QStringList profileFields();

/// Checks how the plug-in reads a file of profiles. Adds findings to the report.
void checkProfiles(const XmlElements &elements, CheckReport &report);

/// Returns tables of the profiles that the plug-in's own reader finds, and of their buttons.
QList<CheckTable> profileTables(const QByteArray &xml);

} // namespace Tools

#endif
