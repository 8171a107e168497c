#include "PolkitStub.h"

#include <utility>

#include "BusConnection.h"

namespace FakeModems
{

namespace
{

const char INTERFACE[] = R"xml(<node>
  <interface name="org.freedesktop.PolicyKit1.Authority">
    <method name="CheckAuthorization">
      <arg type="(sa{sv})" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="a{ss}" direction="in"/>
      <arg type="u" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="(bba{ss})" direction="out"/>
    </method>
    <signal name="Changed"/>
  </interface>
</node>)xml";

} // namespace

PolkitStub::~PolkitStub()
{
    m_thread.stop();
    closeConnection(m_connection);
}

std::string PolkitStub::start(const std::string &busAddress)
{
    std::string complaint;
    m_thread.call([&] { complaint = publish(busAddress); });
    return complaint;
}

std::string PolkitStub::publish(const std::string &busAddress)
{
    m_connection = connectTo(busAddress);
    if (!m_connection)
        return "polkit stub: no connection to " + busAddress;
    const GDBusInterfaceVTable table = {
        [](GDBusConnection *, const gchar *, const gchar *, const gchar *, const gchar *,
           GVariant *, GDBusMethodInvocation *invocation,
           gpointer self) { static_cast<PolkitStub *>(self)->answer(invocation); },
        nullptr,
        nullptr,
        {}};
    GDBusNodeInfo *const node = g_dbus_node_info_new_for_xml(INTERFACE, nullptr);
    g_dbus_connection_register_object(m_connection, "/org/freedesktop/PolicyKit1/Authority",
                                      node->interfaces[0], &table, this, nullptr, nullptr);
    g_dbus_node_info_unref(node);
    const Reply owned = call(
        m_connection,
        {"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName"},
        g_variant_new("(su)", "org.freedesktop.PolicyKit1", 0));
    return owned.error;
}

void PolkitStub::answer(GDBusMethodInvocation *invocation)
{
    ++m_timesAsked;
    if (m_holdsNext.exchange(false)) {
        m_held = invocation;
        return;
    }
    if (m_fails) {
        g_dbus_method_invocation_return_dbus_error(
            invocation, "org.freedesktop.DBus.Error.ServiceUnknown", "The name is not activatable");
        return;
    }
    g_dbus_method_invocation_return_value(
        invocation, g_variant_new("((bba{ss}))", m_allowed ? TRUE : FALSE, FALSE, nullptr));
}

bool PolkitStub::isHolding()
{
    bool isHolding = false;
    m_thread.call([&] { isHolding = m_held != nullptr; });
    return isHolding;
}

void PolkitStub::answerHeld()
{
    m_thread.call([this] {
        if (GDBusMethodInvocation *const held = std::exchange(m_held, nullptr))
            answer(held);
    });
}

} // namespace FakeModems
