#include "AppActions.h"

namespace Dashboard
{

AppActions::~AppActions() = default;

} // namespace Dashboard
