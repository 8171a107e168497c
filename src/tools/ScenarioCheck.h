#ifndef SCENARIOCHECK_H
#define SCENARIOCHECK_H

#include <QByteArray>

#include "CheckReport.h"

namespace Tools
{

/// Checks how the simulated network reads a scenario file. Adds findings and the table to the
/// report.
void checkScenario(const QByteArray &content, CheckReport &report);

} // namespace Tools

#endif
