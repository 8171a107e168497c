#ifndef TKSV_INTERNAL_RULECHECK_H
#define TKSV_INTERNAL_RULECHECK_H

#include "KeyFile.h"
#include "Scenario.h"

namespace tksv
{

/// Checks the rule of the group: its keys against each other, and what it asks of the rest.
void checkRule(const Scenario &scenario, const KeyFileGroup &group, Complaints &complaints);

} // namespace tksv

#endif
