#ifndef TKSV_INTERNAL_INITIALSCENARIOPATH_H
#define TKSV_INTERNAL_INITIALSCENARIOPATH_H

#include <string>

namespace Tksv
{

/// Returns the path of the initial scenario file. This is $TKSV_SCENARIO if the variable is set,
/// otherwise the file that is installed with the library.
std::string initialScenarioPath();

} // namespace Tksv

#endif
