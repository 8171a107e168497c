#ifndef TKSV_INTERNAL_SCENARIOREADER_H
#define TKSV_INTERNAL_SCENARIOREADER_H

#include <optional>
#include <string>
#include <vector>

#include "Complaint.h"
#include "Scenario.h"

namespace Tksv
{

/** Either a complete scenario or the complaints, sorted by line number. */
struct ScenarioResult {
    std::optional<Scenario> scenario;
    std::vector<Complaint> complaints;
};

/// Parses a scenario. `file` is the file name for the complaints and for Scenario::source.
ScenarioResult readScenario(const std::string &text, const std::string &file);
/// Reads a scenario from a regular file of at most 1 MiB.
ScenarioResult readScenarioFile(const std::string &path);

} // namespace Tksv

#endif
