#ifndef TKSV_INTERNAL_RULECHECK_H
#define TKSV_INTERNAL_RULECHECK_H

#include "KeyFile.h"
#include "Scenario.h"

namespace Tksv
{

/// Checks that the keys of the group's rule are consistent with each other and with the rest of the
/// scenario.
void checkRule(const Scenario &scenario, const KeyFileGroup &group, Complaints &complaints);

} // namespace Tksv

#endif
