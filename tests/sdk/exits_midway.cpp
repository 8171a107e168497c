/*
 * A program that exits while the library is busy. The first argument selects when the program
 * exits. The exit status must be the value that the program passes to exit().
 */
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "tksv_device.h"

namespace
{

const int ASKED_EXIT_CODE = 42;

std::atomic<bool> entered(false);
// A pointer, because an object with a destructor would be destroyed while other threads still use
// it.
const char *mode = "";

bool isMode(const char *name)
{
    return std::strcmp(mode, name) == 0;
}

void waitUntilEntered()
{
    while (!entered)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

unsigned char onUssd(int, void *)
{
    entered = true;
    if (isMode("exit-in-callback"))
        std::exit(ASKED_EXIT_CODE);
    while (isMode("callback-hangs"))
        std::this_thread::sleep_for(std::chrono::seconds(1));
    return 1;
}

void request(const char *code)
{
    TKSV_USSDRequest record = {};
    record.length = static_cast<unsigned int>(2 * std::strlen(code));
    for (std::size_t i = 0; code[i]; ++i)
        record.text[i] = static_cast<unsigned char>(code[i]);
    int status = 0;
    TKSV_USSDSrv_Request(&record, &status);
}

/** Calls the library after all other static objects have been destroyed. */
struct LateCaller {
    ~LateCaller()
    {
        request("*100#");
        TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd);
        TKSV_Device_UseScenario(nullptr, nullptr, 0);
    }
};

void busyThread()
{
    for (;;) {
        request("*100#");
        TKSV_USSDSrv_RegisterUSSDCallback(onUssd);
        TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd);
        entered = true;
    }
}

void prepare()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onUssd);
    if (isMode("request-in-flight"))
        return request("*199#");
    if (isMode("other-thread-calls"))
        std::thread(busyThread).detach();
    else
        request("*100#");
    waitUntilEntered();
    if (isMode("exit-in-callback")) {
        for (;;)
            std::this_thread::sleep_for(std::chrono::seconds(1)); // the call-back exits the process
    }
}

int printInfo()
{
    TKSV_DeviceInfo info;
    TKSV_Device_GetInfo(&info);
    TKSV_Device_GetInfo(&info);
    int status = 0;
    TKSV_USSDRequest record = {2, {'1'}};
    const long result = TKSV_USSDSrv_Request(&record, &status);
    std::printf("state %d request %s\n", info.state, result == 0 ? "accepted" : "refused");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    mode = argc > 1 ? argv[1] : "";
    if (isMode("info"))
        return printInfo();
    static const LateCaller lateCaller;
    if (!isMode("never-used"))
        prepare();
    return ASKED_EXIT_CODE;
}
