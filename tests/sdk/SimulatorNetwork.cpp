/* Implements SdkFixture::useNetwork() with the simulator. */
#include <cstdio>
#include <fstream>
#include <unistd.h>

#include "SdkFixture.h"
#include "tksv_device.h"

namespace SdkFixture
{

std::string useNetwork(const std::string &scenario)
{
    char path[] = "/tmp/sdk-test-XXXXXX";
    const int descriptor = mkstemp(path);
    if (descriptor < 0)
        return "no temporary file";
    close(descriptor);
    std::ofstream(path) << scenario;
    char message[4096] = "";
    TKSV_Device_UseScenario(path, message, sizeof message);
    std::remove(path);
    return message;
}

Abilities abilities()
{
    return Abilities();
}

} // namespace SdkFixture
