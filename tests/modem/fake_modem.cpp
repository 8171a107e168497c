/*
 * Runs a real ModemManager with fake modems for manual tests. Each scenario file on the command
 * line describes one modem. The program prints the environment variables that other programs need
 * to find the daemon, and runs until you press Ctrl+C.
 */
#include <csignal>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "ModemWorld.h"

namespace
{

/// Blocks the signals in this thread and in all threads that are created later, so that they can be
/// received with sigwait().
sigset_t blockEndSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

int complain(const std::string &text)
{
    std::fprintf(stderr, "fake_modem: %s\n", text.c_str());
    return 1;
}

std::string readFile(const char *path)
{
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

FakeModems::ModemSettings settingsOf(int number)
{
    FakeModems::ModemSettings settings;
    settings.model = "Fake " + std::to_string(number);
    settings.imei = "35000000000001" + std::to_string(number % 10);
    return settings;
}

} // namespace

int main(int count, char **arguments)
{
    const sigset_t endSignals = blockEndSignals();
    FakeModems::ModemWorld world;
    const std::string complaint = count < 2 ? "usage: fake_modem SCENARIO..." : world.start();
    if (!complaint.empty())
        return complain(complaint);
    for (int i = 1; i < count; ++i) {
        const std::string id = "m" + std::to_string(i);
        const std::string wrong = world.addModem(id, readFile(arguments[i]), settingsOf(i));
        if (!wrong.empty())
            return complain(std::string(arguments[i]) + ": " + wrong);
    }
    std::printf("export DBUS_SYSTEM_BUS_ADDRESS=%s TKSV_BACKEND=modemmanager\n",
                world.busAddress().c_str());
    std::fflush(stdout);
    int signal = 0;
    sigwait(&endSignals, &signal);
    return 0;
}
