#include "PrivateBus.h"

#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <unistd.h>

namespace FakeModems
{

namespace
{

const int START_LIMIT = 10000; // in milliseconds
const std::chrono::milliseconds STOP_LIMIT(1000);

void writeConfiguration(const std::string &path, const std::string &address)
{
    std::ofstream(path) << "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus "
                           "Configuration 1.0//EN\"\n"
                           " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                           "<busconfig>\n"
                           "  <type>custom</type>\n"
                        << "  <listen>" << address << "</listen>\n"
                        << "  <auth>EXTERNAL</auth>\n"
                           "  <policy context=\"default\">\n"
                           "    <allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
                           "    <allow eavesdrop=\"true\"/>\n"
                           "    <allow own=\"*\"/>\n"
                           "  </policy>\n"
                           "</busconfig>\n";
}

/// Waits until the bus daemon writes its address, which means that it accepts connections.
bool waitForLine(int descriptor)
{
    pollfd entry = {descriptor, POLLIN, 0};
    char first = 0;
    return ::poll(&entry, 1, START_LIMIT) == 1 && ::read(descriptor, &first, 1) == 1;
}

} // namespace

std::string PrivateBus::start(const std::string &folder)
{
    m_address = "unix:path=" + folder + "/bus";
    const std::string configuration = folder + "/bus.conf";
    writeConfiguration(configuration, m_address);
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return "no pipe for the bus";
    const bool started =
        m_process.start({"dbus-daemon", "--config-file=" + configuration, "--nofork", "--nopidfile",
                         "--print-address=" + std::to_string(ends[1])},
                        folder + "/bus.log", ends[1]);
    ::close(ends[1]);
    const bool listens = started && waitForLine(ends[0]);
    ::close(ends[0]);
    return listens ? std::string() : "dbus-daemon does not start: is it installed?";
}

void PrivateBus::stop()
{
    m_process.stop(STOP_LIMIT);
}

} // namespace FakeModems
