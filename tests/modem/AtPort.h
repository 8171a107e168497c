#ifndef MODEM_ATPORT_H
#define MODEM_ATPORT_H

#include <functional>
#include <glib-unix.h>
#include <string>

namespace modem
{

/**
 * The modem's end of the serial line: a listening unix socket with at most one connection, of which
 * a later one takes the place. Used on the thread of its main context only.
 */
class AtPort
{
public:
    /// `context` and what `onBytes` refers to outlive the port. A name that begins with "abstract:"
    /// is bound as an abstract socket under that whole name, any other is a path.
    AtPort(GMainContext *context, std::string name,
           std::function<void(const std::string &)> onBytes, std::function<void()> onOpened);
    ~AtPort();
    AtPort(const AtPort &) = delete;
    AtPort &operator=(const AtPort &) = delete;

    /// Empty on success, else why the name cannot be listened on.
    std::string listen();
    void stopListening();

    /// Goes out whole, or byte by byte with a turn of the main loop in between.
    void write(const std::string &bytes);
    void setPieces(bool pieces) { m_pieces = pieces; }

    /// Ends the connection; listening goes on.
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
    std::string m_unsent; // in pieces
    int m_listener = -1;
    int m_connection = -1;
    guint m_listenerSource = 0;
    guint m_connectionSource = 0;
    guint m_writerSource = 0;
};

} // namespace modem

#endif
