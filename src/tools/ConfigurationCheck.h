#ifndef CONFIGURATIONCHECK_H
#define CONFIGURATIONCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

/// What the plug-in's forward scan makes of all sections but SMSUSSD.
void checkConfiguration(const XmlElements &elements, CheckReport &report);

/// The finished tables, read by the plug-in's own reader.
QList<CheckTable> configurationTables(const QByteArray &xml);

#endif
