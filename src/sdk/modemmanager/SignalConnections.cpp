#include "SignalConnections.h"

#include <utility>

namespace Tksv
{

namespace
{

void runChanged(GDBusProxy *, GVariant *changed, GStrv, gpointer handler)
{
    // Copy the handler, because it may disconnect the signal, which would delete the running
    // handler.
    const SignalConnections::Changed copy = *static_cast<SignalConnections::Changed *>(handler);
    copy(changed);
}

void runHandler(gpointer handler)
{
    const SignalConnections::Handler copy = *static_cast<SignalConnections::Handler *>(handler);
    copy();
}

template <typename Function>
void destroy(gpointer function, GClosure *)
{
    delete static_cast<Function *>(function);
}

} // namespace

SignalConnections::~SignalConnections()
{
    disconnectAll();
}

/// Connects the handler so that it is called after the handlers of libmm-glib, which update the
/// cached properties.
void SignalConnections::onPropertiesChanged(gpointer proxy, Changed handler)
{
    if (!proxy)
        return;
    add(proxy,
        g_signal_connect_data(proxy, "g-properties-changed", G_CALLBACK(runChanged),
                              new Changed(std::move(handler)), destroy<Changed>, G_CONNECT_AFTER));
}

/// Connects the handler to the signal. With G_CONNECT_SWAPPED, the handler is the first argument,
/// so that runHandler() works for signals with any number of arguments.
void SignalConnections::on(gpointer object, const char *signal, Handler handler)
{
    add(object, g_signal_connect_data(object, signal, G_CALLBACK(runHandler),
                                      new Handler(std::move(handler)), destroy<Handler>,
                                      G_CONNECT_SWAPPED));
}

void SignalConnections::add(gpointer object, gulong id)
{
    m_connections.push_back(Connection{g_object_ref(object), id});
}

void SignalConnections::disconnectAll()
{
    const std::vector<Connection> connections = std::exchange(m_connections, {});
    for (const Connection &connection : connections) {
        g_signal_handler_disconnect(connection.object, connection.id);
        g_object_unref(connection.object);
    }
}

} // namespace Tksv
