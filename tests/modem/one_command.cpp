/*
 * one_command CODE reply: sends the code when the modem has registered, and prints the type and the
 * text of the reply.
 *
 * one_command CODE exit: exits as soon as the library has accepted the code.
 */
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <unistd.h>

#include "tksv_device.h"

namespace
{

std::mutex mutex;
std::condition_variable changed;
bool isReady = false;
bool isReplied = false;

/// Called from a thread of the library.
void infoChanged(void *)
{
    TKSV_DeviceInfo info;
    TKSV_Device_GetInfo(&info);
    const std::lock_guard<std::mutex> lock(mutex);
    isReady = isReady || info.state == TKSV_DEVICE_REGISTERED;
    changed.notify_all();
}

unsigned char onReply(int, void *data)
{
    const auto *response = static_cast<const TKSV_USSDResponse *>(data);
    std::printf("%d ", response->type);
    for (const unsigned short *unit = response->text; *unit; ++unit)
        std::putchar(*unit < 0x80 ? *unit : '?');
    std::putchar('\n');
    const std::lock_guard<std::mutex> lock(mutex);
    isReplied = true;
    changed.notify_all();
    return 1;
}

void waitFor(const bool &condition)
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [&] { return condition; });
}

} // namespace

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    alarm(60); // ends the program if no reply arrives
    TKSV_USSDSrv_RegisterUSSDCallback(onReply);
    TKSV_Device_SetInfoCallback(infoChanged, nullptr);
    infoChanged(nullptr);
    waitFor(isReady);
    TKSV_USSDRequest request = {};
    for (const char *c = arguments[1]; *c; ++c)
        request.text[request.length++] = static_cast<unsigned char>(*c);
    request.length *= 2;
    int status = 0;
    if (TKSV_USSDSrv_Request(&request, &status) != 0)
        return 1;
    if (std::strcmp(arguments[2], "reply") == 0)
        waitFor(isReplied);
    TKSV_Device_SetInfoCallback(nullptr, nullptr);
    return 0;
}
