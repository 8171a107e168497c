#ifndef MODEM_ATPORT_H
#define MODEM_ATPORT_H

#include <functional>
#include <glib-unix.h>
#include <string>

namespace FakeModems
{

/**
 * The modem's end of the serial line. The port listens on a Unix socket and accepts one connection
 * at a time; a new connection replaces the previous one. All functions must be called from the
 * thread of the port's main context.
 */
class AtPort
{
public:
    /// `context` and everything that `onBytes` refers to must outlive the port. A name that starts
    /// with "abstract:" is used as the name of an abstract socket, including this prefix. Any other
    /// name is a path.
    AtPort(GMainContext *context, std::string name,
           std::function<void(const std::string &)> onBytes, std::function<void()> onOpened);
    ~AtPort();
    AtPort(const AtPort &) = delete;
    AtPort &operator=(const AtPort &) = delete;

    /// Returns an empty string on success, otherwise the reason why the port cannot listen.
    std::string listen();
    void stopListening();

    /// Writes all bytes at once. After setPieces(true), writes them one at a time, with an
    /// iteration of the main loop in between.
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
    std::string m_unsent; // the bytes that remain to be written one at a time
    int m_listener = -1;
    int m_connection = -1;
    guint m_listenerSource = 0;
    guint m_connectionSource = 0;
    guint m_writerSource = 0;
};

} // namespace FakeModems

#endif
