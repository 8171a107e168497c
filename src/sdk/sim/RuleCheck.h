#ifndef TKSV_INTERNAL_RULECHECK_H
#define TKSV_INTERNAL_RULECHECK_H

#include <set>

#include "KeyFile.h"
#include "Scenario.h"

namespace Tksv
{

/// The names of groups that other groups refer to, and that do not exist.
using MissingGroups = std::set<std::string>;

/// Checks the keys of the group's rule against the rest of the scenario and, if the group has no
/// other mistake, against each other. Reports each missing group once, and adds it to `missing`.
void checkRule(const Scenario &scenario, const KeyFileGroup &group, bool isComplete,
               MissingGroups &missing, Complaints &complaints);

} // namespace Tksv

#endif
