#ifndef TKSV_INTERNAL_INITIALSCENARIOPATH_H
#define TKSV_INTERNAL_INITIALSCENARIOPATH_H

#include <string>

namespace Tksv
{

/// Returns the path of the initial scenario file. The path is $TKSV_SCENARIO if it is set,
/// otherwise the path of the file that is installed with the library.
std::string initialScenarioPath();

} // namespace Tksv

#endif
