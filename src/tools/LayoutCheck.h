#ifndef LAYOUTCHECK_H
#define LAYOUTCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

/// What the plug-in's reader makes of the SMSUSSD section: its own complaints, keys and commands.
/// Adds findings and tables.
void checkLayout(const XmlElements &elements, const QByteArray &xml, CheckReport &report);

#endif
