#ifndef TKSV_INTERNAL_SIGNALCONNECTIONS_H
#define TKSV_INTERNAL_SIGNALCONNECTIONS_H

#include <functional>
#include <gio/gio.h>
#include <vector>

namespace Tksv
{

/**
 * A set of connections to GObject signals. The destructor disconnects them and releases the
 * objects.
 */
class SignalConnections
{
public:
    using Changed = std::function<void(GVariant *changedProperties)>;
    using Handler = std::function<void()>;

    SignalConnections() = default;
    ~SignalConnections();
    SignalConnections(const SignalConnections &) = delete;
    SignalConnections &operator=(const SignalConnections &) = delete;

    /// Connects to "g-properties-changed" of a D-Bus proxy. Does nothing if `proxy` is null.
    void onPropertiesChanged(gpointer proxy, Changed handler);
    /// Connects to any signal. The arguments of the signal are not passed to the handler.
    void on(gpointer object, const char *signal, Handler handler);
    void disconnectAll();

private:
    struct Connection {
        gpointer object;
        gulong id;
    };
    void add(gpointer object, gulong id);

    std::vector<Connection> m_connections;
};

} // namespace Tksv

#endif
