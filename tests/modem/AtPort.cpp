#include "AtPort.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace FakeModems
{

namespace
{

const char ABSTRACT_PREFIX[] = "abstract:";

bool isAbstract(const std::string &name)
{
    return name.compare(0, sizeof ABSTRACT_PREFIX - 1, ABSTRACT_PREFIX) == 0;
}

/// Initialises the socket address. Returns its size, or 0 if the name is too long.
socklen_t makeAddress(const std::string &name, sockaddr_un &address)
{
    const std::size_t shift = isAbstract(name) ? 1 : 0;
    address = sockaddr_un();
    address.sun_family = AF_UNIX;
    if (name.size() + 1 > sizeof address.sun_path)
        return 0;
    std::memcpy(address.sun_path + shift, name.data(), name.size());
    const std::size_t end = shift ? shift + name.size() : name.size() + 1;
    return static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + end);
}

} // namespace

AtPort::AtPort(GMainContext *context, std::string name,
               std::function<void(const std::string &)> onBytes, std::function<void()> onOpened)
    : m_context(context), m_name(std::move(name)), m_onBytes(std::move(onBytes)),
      m_onOpened(std::move(onOpened))
{
}

AtPort::~AtPort()
{
    hangUp();
    stopListening();
}

guint AtPort::watch(int descriptor, GUnixFDSourceFunc function)
{
    GSource *source = g_unix_fd_source_new(descriptor, G_IO_IN);
    g_source_set_callback(source, G_SOURCE_FUNC(function), this, nullptr);
    const guint id = g_source_attach(source, m_context);
    g_source_unref(source);
    return id;
}

void AtPort::unwatch(guint &source)
{
    if (source)
        g_source_destroy(g_main_context_find_source_by_id(m_context, source));
    source = 0;
}

std::string AtPort::listen()
{
    sockaddr_un address;
    const socklen_t size = makeAddress(m_name, address);
    if (!size)
        return m_name + ": too long for a socket's name";
    if (!isAbstract(m_name))
        ::unlink(m_name.c_str());
    m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (::bind(m_listener, reinterpret_cast<const sockaddr *>(&address), size) != 0 ||
        ::listen(m_listener, 4) != 0)
        return m_name + ": " + g_strerror(errno);
    m_listenerSource = watch(m_listener, [](gint, GIOCondition, gpointer self) {
        return static_cast<AtPort *>(self)->accept();
    });
    return std::string();
}

void AtPort::stopListening()
{
    unwatch(m_listenerSource);
    if (m_listener >= 0)
        ::close(std::exchange(m_listener, -1));
    if (!isAbstract(m_name))
        ::unlink(m_name.c_str());
}

gboolean AtPort::accept()
{
    const int connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0)
        return G_SOURCE_CONTINUE;
    hangUp();
    m_connection = connection;
    m_connectionSource = watch(m_connection, [](gint, GIOCondition, gpointer self) {
        return static_cast<AtPort *>(self)->read();
    });
    m_onOpened();
    return G_SOURCE_CONTINUE;
}

gboolean AtPort::read()
{
    char buffer[4096];
    const guint before = m_connectionSource;
    const ssize_t size = ::recv(m_connection, buffer, sizeof buffer, MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR))
        return G_SOURCE_CONTINUE;
    if (size <= 0)
        hangUp();
    else
        m_onBytes(std::string(buffer, static_cast<std::size_t>(size)));
    return m_connectionSource == before ? G_SOURCE_CONTINUE : G_SOURCE_REMOVE;
}

void AtPort::hangUp()
{
    unwatch(m_connectionSource);
    unwatch(m_writerSource);
    m_unsent.clear();
    if (m_connection >= 0)
        ::close(std::exchange(m_connection, -1));
}

void AtPort::write(const std::string &bytes)
{
    if (m_connection < 0)
        return;
    if (!m_pieces && m_unsent.empty()) {
        send(bytes.data(), bytes.size());
        return;
    }
    m_unsent += bytes;
    if (m_writerSource)
        return;
    GSource *source = g_idle_source_new();
    g_source_set_callback(
        source, [](gpointer self) { return static_cast<AtPort *>(self)->writePiece(); }, this,
        nullptr);
    m_writerSource = g_source_attach(source, m_context);
    g_source_unref(source);
}

gboolean AtPort::writePiece()
{
    send(m_unsent.data(), 1);
    m_unsent.erase(0, 1);
    if (!m_unsent.empty())
        return G_SOURCE_CONTINUE;
    m_writerSource = 0;
    return G_SOURCE_REMOVE;
}

/// Sends the bytes without queueing them, because a few hundred bytes always fit into the socket
/// buffer. Ignores errors, because read() detects a closed connection.
void AtPort::send(const char *bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t sent = ::send(m_connection, bytes, size, MSG_NOSIGNAL);
        if (sent < 0 && errno != EINTR)
            return;
        bytes += sent > 0 ? sent : 0;
        size -= sent > 0 ? static_cast<std::size_t>(sent) : 0;
    }
}

} // namespace FakeModems
