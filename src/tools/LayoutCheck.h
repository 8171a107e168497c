#ifndef LAYOUTCHECK_H
#define LAYOUTCHECK_H

#include "CheckReport.h"
#include "XmlElements.h"

namespace Tools
{

/// Checks the SMSUSSD section: the complaints of the plug-in's layout parser, the text keys and the
/// commands. Adds findings and tables to the report.
void checkLayout(const XmlElements &elements, const QByteArray &xml, CheckReport &report);

} // namespace Tools

#endif
