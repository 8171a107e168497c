#include "ModemWorld.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <utility>

#include "sim/ScenarioReader.h"

namespace FakeModems
{

namespace
{

const char SERVICE[] = "org.freedesktop.ModemManager1";
const char ROOT[] = "/org/freedesktop/ModemManager1";
const char MODEM_INTERFACE[] = "org.freedesktop.ModemManager1.Modem";
const char ADDRESS_VARIABLE[] = "DBUS_SYSTEM_BUS_ADDRESS";

const std::chrono::seconds WAIT_LIMIT(10);
/// The time limit after which the daemon is killed. A daemon that is waiting for an answer would
/// take 20 s to end.
const std::chrono::milliseconds STOP_LIMIT(3000);
const std::size_t TAIL_SIZE = 6000;

std::string deviceOf(const std::string &id)
{
    return "/virtual/" + id;
}

int numberOf(GVariant *dictionary, const char *key, const char *type)
{
    gint32 number = -1;
    g_variant_lookup(dictionary, key, type, &number);
    return number;
}

/// Reads the state of the modem. Returns false if the interfaces do not belong to this device.
bool readModem(GVariant *interfaces, const std::string &device, ModemState &state)
{
    GVariant *found = g_variant_lookup_value(interfaces, MODEM_INTERFACE, G_VARIANT_TYPE_VARDICT);
    if (!found)
        return false;
    const VariantPtr properties(found);
    const char *name = "";
    g_variant_lookup(properties.get(), "Device", "&s", &name);
    if (device != name)
        return false;
    state.state = numberOf(properties.get(), "State", "i");
    state.lock = numberOf(properties.get(), "UnlockRequired", "u");
    g_variant_lookup(properties.get(), "CurrentModes", "(uu)", &state.allowedModes,
                     &state.preferredModes);
    const auto has = [&](const char *interface) {
        return VariantPtr(g_variant_lookup_value(interfaces, interface, nullptr)) != nullptr;
    };
    state.hasUssd = has("org.freedesktop.ModemManager1.Modem.Modem3gpp.Ussd");
    state.hasMessaging = has("org.freedesktop.ModemManager1.Modem.Messaging");
    return true;
}

gboolean wakeUp(gpointer)
{
    return G_SOURCE_CONTINUE;
}

/** Wakes up the main context of the thread after each D-Bus signal, and every 50 ms. */
class Wakeups
{
public:
    explicit Wakeups(GDBusConnection *connection)
        : m_connection(connection), m_context(g_main_context_new())
    {
        g_main_context_push_thread_default(m_context);
        m_subscription = g_dbus_connection_signal_subscribe(
            connection, nullptr, nullptr, nullptr, nullptr, nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
            [](GDBusConnection *, const gchar *, const gchar *, const gchar *, const gchar *,
               GVariant *, gpointer) {},
            nullptr, nullptr);
        m_timer = g_timeout_source_new(50); // for conditions that are not reported by a signal
        g_source_set_callback(m_timer, wakeUp, nullptr, nullptr);
        g_source_attach(m_timer, m_context);
    }
    ~Wakeups()
    {
        g_source_destroy(m_timer);
        g_source_unref(m_timer);
        g_dbus_connection_signal_unsubscribe(m_connection, m_subscription);
        g_main_context_pop_thread_default(m_context);
        g_main_context_unref(m_context);
    }
    Wakeups(const Wakeups &) = delete;
    Wakeups &operator=(const Wakeups &) = delete;

    void wait() { g_main_context_iteration(m_context, TRUE); }

private:
    GDBusConnection *const m_connection;
    GMainContext *const m_context;
    guint m_subscription = 0;
    GSource *m_timer = nullptr;
};

std::string readFile(const std::string &path)
{
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

void removeFolder(const std::string &folder)
{
    GDir *const entries = g_dir_open(folder.c_str(), 0, nullptr);
    while (const char *name = entries ? g_dir_read_name(entries) : nullptr)
        std::remove((folder + "/" + name).c_str());
    if (entries)
        g_dir_close(entries);
    std::remove(folder.c_str());
}

} // namespace

ModemWorld::ModemWorld() = default;

/// Stops the daemon before the modems are destroyed. Otherwise, the daemon would wait for their
/// answers.
ModemWorld::~ModemWorld()
{
    for (const auto &entry : m_modems)
        entry.second->onPlugChange(nullptr);
    m_thread.call([] {}); // processes the changes that the modems have posted
    stopDaemon();
    m_modems.clear();
    m_polkit.reset();
    closeConnection(m_connection);
    m_bus.stop();
    if (!m_folder.empty())
        removeFolder(m_folder);
    if (!m_addressBefore.empty())
        g_setenv(ADDRESS_VARIABLE, m_addressBefore.c_str(), TRUE);
}

std::string ModemWorld::start()
{
    // The path must be short, because it is part of socket names. Therefore, TMPDIR is not used.
    char folder[] = "/tmp/modem-XXXXXX";
    if (!mkdtemp(folder))
        return "no temporary folder";
    m_folder = folder;
    std::string complaint = m_bus.start(m_folder);
    if (!complaint.empty())
        return complaint;
    const char *const before = std::getenv(ADDRESS_VARIABLE);
    m_addressBefore = before ? before : "unix:path=/nonexistent";
    g_setenv(ADDRESS_VARIABLE, m_bus.address().c_str(), TRUE);
    m_connection = connectTo(m_bus.address());
    m_polkit = std::make_unique<PolkitStub>();
    complaint = m_polkit->start(m_bus.address());
    if (complaint.empty() && !startDaemon())
        complaint = "ModemManager does not start: is it installed?\n" + logTail();
    return complaint;
}

/* ---- the daemon -------------------------------------------------------------------------- */

bool ModemWorld::startDaemon()
{
    bool started = false;
    m_thread.call([&] { started = launchDaemon(); });
    return started;
}

bool ModemWorld::launchDaemon()
{
    const std::lock_guard<std::mutex> daemonLock(m_daemonMutex);
    const char *const level = std::getenv("USSD_MODEM_LOG"); // DEBUG also logs the AT commands
    if (!m_daemon.start({"ModemManager", "--test-enable", "--test-no-udev",
                         "--test-no-suspend-resume", "--test-no-qrtr", "--no-auto-scan",
                         "--log-file=" + m_folder + "/daemon.log",
                         std::string("--log-level=") + (level ? level : "INFO")},
                        m_folder + "/daemon.out"))
        return false;
    if (!waitUntil([this] { return !daemonOwner().empty() || !m_daemon.isRunning(); }) ||
        !m_daemon.isRunning())
        return false;
    for (const auto &entry : m_modems) {
        if (entry.second->isPresent())
            announce(entry.first);
    }
    return true;
}

void ModemWorld::stopDaemon()
{
    const std::lock_guard<std::mutex> lock(m_daemonMutex);
    m_daemon.stop(STOP_LIMIT);
}

void ModemWorld::killDaemon()
{
    const std::lock_guard<std::mutex> lock(m_daemonMutex);
    m_daemon.kill();
}

void ModemWorld::pauseDaemon()
{
    const std::lock_guard<std::mutex> lock(m_daemonMutex);
    m_daemon.pause();
}

void ModemWorld::resumeDaemon()
{
    const std::lock_guard<std::mutex> lock(m_daemonMutex);
    m_daemon.resume();
}

bool ModemWorld::isDaemonRunning()
{
    const std::lock_guard<std::mutex> lock(m_daemonMutex);
    return m_daemon.isRunning();
}

std::string ModemWorld::daemonOwner()
{
    const Reply reply = call(
        m_connection,
        {"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner"},
        g_variant_new("(s)", SERVICE));
    if (!reply.value)
        return std::string();
    const char *owner = "";
    g_variant_get(reply.value.get(), "(&s)", &owner);
    return owner;
}

std::string ModemWorld::logTail()
{
    const std::string log = readFile(m_folder + "/daemon.log") + readFile(m_folder + "/daemon.out");
    return log.size() > TAIL_SIZE ? log.substr(log.size() - TAIL_SIZE) : log;
}

/* ---- the hardware ------------------------------------------------------------------------ */

std::string ModemWorld::addModem(const std::string &id, const std::string &scenario,
                                 const ModemSettings &settings, FakeModem::Clock clock)
{
    if (hasModem(id))
        unplug(id);
    m_thread.call([&] { m_modems.erase(id); }); // releases the socket before the new modem uses it
    auto modem = std::make_unique<FakeModem>(m_folder + "/" + id, settings);
    modem->onPlugChange(
        [this, id](PlugChange change) { m_thread.post([=] { plugChanged(id, change); }); });
    m_thread.call([&] { m_modems[id] = std::move(modem); });
    return useScenario(id, scenario, clock);
}

std::string ModemWorld::useScenario(const std::string &id, const std::string &scenario,
                                    FakeModem::Clock clock)
{
    Tksv::ScenarioResult result = Tksv::readScenario(scenario, id + ".scenario");
    if (!result.scenario)
        return Tksv::describe(result.complaints);
    unplug(id);
    modem(id).useScenario(*std::move(result.scenario), clock);
    if (modem(id).isPresent())
        plugIn(id);
    return std::string();
}

/// Announces the device to the daemon again. The daemon deletes the existing object as if the
/// device had been unplugged, and creates a new one only if the port is open. Inhibiting the device
/// instead is not possible, because the daemon would disable the device first.
void ModemWorld::setProfile(const std::string &id, const std::string &port)
{
    const char *const ports[] = {port.c_str(), nullptr};
    send(m_connection, {SERVICE, ROOT, "org.freedesktop.ModemManager1.Test", "SetProfile"},
         g_variant_new("(ss^as)", id.c_str(), modem(id).plugin().c_str(), ports));
}

void ModemWorld::announce(const std::string &id)
{
    setProfile(id, modem(id).port());
}

void ModemWorld::withdraw(const std::string &id)
{
    setProfile(id, modem(id).port() + ".gone");
}

void ModemWorld::unplug(const std::string &id)
{
    withdraw(id);
    waitUntil([&] { return stateOf(id).object.empty(); });
    modem(id).unplug();
}

void ModemWorld::plugIn(const std::string &id)
{
    modem(id).plugIn();
    announce(id);
}

/// Runs on the world's thread. To clients, a reset of a modem that stays plugged in looks like a
/// restart of the daemon, so the daemon is restarted. It is killed before the port is closed, so
/// that it cannot disable the modem.
void ModemWorld::plugChanged(const std::string &id, PlugChange change)
{
    if (!hasModem(id))
        return; // a new modem is about to replace this one
    switch (change) {
    case PlugChange::Gone:
        modem(id).unplug();
        return withdraw(id);
    case PlugChange::Reset:
        killDaemon();
        return modem(id).unplug();
    case PlugChange::Back:
        modem(id).plugIn();
        if (isDaemonRunning())
            announce(id);
        else
            launchDaemon();
        return;
    case PlugChange::Changed:
        return announce(id);
    }
}

/* ---- the daemon's reports ---------------------------------------------------------------- */

VariantPtr ModemWorld::managedObjects()
{
    return call(m_connection,
                {SERVICE, ROOT, "org.freedesktop.DBus.ObjectManager", "GetManagedObjects"}, nullptr)
        .value;
}

ModemState ModemWorld::stateOf(const std::string &id)
{
    ModemState state;
    const VariantPtr objects = managedObjects();
    if (!objects)
        return state;
    const VariantPtr list(g_variant_get_child_value(objects.get(), 0));
    for (gsize i = 0; i < g_variant_n_children(list.get()); ++i) {
        const VariantPtr entry(g_variant_get_child_value(list.get(), i));
        const VariantPtr path(g_variant_get_child_value(entry.get(), 0));
        const VariantPtr interfaces(g_variant_get_child_value(entry.get(), 1));
        if (readModem(interfaces.get(), deviceOf(id), state))
            state.object = g_variant_get_string(path.get(), nullptr);
    }
    return state;
}

std::string ModemWorld::waitForState(const std::string &id, int atLeast)
{
    ModemState state;
    const bool reached = waitUntil([&] {
        state = stateOf(id);
        return !state.object.empty() && state.state >= atLeast;
    });
    return reached ? state.object : std::string();
}

std::string ModemWorld::switchOn(const std::string &id)
{
    std::string object = waitForState(id, STATE_DISABLED);
    if (object.empty())
        return object;
    const Reply reply = call(m_connection, {SERVICE, object, MODEM_INTERFACE, "Enable"},
                             g_variant_new("(b)", TRUE));
    return reply.value ? object : std::string();
}

bool ModemWorld::switchOff(const std::string &id)
{
    const std::string object = stateOf(id).object;
    const Reply reply = call(m_connection, {SERVICE, object, MODEM_INTERFACE, "Enable"},
                             g_variant_new("(b)", FALSE));
    return reply.value != nullptr;
}

std::string ModemWorld::enable(const std::string &id)
{
    return switchOn(id).empty() ? std::string() : waitForState(id, STATE_REGISTERED);
}

bool ModemWorld::waitUntil(const std::function<bool()> &condition)
{
    const auto end = std::chrono::steady_clock::now() + WAIT_LIMIT;
    Wakeups wakeups(m_connection);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        wakeups.wait();
    }
    return true;
}

} // namespace FakeModems
