#ifndef MODEM_BUSCONNECTION_H
#define MODEM_BUSCONNECTION_H

#include <gio/gio.h>
#include <memory>
#include <string>

/* The few D-Bus calls of the harness. */

namespace modem
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

/** `value` is null when it failed. */
struct Reply {
    VariantPtr value;
    std::string error;
};

/// A connection of its own, to be given to closeConnection(); null when there is no such bus.
GDBusConnection *connectTo(const std::string &busAddress);
/// Harmless for null, which it becomes.
void closeConnection(GDBusConnection *&connection);

/// Waits for the reply, ten seconds at most. `arguments` may be floating or null.
Reply call(GDBusConnection *connection, const Method &method, GVariant *arguments);
/// Does not wait, and does not hear how it went.
void send(GDBusConnection *connection, const Method &method, GVariant *arguments);

} // namespace modem

#endif
