#ifndef TKSV_INTERNAL_SCENARIOPLACE_H
#define TKSV_INTERNAL_SCENARIOPLACE_H

#include <string>

namespace tksv
{

/// The scenario file to start with: $TKSV_SCENARIO, else the one that comes with the library.
std::string initialScenarioPath();

} // namespace tksv

#endif
