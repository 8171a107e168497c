#ifndef TKSV_INTERNAL_INITIALSCENARIOPATH_H
#define TKSV_INTERNAL_INITIALSCENARIOPATH_H

#include <string>

namespace Tksv
{

/// Returns the path of the initial scenario file: $TKSV_SCENARIO, or else the file that is
/// installed with the library.
std::string initialScenarioPath();

} // namespace Tksv

#endif
