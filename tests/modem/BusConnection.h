#ifndef MODEM_BUSCONNECTION_H
#define MODEM_BUSCONNECTION_H

#include <gio/gio.h>
#include <memory>
#include <string>

/* The D-Bus functions that the modem tests need. */

namespace FakeModems
{

struct VariantDeleter {
    void operator()(GVariant *variant) const { g_variant_unref(variant); }
};
using VariantPtr = std::unique_ptr<GVariant, VariantDeleter>;

struct Method {
    std::string service;
    std::string object;
    std::string interface;
    std::string name;
};

/** The reply to a method call. `value` is null if the call failed. */
struct Reply {
    VariantPtr value;
    std::string error;
};

/// Opens a private connection. Call closeConnection() to close it. Returns null if the connection
/// fails.
GDBusConnection *connectTo(const std::string &busAddress);
/// Closes the connection and sets the pointer to null. Does nothing if the pointer is null.
void closeConnection(GDBusConnection *&connection);

/// Calls the method and waits up to ten seconds for the reply. `arguments` may be floating or null.
Reply call(GDBusConnection *connection, const Method &method, GVariant *arguments);
/// Calls the method without waiting for a reply.
void send(GDBusConnection *connection, const Method &method, GVariant *arguments);

} // namespace FakeModems

#endif
