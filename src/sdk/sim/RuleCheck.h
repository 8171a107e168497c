#ifndef TKSV_INTERNAL_RULECHECK_H
#define TKSV_INTERNAL_RULECHECK_H

#include "KeyFile.h"
#include "Scenario.h"

namespace Tksv
{

/// Checks the keys of the group's rule against each other and against the rest of the scenario.
void checkRule(const Scenario &scenario, const KeyFileGroup &group, Complaints &complaints);

} // namespace Tksv

#endif
