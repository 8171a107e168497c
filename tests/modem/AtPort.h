#ifndef MODEM_ATPORT_H
#define MODEM_ATPORT_H

#include <functional>
#include <glib-unix.h>
#include <string>

namespace FakeModems
{

/**
 * The modem's end of the serial line. The port listens on a Unix socket and supports one connection
 * at a time; a new connection replaces the previous one. All functions must be called from the
 * thread that runs the main context of the port.
 */
class AtPort
{
public:
    /// `context` and all objects that `onBytes` refers to must outlive the port. A `name` that
    /// starts with "abstract:" is the name of an abstract socket, including the prefix. Any other
    /// `name` is a path.
    AtPort(GMainContext *context, std::string name,
           std::function<void(const std::string &)> onBytes, std::function<void()> onOpened);
    ~AtPort();
    AtPort(const AtPort &) = delete;
    AtPort &operator=(const AtPort &) = delete;

    /// Starts listening. Returns an empty string on success, otherwise an error message.
    std::string listen();
    void stopListening();

    /// Writes all bytes at once. After setPieces(true) has been called, writes one byte per
    /// iteration of the main loop.
    void write(const std::string &bytes);
    void setPieces(bool pieces) { m_pieces = pieces; }

    /// Closes the connection. The port keeps listening.
    void hangUp();

private:
    guint watch(int descriptor, GUnixFDSourceFunc function);
    void unwatch(guint &source);
    gboolean accept();
    gboolean read();
    gboolean writePiece();
    void send(const char *bytes, std::size_t size);

    GMainContext *const m_context;
    const std::string m_name;
    const std::function<void(const std::string &)> m_onBytes;
    const std::function<void()> m_onOpened;
    bool m_pieces = false;
    std::string m_unsent; // bytes that are still to be written one at a time
    int m_listener = -1;
    int m_connection = -1;
    guint m_listenerSource = 0;
    guint m_connectionSource = 0;
    guint m_writerSource = 0;
};

} // namespace FakeModems

#endif
