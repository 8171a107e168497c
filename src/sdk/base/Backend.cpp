#include "Backend.h"

namespace Tksv
{

TKSV_Failure refusalOf(TKSV_DeviceState state)
{
    switch (state) {
    case TKSV_DEVICE_DISABLED:
        return TKSV_FAILURE_DISABLED;
    case TKSV_DEVICE_SEARCHING:
        return TKSV_FAILURE_NOT_REGISTERED;
    case TKSV_DEVICE_REGISTERED:
        return TKSV_FAILURE_NONE;
    default:
        return TKSV_FAILURE_NO_DEVICE;
    }
}

} // namespace Tksv
