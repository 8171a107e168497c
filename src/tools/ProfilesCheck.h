#ifndef PROFILESCHECK_H
#define PROFILESCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Checks how the plug-in reads a profile file. Adds findings and the table to the report.
void checkProfiles(const XmlElements &elements, const QByteArray &xml, CheckReport &report);

} // namespace Tools

#endif
