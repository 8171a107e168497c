#include "ModemWatch.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace Tksv
{

namespace
{

/// The maximum number of attempts to create the MMManager. An attempt fails while ModemManager is
/// starting up, because it acquires its bus name shortly before it exports its objects.
const int START_UP_TRIES = 50;
const std::chrono::milliseconds START_UP_PAUSE(100);

/// Returns the number at the end of the object's path. Newer modems have higher numbers:
/// ".../Modem/12" is newer than ".../Modem/3".
long modemNumberOf(MMObject *object)
{
    const std::string path = textOf(mm_object_get_path(object));
    return std::strtol(path.c_str() + path.rfind('/') + 1, nullptr, 10);
}

/// Returns the address of the system bus, or an empty string if it is unknown.
std::string systemBusAddress()
{
    ErrorSlot error;
    const GMemory<char> address(
        g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, error.slot()));
    return textOf(address.get());
}

} // namespace

TKSV_DeviceState stateOf(MMModem *modem)
{
    const MMModemState state = mm_modem_get_state(modem);
    if (state == MM_MODEM_STATE_FAILED &&
        mm_modem_get_state_failed_reason(modem) == MM_MODEM_STATE_FAILED_REASON_SIM_MISSING)
        return TKSV_DEVICE_SIM_MISSING;
    if (state == MM_MODEM_STATE_LOCKED)
        return TKSV_DEVICE_SIM_LOCKED;
    if (state >= MM_MODEM_STATE_REGISTERED)
        return TKSV_DEVICE_REGISTERED;
    return state >= MM_MODEM_STATE_ENABLED ? TKSV_DEVICE_SEARCHING : TKSV_DEVICE_DISABLED;
}

std::string nameOf(MMModem *modem)
{
    const std::string maker = textOf(mm_modem_get_manufacturer(modem));
    const std::string model = textOf(mm_modem_get_model(modem));
    return maker.empty() || model.empty() ? maker + model : maker + " " + model;
}

bool hasInterface(MMObject *object, const char *name)
{
    const GObjectPtr<GDBusInterface> found(
        g_dbus_object_get_interface(G_DBUS_OBJECT(object), name));
    return found != nullptr;
}

std::string equipmentIdOf(MMObject *object)
{
    if (!hasInterface(object, MM_DBUS_INTERFACE_MODEM))
        return std::string();
    MMModem *modem = mm_object_peek_modem(object);
    const std::string imei = textOf(mm_modem_get_equipment_identifier(modem));
    return imei.empty() ? textOf(mm_modem_get_device_identifier(modem)) : imei;
}

constexpr std::chrono::milliseconds ModemWatch::SILENCE_LIMIT;

ModemWatch::ModemWatch(Changed changed, std::chrono::milliseconds silenceLimit)
    : m_thread("tksv-modems"), m_changed(std::move(changed)), m_silenceLimit(silenceLimit)
{
}

void ModemWatch::start()
{
    if (!m_started)
        m_thread.start();
    m_started = true;
    m_thread.post([this] { connectToBus(); });
}

/// Stops the thread. Pending calls are cancelled first, so that an unresponsive ModemManager cannot
/// delay the exit of the program.
void ModemWatch::stop()
{
    g_cancellable_cancel(m_cancellable.get());
    m_thread.stop([this] {
        m_signals.disconnectAll();
        m_modemSignals.disconnectAll();
        m_manager.reset();
        if (m_bus) // otherwise, the call that ends an open session might not be sent
            g_dbus_connection_flush_sync(m_bus.get(), nullptr, nullptr);
        m_bus.reset();
    });
}

/// Opens a private connection to the bus. With the shared connection of g_bus_get(), the program
/// would be terminated if the bus closed the connection.
void ModemWatch::connectToBus()
{
    if (m_bus && !m_isPinging)
        return pingService(0);
    if (m_bus || m_isConnecting)
        return;
    m_isConnecting = true;
    const std::string address = systemBusAddress();
    const AsyncDone done = [this](GObject *, GAsyncResult *result) {
        ErrorSlot error;
        const GObjectPtr<GDBusConnection> bus(
            g_dbus_connection_new_for_address_finish(result, error.slot()));
        if (bus || !g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED))
            busConnected(bus.get());
    };
    const auto flags =
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    g_dbus_connection_new_for_address(address.c_str(), flags, nullptr, m_cancellable.get(),
                                      runAsyncDone, asyncDone(done));
}

void ModemWatch::busConnected(GDBusConnection *bus)
{
    m_isConnecting = false;
    if (!bus)
        return setState(ServiceState::NoBus);
    m_bus = shareObject(bus);
    m_signals.on(bus, "closed", [this] { busClosed(); });
    pingService(START_UP_TRIES);
}

/// Requests ModemManager's version asynchronously. createManager() blocks and is therefore called
/// only after ModemManager has responded. If ModemManager is not running, the request fails
/// immediately.
void ModemWatch::pingService(int triesLeft)
{
    m_isPinging = true;
    startSilenceTimer();
    const AsyncDone done = [this, triesLeft](GObject *bus, GAsyncResult *result) {
        m_isPinging = false;
        ErrorSlot ignored;
        const GVariantPtr answer(
            g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, ignored.slot()));
        setSilent(false);
        if (G_OBJECT(m_bus.get()) == bus && !m_manager)
            createManager(triesLeft);
    };
    g_dbus_connection_call(
        m_bus.get(), MM_DBUS_SERVICE, MM_DBUS_PATH, "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", MM_DBUS_SERVICE, "Version"), nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START,
        G_MAXINT, m_cancellable.get(), runAsyncDone, asyncDone(done));
}

void ModemWatch::startSilenceTimer()
{
    m_thread.after(m_silenceLimit, [this, ping = ++m_pingCount] {
        if (m_isPinging && ping == m_pingCount)
            setSilent(true);
    });
}

void ModemWatch::setSilent(bool isSilent)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (std::exchange(m_isSilent, isSilent) == isSilent)
            return;
    }
    m_changed();
}

/// Creates the MMManager synchronously. If it were created asynchronously, GLib would use a worker
/// thread, and the object's signals would be delivered to the program's main context, which may not
/// be running. The call does not start ModemManager, because this is the system administrator's
/// decision.
void ModemWatch::createManager(int triesLeft)
{
    ErrorSlot error;
    const GObjectPtr<MMManager> manager(
        mm_manager_new_sync(m_bus.get(), G_DBUS_OBJECT_MANAGER_CLIENT_FLAGS_DO_NOT_AUTO_START,
                            m_cancellable.get(), error.slot()));
    if (manager)
        return managerCreated(manager.get());
    if (g_cancellable_is_cancelled(m_cancellable.get()))
        return;
    if (triesLeft == 0)
        return setState(ServiceState::NoService);
    m_thread.after(START_UP_PAUSE, [this, triesLeft] {
        if (m_bus && !m_manager && !m_isPinging)
            pingService(triesLeft - 1);
    });
}

/// Releases everything that depends on the connection, so that start() can connect again.
void ModemWatch::busClosed()
{
    m_signals.disconnectAll();
    m_modemSignals.disconnectAll();
    m_manager.reset();
    m_bus.reset();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_modems.clear();
        m_isSilent = false;
    }
    setState(ServiceState::NoBus);
}

void ModemWatch::managerCreated(MMManager *manager)
{
    m_manager = shareObject(manager);
    for (const char *signal : {"object-added", "object-removed", "interface-added",
                               "interface-removed", "notify::name-owner"})
        m_signals.on(manager, signal, [this] { refresh(); });
    refresh();
}

void ModemWatch::refresh()
{
    std::vector<ModemSummary> modems;
    m_modemSignals.disconnectAll();
    for (const GObjectPtr<MMObject> &object : objects()) {
        MMModem *const modem = mm_object_peek_modem(object.get());
        modems.push_back(ModemSummary{equipmentIdOf(object.get()), nameOf(modem), stateOf(modem)});
        m_modemSignals.onPropertiesChanged(modem,
                                           [this](GVariant *changed) { modemChanged(changed); });
    }
    const GMemory<char> owner(
        g_dbus_object_manager_client_get_name_owner(G_DBUS_OBJECT_MANAGER_CLIENT(m_manager.get())));
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_modems = std::move(modems);
    }
    setState(owner ? ServiceState::Running : ServiceState::NoService);
}

/// Refreshes the list of modems if the modem's state has changed. The choice of the modem in use
/// may depend on the state of any modem.
void ModemWatch::modemChanged(GVariant *changed)
{
    const GVariantPtr state(g_variant_lookup_value(changed, "State", nullptr));
    if (state)
        refresh();
}

/// Returns the modems with a known identifier, oldest first.
std::vector<GObjectPtr<MMObject>> ModemWatch::objects() const
{
    std::vector<GObjectPtr<MMObject>> found;
    GList *all = m_manager
                     ? g_dbus_object_manager_get_objects(G_DBUS_OBJECT_MANAGER(m_manager.get()))
                     : nullptr;
    for (GList *item = all; item; item = item->next) {
        GObjectPtr<MMObject> object(MM_OBJECT(item->data));
        if (!equipmentIdOf(object.get()).empty())
            found.push_back(std::move(object));
    }
    g_list_free(all);
    std::sort(found.begin(), found.end(),
              [](const GObjectPtr<MMObject> &a, const GObjectPtr<MMObject> &b) {
                  return modemNumberOf(a.get()) < modemNumberOf(b.get());
              });
    return found;
}

GObjectPtr<MMObject> ModemWatch::find(const std::string &equipmentId) const
{
    GObjectPtr<MMObject> found;
    for (GObjectPtr<MMObject> &object : objects()) {
        const bool fits = equipmentId.empty() || equipmentIdOf(object.get()) == equipmentId;
        const bool isReady =
            fits && stateOf(mm_object_peek_modem(object.get())) == TKSV_DEVICE_REGISTERED;
        if (isReady || (fits && !found))
            found = std::move(object);
        if (isReady)
            break;
    }
    return found;
}

GObjectPtr<MMObject> ModemWatch::findAt(const std::string &path) const
{
    for (GObjectPtr<MMObject> &object : objects()) {
        if (textOf(mm_object_get_path(object.get())) == path)
            return std::move(object);
    }
    return nullptr;
}

std::vector<ModemSummary> ModemWatch::modems() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_modems;
}

ServiceState ModemWatch::state() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state;
}

bool ModemWatch::isSilent() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isSilent;
}

void ModemWatch::setState(ServiceState state)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state = state;
    }
    m_changed();
}

} // namespace Tksv
