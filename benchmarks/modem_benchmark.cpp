/*
 * Measures the round trip of a command through the plug-in, the SDK and a real ModemManager on a
 * private bus, whose fake modem replies immediately. The baselines are the round trips of
 * ModemManager's own library and command-line tool. The benchmark then measures complete programs:
 * the time from the start to the first reply, and the CPU load of an idle program. Like the
 * pipeline benchmark, it is built both with log lines, which a handler discards, and without log
 * lines.
 *
 * During the round trips, all threads and the daemon are bound to one core. Otherwise, the time for
 * waking up a sleeping core could exceed the time of an entire library call.
 */
// Include the GLib headers first, because the Qt headers define the macro "signals".
#include "MmClient.h"
#include "ModemWorld.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <spawn.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <vector>

#include <dirent.h>
#include <QCoreApplication>
#include <QEventLoop>
#include <signal.h>
#include <sys/ptrace.h>

#include "Benchmark.h"
#include "requests/USSDLogic.h"
#include "tksv_device.h"

extern char **environ;

namespace
{

#ifdef USSD_NO_LOG_LINES
const bool LOGGED = false;
const char LOG[] = "log lines compiled out";
#else
const bool LOGGED = true;
const char LOG[] = "log lines to a null handler";
#endif

const char NETWORK[] = "[Network]\nOperator=Example\nIMSI=001010000000001\n"
                       "[*100#]\nReply=Your balance is 12.50 EUR.\n"
                       "[*101#]\nReply=Your balance is 12.50 EUR.\nDelay=1\n"
                       "[*103#]\nReply=Account 1\n";
const char CODE[] = "*100#";
const char CODE_ONE_MILLISECOND_LATER[] = "*101#";
const std::vector<std::string> TOOL = {"mmcli", "-m", "any",
                                       std::string("--3gpp-ussd-initiate=") + CODE};
const int ROUND_TRIPS = 200;
const int IDLE_SECONDS = 60;

[[noreturn]] void fail(const std::string &what)
{
    std::fprintf(stderr, "modem_benchmark: %s\n", what.c_str());
    std::exit(1);
}

/// Sends commands through the plug-in's USSDLogic and waits for the replies on the GUI thread.
class Pipeline : public QObject
{
    Q_OBJECT
public:
    Pipeline()
    {
        connect(logic(), SIGNAL(responseReceived(int, QString)), SLOT(take(int, QString)));
    }
    ~Pipeline() override
    {
        logic()->unSDKRegisterEvent();
        USSDLogic::Destroy();
    }

    void sendAndAwait(const char *code)
    {
        int status = 0;
        logic()->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QLatin1String(code)), &status);
        m_loop.exec();
    }

private slots:
    void take(int, const QString &text)
    {
        if (!text.startsWith(QLatin1String("Your balance")))
            fail("no reply: " + text.toStdString());
        m_loop.quit();
    }

private:
    static USSDLogic *logic() { return USSDLogic::GetUSSDLogicInstance(); }

    QEventLoop m_loop;
};

pid_t spawn(const std::vector<std::string> &command)
{
    std::vector<char *> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 1, "/dev/null", 1, 0);
    posix_spawn_file_actions_addopen(&files, 2, "/dev/null", 1, 0);
    pid_t child = 0;
    if (posix_spawnp(&child, arguments[0], &files, nullptr, arguments.data(), environ) != 0)
        fail("cannot start " + command[0]);
    posix_spawn_file_actions_destroy(&files);
    return child;
}

void runToItsEnd(const std::vector<std::string> &command)
{
    int status = 0;
    waitpid(spawn(command), &status, 0);
    if (status != 0)
        fail(command[0] + " has failed");
}

double millisecondsOf(const std::vector<std::string> &command)
{
    return Benchmark::microseconds([&] { runToItsEnd(command); }) / 1000;
}

double valueOf(const std::string &file, const std::string &key)
{
    std::ifstream stream(file);
    std::string word;
    double value = 0;
    while (stream >> word) {
        if (word == key && stream >> value)
            return value;
    }
    return value;
}

/// Returns the peak memory usage of a program in MB. It is read when the program exits. The value
/// from wait4() would include the memory of this process, which the new process shares until it
/// executes the program.
double megabytesOf(const std::vector<std::string> &command)
{
    const pid_t child = spawn(command);
    if (ptrace(PTRACE_SEIZE, child, nullptr, PTRACE_O_TRACEEXIT) != 0)
        fail("cannot trace " + command[0]);
    int status = 0;
    waitpid(child, &status, 0);
    const double kilobytes = valueOf("/proc/" + std::to_string(child) + "/status", "VmHWM:");
    ptrace(PTRACE_DETACH, child, nullptr, nullptr);
    waitpid(child, &status, 0);
    if (status != 0 || kilobytes == 0)
        fail(command[0] + " has failed");
    return kilobytes / 1000;
}

template <typename Trip>
double eachOf(int times, const Trip &trip)
{
    return Benchmark::microseconds([&] {
               for (int i = 0; i < times; ++i)
                   trip();
           }) /
           times;
}

bool waitForRegistration()
{
    for (int i = 0; i < 10000; ++i) {
        TKSV_DeviceInfo info;
        TKSV_Device_GetInfo(&info);
        if (info.state == TKSV_DEVICE_REGISTERED)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
}

/* ---- round trips ------------------------------------------------------------------------- */

const std::string WHAT = std::string("command through plug-in, SDK and ModemManager, ") + LOG;

void compareWithLibrary(Pipeline &pipeline, FakeModems::MmClient &bare, const char *code,
                        const std::string &what)
{
    Benchmark::compare(
        Benchmark::Title(what, "bare libmm-glib", 1.1),
        [&] { return eachOf(ROUND_TRIPS, [&] { pipeline.sendAndAwait(code); }); },
        [&] {
            return eachOf(ROUND_TRIPS, [&] {
                if (bare.initiate(code).text.empty())
                    fail("bare libmm-glib got no reply");
            });
        });
}

void compareRoundTrips(FakeModems::MmClient &bare)
{
    Pipeline pipeline;
    compareWithLibrary(pipeline, bare, CODE, WHAT);
    compareWithLibrary(pipeline, bare, CODE_ONE_MILLISECOND_LATER, WHAT + ", network takes 1 ms");
    const Benchmark::Measurement ours = [&] {
        return eachOf(ROUND_TRIPS, [&] { pipeline.sendAndAwait(CODE); });
    };
    if (LOGGED)
        Benchmark::compare(Benchmark::Title(WHAT, "mmcli", 1), ours,
                           [] { return eachOf(10, [] { runToItsEnd(TOOL); }); });
}

/* ---- complete programs ------------------------------------------------------------------- */

void compareFirstReplies()
{
    const std::vector<std::string> script = {USSD_PROGRAM, "send", CODE};
    Benchmark::compare(
        Benchmark::Title("program start to its end, with a reply (ussd send)", "mmcli", 1.2, "ms"),
        [&] { return millisecondsOf(script); }, [] { return millisecondsOf(TOOL); });
    Benchmark::compare(
        Benchmark::Title("peak resident memory of ussd send", "mmcli", 1.2, "MB"),
        [&] { return megabytesOf(script); }, [] { return megabytesOf(TOOL); });
    const std::vector<std::string> dashboard = {USSD_DASHBOARD, "--send", CODE};
    Benchmark::compare(
        Benchmark::Title("program start to the first reply (ussd-dashboard --send)", "mmcli",
                         Benchmark::NO_LIMIT, "ms"),
        [&] { return millisecondsOf(dashboard); }, [] { return millisecondsOf(TOOL); });
}

/// How often the threads of a process have started to wait, and the CPU time that they have used.
struct Activity {
    double waits = 0;
    double cpuMilliseconds = 0;
};

/// Returns the CPU time of a thread, which is the first number in its schedstat file.
double nanosecondsOnCpu(const std::string &thread)
{
    std::ifstream stream(thread + "/schedstat");
    double nanoseconds = 0;
    stream >> nanoseconds;
    return nanoseconds;
}

Activity activityOf(pid_t process)
{
    const std::string tasks = "/proc/" + std::to_string(process) + "/task";
    Activity sum;
    DIR *folder = opendir(tasks.c_str());
    while (const dirent *entry = folder ? readdir(folder) : nullptr) {
        if (entry->d_name[0] == '.')
            continue;
        const std::string thread = tasks + "/" + entry->d_name;
        sum.waits += valueOf(thread + "/status", "voluntary_ctxt_switches:");
        sum.cpuMilliseconds += nanosecondsOnCpu(thread) / 1e6;
    }
    if (folder)
        closedir(folder);
    return sum;
}

/// Compares the idle dashboard with an idle empty window. Both programs run simultaneously.
void compareIdling()
{
    const pid_t ours = spawn({USSD_DASHBOARD});
    const pid_t empty = spawn({USSD_EMPTY_WINDOW, "--with-field"});
    std::this_thread::sleep_for(std::chrono::seconds(5));
    const Activity before[] = {activityOf(ours), activityOf(empty)};
    std::this_thread::sleep_for(std::chrono::seconds(IDLE_SECONDS));
    const Activity after[] = {activityOf(ours), activityOf(empty)};
    for (const pid_t process : {ours, empty}) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    const char baseline[] = "Qt main window with a text field, whose cursor blinks";
    Benchmark::report(
        Benchmark::Title("wake-ups in an idle minute, with a modem", baseline, 1.05, "×"),
        {after[0].waits - before[0].waits}, {after[1].waits - before[1].waits});
    Benchmark::report(Benchmark::Title("CPU time in an idle minute, with a modem", baseline,
                                       Benchmark::NO_LIMIT, "ms"),
                      {after[0].cpuMilliseconds - before[0].cpuMilliseconds},
                      {after[1].cpuMilliseconds - before[1].cpuMilliseconds});
}

} // namespace

int main(int argc, char **argv)
{
    Benchmark::stayOnCore(0);
    FakeModems::ModemWorld world;
    const std::string problem = world.start();
    if (!problem.empty())
        fail(problem);
    if (!world.addModem("one", NETWORK).empty() || world.enable("one").empty())
        fail("no modem");
    if (world.enable("one").empty())
        fail("the modem does not register");
    setenv("TKSV_BACKEND", "modemmanager", 1);
    const QCoreApplication application(argc, argv);
    Benchmark::dropMessages();
    if (!waitForRegistration())
        fail("the modem does not register");
    FakeModems::MmClient bare(world.busAddress());
    if (!bare.use(world.stateOf("one").object))
        fail("bare libmm-glib has no modem");
    compareRoundTrips(bare);
    if (!LOGGED)
        return 0;
    compareFirstReplies();
    compareIdling();
    return 0;
}

#include "modem_benchmark.moc"
