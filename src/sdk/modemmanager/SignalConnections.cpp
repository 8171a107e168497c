#include "SignalConnections.h"

#include <utility>

namespace tksv
{

namespace
{

void runChanged(GDBusProxy *, GVariant *changed, GStrv, gpointer handler)
{
    // A copy: the handler may disconnect itself and so end the closure.
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

/// After libmm-glib's own handlers, which renew what it keeps ready of the properties.
void SignalConnections::onPropertiesChanged(gpointer proxy, Changed handler)
{
    if (!proxy)
        return;
    add(proxy,
        g_signal_connect_data(proxy, "g-properties-changed", G_CALLBACK(runChanged),
                              new Changed(std::move(handler)), destroy<Changed>, G_CONNECT_AFTER));
}

/// Swapped, the closure's data comes first, and the arguments behind it can be left out.
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

} // namespace tksv
