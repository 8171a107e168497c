#ifndef TKSV_INTERNAL_SIGNALCONNECTIONS_H
#define TKSV_INTERNAL_SIGNALCONNECTIONS_H

#include <functional>
#include <gio/gio.h>
#include <vector>

namespace tksv
{

/** Signals of GObjects, connected as long as this lives. It holds the objects. */
class SignalConnections
{
public:
    using Changed = std::function<void(GVariant *changedProperties)>;
    using Handler = std::function<void()>;

    SignalConnections() = default;
    ~SignalConnections();
    SignalConnections(const SignalConnections &) = delete;
    SignalConnections &operator=(const SignalConnections &) = delete;

    /// "g-properties-changed" of a D-Bus proxy; null does nothing.
    void onPropertiesChanged(gpointer proxy, Changed handler);
    /// Any signal, for those to whom its arguments do not matter.
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

} // namespace tksv

#endif
