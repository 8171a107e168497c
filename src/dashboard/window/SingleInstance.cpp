#include "SingleInstance.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSocketNotifier>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace Dashboard
{

namespace
{

const char PREFIX[] = "ussd-dashboard-";
const char *const SESSION_VARIABLES[] = {"WAYLAND_DISPLAY", "DISPLAY", "XDG_RUNTIME_DIR"};
const char REQUEST = 'r';
const char ANSWER = 'a';
const int BACKLOG = 8;

/// Creates a socket address in the abstract namespace, which does not require a file. Returns its
/// size.
socklen_t makeAddress(const QByteArray &name, sockaddr_un *address)
{
    const QByteArray full = PREFIX + name;
    const std::size_t size = qMin(std::size_t(full.size()), sizeof address->sun_path - 1);
    std::memset(address, 0, sizeof *address);
    address->sun_family = AF_UNIX;
    std::memcpy(address->sun_path + 1, full.constData(),
                size); // the first byte of an abstract address is zero
    return socklen_t(offsetof(sockaddr_un, sun_path) + 1 + size);
}

int makeSocket()
{
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// Returns true if the process at the other end belongs to the same user. This must be checked,
/// because every user may use any name in the abstract namespace.
bool isOfSameUser(int socket)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

bool waitToRead(int socket, int milliseconds)
{
    pollfd each = {};
    each.fd = socket;
    each.events = POLLIN;
    return poll(&each, 1, milliseconds) == 1;
}

} // namespace

SingleInstance::SingleInstance(const QByteArray &name, QObject *parent)
    : QObject(parent), m_name(name)
{
    if (!name.isEmpty())
        start();
}

SingleInstance::~SingleInstance()
{
    if (m_socket >= 0)
        close(m_socket);
}

QByteArray SingleInstance::sessionName(const QString &settingsFile)
{
    QByteArray session;
    bool hasDisplay = false;
    for (const char *variable : SESSION_VARIABLES) {
        const QByteArray value = qgetenv(variable);
        hasDisplay = hasDisplay || (qstrcmp(variable, "XDG_RUNTIME_DIR") != 0 && !value.isEmpty());
        session += value + '\0';
    }
    if (!hasDisplay)
        return QByteArray();
    session += QByteArray::number(geteuid()) + '\0' + QFile::encodeName(settingsFile);
    return QCryptographicHash::hash(session, QCryptographicHash::Sha256).toHex().left(32);
}

// Tries to become the first instance by binding the name of the socket. Binding is atomic: even if
// several instances start at the same time, only one of them succeeds.
void SingleInstance::start()
{
    const int listener = makeSocket();
    if (listener >= 0 && listenTo(listener))
        return;
    if (listener >= 0)
        close(listener);
    const int client = makeSocket();
    if (client < 0)
        return;
    if (askFirst(client))
        m_role = Later;
    close(client);
}

bool SingleInstance::listenTo(int socket)
{
    sockaddr_un address;
    const socklen_t size = makeAddress(m_name, &address);
    if (bind(socket, reinterpret_cast<sockaddr *>(&address), size) != 0 ||
        listen(socket, BACKLOG) != 0)
        return false;
    m_socket = socket;
    m_notifier = new QSocketNotifier(socket, QSocketNotifier::Read, this);
    connect(m_notifier, SIGNAL(activated(int)), this, SLOT(answer()));
    return true;
}

bool SingleInstance::askFirst(int socket) const
{
    sockaddr_un address;
    const socklen_t size = makeAddress(m_name, &address);
    if (::connect(socket, reinterpret_cast<sockaddr *>(&address), size) != 0 ||
        !isOfSameUser(socket) || send(socket, &REQUEST, 1, MSG_NOSIGNAL) != 1)
        return false;
    char answer = 0;
    return waitToRead(socket, ANSWER_LIMIT) && recv(socket, &answer, 1, 0) == 1 && answer == ANSWER;
}

// Reads and answers the request of a later instance. Waits only briefly for the request, because
// the later instance sends it as soon as it is connected.
void SingleInstance::answer()
{
    const int client = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (client < 0)
        return;
    char request = 0;
    const bool isRequest = isOfSameUser(client) && waitToRead(client, ANSWER_LIMIT / 10) &&
                           recv(client, &request, 1, 0) == 1 && request == REQUEST;
    if (isRequest && send(client, &ANSWER, 1, MSG_NOSIGNAL) == 1)
        emit raiseRequested();
    close(client);
}

} // namespace Dashboard
