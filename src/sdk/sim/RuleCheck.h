#ifndef TKSV_INTERNAL_RULECHECK_H
#define TKSV_INTERNAL_RULECHECK_H

#include <set>

#include "KeyFile.h"
#include "Scenario.h"

namespace Tksv
{

/// The names of missing groups to which other groups refer.
using MissingGroups = std::set<std::string>;

/// Checks the keys of the group against the rest of the scenario. If `isComplete` is true, also
/// checks that the keys are consistent with each other. Reports each missing group once and adds it
/// to `missing`.
void checkRule(const Scenario &scenario, const KeyFileGroup &group, bool isComplete,
               MissingGroups &missing, Complaints &complaints);

} // namespace Tksv

#endif
