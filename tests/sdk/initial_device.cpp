/* Prints the kind of the device that the program starts with. */
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
