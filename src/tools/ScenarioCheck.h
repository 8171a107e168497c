#ifndef SCENARIOCHECK_H
#define SCENARIOCHECK_H

#include <QByteArray>

#include "CheckReport.h"

/// What the simulated network's reader makes of a scenario file. Adds findings and the table.
void checkScenario(const QByteArray &content, CheckReport &report);

#endif
