#include "BusConnection.h"

#include <utility>

namespace FakeModems
{

namespace
{
const int CALL_LIMIT = 10000; // in milliseconds
}

GDBusConnection *connectTo(const std::string &busAddress)
{
    const auto flags =
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    return g_dbus_connection_new_for_address_sync(busAddress.c_str(), flags, nullptr, nullptr,
                                                  nullptr);
}

void closeConnection(GDBusConnection *&connection)
{
    GDBusConnection *const closed = std::exchange(connection, nullptr);
    if (!closed)
        return;
    g_dbus_connection_close_sync(closed, nullptr, nullptr);
    g_object_unref(closed);
}

Reply call(GDBusConnection *connection, const Method &method, GVariant *arguments)
{
    GError *error = nullptr;
    Reply reply;
    reply.value.reset(g_dbus_connection_call_sync(
        connection, method.service.c_str(), method.object.c_str(), method.interface.c_str(),
        method.name.c_str(), arguments, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, CALL_LIMIT,
        nullptr, &error));
    if (error)
        reply.error = error->message;
    g_clear_error(&error);
    return reply;
}

void send(GDBusConnection *connection, const Method &method, GVariant *arguments)
{
    g_dbus_connection_call(connection, method.service.c_str(), method.object.c_str(),
                           method.interface.c_str(), method.name.c_str(), arguments, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, CALL_LIMIT, nullptr, nullptr, nullptr);
}

} // namespace FakeModems
