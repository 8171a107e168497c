/* Prints the type of device that the library uses after it has been loaded. */
#include <cstdio>

#include "tksv_device.h"

int main()
{
    TKSV_DeviceInfo info;
    if (TKSV_Device_GetInfo(&info) != 0)
        return 1;
    std::puts(info.backend == TKSV_BACKEND_SIMULATOR ? "simulator" : "modem");
    return 0;
}
