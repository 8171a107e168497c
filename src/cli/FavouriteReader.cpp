#include "FavouriteReader.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Cli
{

namespace
{

/// A file descriptor that is closed at the end of its scope.
class File
{
public:
    explicit File(const std::string &path)
        // Without O_NONBLOCK, a named pipe would block the program.
        : m_descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
    {
    }
    ~File()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    bool isReadable() const
    {
        struct stat status = {};
        return fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
               static_cast<std::size_t>(status.st_size) <= Chains::LARGEST_FAVOURITE_FILE;
    }
    std::string content() const
    {
        std::string content;
        char piece[4096];
        ssize_t size = 0;
        while (content.size() <= Chains::LARGEST_FAVOURITE_FILE &&
               (size = read(m_descriptor, piece, sizeof piece)) > 0)
            content.append(piece, static_cast<std::size_t>(size));
        return content;
    }

private:
    const int m_descriptor;
};

} // namespace

std::string favouritesPath()
{
    const char *const chosen = g_getenv("XDG_DATA_HOME");
    const std::string data = chosen && *chosen == '/'
                                 ? std::string(chosen)
                                 : std::string(g_get_home_dir()) + "/.local/share";
    return data + "/ussd-dashboard/" + Chains::FAVOURITE_FILE;
}

bool readFavourites(const std::string &path, Chains::FavouriteFile &file, std::string &problem)
{
    const File opened(path);
    if (!opened.isOpen() && errno == ENOENT)
        return true;
    if (!opened.isOpen()) {
        problem = path + " cannot be read: " + std::strerror(errno) + ".";
        return false;
    }
    if (!opened.isReadable()) {
        problem = path + " cannot be read: it is not a file, or it is too large.";
        return false;
    }
    file = Chains::FavouriteFile::fromJson(opened.content());
    return true;
}

} // namespace Cli
