#ifndef TKSV_INTERNAL_SCENARIOREADER_H
#define TKSV_INTERNAL_SCENARIOREADER_H

#include <optional>
#include <string>
#include <vector>

#include "Complaint.h"
#include "Scenario.h"

namespace tksv
{

/** Either a whole scenario or the complaints, in the order of their lines. */
struct ScenarioResult {
    std::optional<Scenario> scenario;
    std::vector<Complaint> complaints;
};

/// `file` is the name used in complaints and as the scenario's source.
ScenarioResult readScenario(const std::string &text, const std::string &file);
ScenarioResult readScenarioFile(const std::string &path);

} // namespace tksv

#endif
