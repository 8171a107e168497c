#include "SessionTurn.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace Tksv
{

namespace
{

const mode_t ONLY_USER = 0700;
const int IN_FOLDER = O_CLOEXEC | O_NOFOLLOW;

/** A file descriptor that is closed when the object is destroyed. */
class File
{
public:
    explicit File(int descriptor) : m_descriptor(descriptor) {}
    ~File()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    int get() const { return m_descriptor; }
    int take() { return std::exchange(m_descriptor, -1); }
    bool lock(int kind) const
    {
        return m_descriptor >= 0 && flock(m_descriptor, kind | LOCK_NB) == 0;
    }

private:
    int m_descriptor;
};

std::string safeName(const std::string &text)
{
    std::string name = text.empty() ? "modem" : text;
    for (char &c : name) {
        const bool isSafe =
            (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-';
        c = isSafe ? c : '_';
    }
    return name;
}

/// Returns true if the current user owns the folder and can write to it.
bool isOwnFolder(const char *path)
{
    struct stat info = {};
    return stat(path, &info) == 0 && info.st_uid == geteuid() && access(path, W_OK | X_OK) == 0;
}

/// Returns the folder that contains the user's queues. XDG_RUNTIME_DIR is ignored if it names
/// another user's folder, because "su" may leave this variable unchanged.
std::string queuesFolder()
{
    const char *runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && *runtime == '/' && isOwnFolder(runtime))
        return std::string(runtime) + "/ussd-dashboard";
    return "/tmp/ussd-dashboard-" + std::to_string(geteuid());
}

/// Opens the folder and creates it if necessary. Returns -1 if the path is a symbolic link, or if
/// the folder belongs to another user or is writable by others.
int openPrivateFolder(int parent, const std::string &path)
{
    if (mkdirat(parent, path.c_str(), ONLY_USER) != 0 && errno != EEXIST)
        return -1;
    File folder(openat(parent, path.c_str(), IN_FOLDER | O_RDONLY | O_DIRECTORY));
    struct stat info = {};
    if (folder.get() < 0 || fstat(folder.get(), &info) != 0)
        return -1;
    if (info.st_uid != geteuid() || (info.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        errno = EPERM;
        return -1;
    }
    return folder.take();
}

/// Returns the numbers of all tickets in the queue.
std::vector<unsigned long> ticketsIn(int folder)
{
    std::vector<unsigned long> numbers;
    const int copy = openat(folder, ".", IN_FOLDER | O_RDONLY | O_DIRECTORY);
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(copy < 0 ? nullptr : fdopendir(copy),
                                                       [](DIR *d) { return d ? closedir(d) : 0; });
    while (const dirent *entry = entries ? readdir(entries.get()) : nullptr) {
        char *end = nullptr;
        const unsigned long number = std::strtoul(entry->d_name, &end, 10);
        if (number > 0 && *end == '\0')
            numbers.push_back(number);
    }
    return numbers;
}

/// Returns true if a running program holds the ticket. If the program has crashed, its ticket is
/// removed. `number` must be lower than the number of this program's ticket, because a newer ticket
/// may not be locked yet.
bool isHeld(int folder, unsigned long number)
{
    const std::string name = std::to_string(number);
    const File ticket(openat(folder, name.c_str(), IN_FOLDER | O_RDONLY));
    if (ticket.get() < 0)
        return false; // the program has left the queue
    if (!ticket.lock(LOCK_SH))
        return true;
    unlinkat(folder, name.c_str(), 0);
    return false;
}

} // namespace

SessionTurn::SessionTurn(const std::string &modem) : m_modem(safeName(modem)) {}

SessionTurn::~SessionTurn()
{
    leave();
    if (m_folder >= 0)
        close(m_folder);
}

bool SessionTurn::tryEnter()
{
    if (m_ticket < 0 && !takeTicket())
        return m_isUnusable;
    m_isFirst = m_isFirst || !isBehindAnother();
    return m_isFirst;
}

bool SessionTurn::isBehindAnother() const
{
    const std::vector<unsigned long> numbers = ticketsIn(m_folder);
    return std::any_of(numbers.begin(), numbers.end(), [this](unsigned long number) {
        return number < m_number && isHeld(m_folder, number);
    });
}

bool SessionTurn::isWanted() const
{
    const std::vector<unsigned long> numbers = ticketsIn(m_folder);
    return std::any_of(numbers.begin(), numbers.end(),
                       [this](unsigned long number) { return number > m_number; });
}

void SessionTurn::leave()
{
    if (m_ticket < 0)
        return;
    m_isFirst = false;
    unlinkat(m_folder, std::to_string(m_number).c_str(), 0);
    flock(m_ticket, LOCK_UN); // required because a child process may have inherited the descriptor
    close(std::exchange(m_ticket, -1));
}

bool SessionTurn::openFolder()
{
    const std::string path = queuesFolder();
    const File queues(openPrivateFolder(AT_FDCWD, path));
    m_folder = queues.get() < 0 ? -1 : openPrivateFolder(queues.get(), m_modem);
    if (m_folder < 0)
        giveUp(path.c_str());
    return m_folder >= 0;
}

/// Creates this program's ticket. The function locks the door file of the queue, so that two
/// programs cannot create the same ticket and no program encounters a ticket that is not locked
/// yet. Returns false if another program has locked the door file, or if the ticket cannot be
/// created.
bool SessionTurn::takeTicket()
{
    if (m_isUnusable || (m_folder < 0 && !openFolder()))
        return false;
    const File door(openat(m_folder, "door", IN_FOLDER | O_RDWR | O_CREAT, S_IRUSR | S_IWUSR));
    if (door.get() < 0) {
        giveUp("door");
        return false;
    }
    return door.lock(LOCK_EX) && createTicket();
}

bool SessionTurn::createTicket()
{
    m_number = 1;
    for (const unsigned long number : ticketsIn(m_folder))
        m_number = std::max(m_number, number + 1);
    const std::string name = std::to_string(m_number);
    File ticket(
        openat(m_folder, name.c_str(), IN_FOLDER | O_RDWR | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR));
    if (!ticket.lock(LOCK_EX)) {
        giveUp(name.c_str());
        return false;
    }
    m_ticket = ticket.take();
    return true;
}

void SessionTurn::giveUp(const char *what)
{
    std::fprintf(stderr, "%s: cannot wait for other programs that use the modem: %s\n", what,
                 std::strerror(errno));
    m_isUnusable = true;
}

} // namespace Tksv
