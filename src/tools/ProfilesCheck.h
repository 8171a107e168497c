#ifndef PROFILESCHECK_H
#define PROFILESCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

/// What the plug-in's reader makes of a file of profiles. Adds findings and the table.
void checkProfiles(const XmlElements &elements, const QByteArray &xml, CheckReport &report);

#endif
