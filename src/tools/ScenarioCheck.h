#ifndef SCENARIOCHECK_H
#define SCENARIOCHECK_H

#include <QByteArray>

#include "CheckReport.h"

namespace Tools
{

/// Checks a scenario file as the simulated network would read it. Adds findings and a table to the
/// report.
void checkScenario(const QByteArray &content, CheckReport &report);

} // namespace Tools

#endif
