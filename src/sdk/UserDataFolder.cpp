#include "UserDataFolder.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace Tksv
{

namespace
{

const char APP_FOLDER[] = "ussd-dashboard/";

std::string environment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

std::string withSlash(std::string path)
{
    if (!path.empty() && path.back() != '/')
        path += '/';
    return path;
}

/// Returns the user's home directory from the user database. Used if $HOME is not set.
std::string homeOfUser()
{
    std::vector<char> buffer(16384);
    passwd entry = {};
    passwd *found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return std::string();
    return found->pw_dir ? found->pw_dir : "";
}

std::string home()
{
    const std::string fromEnvironment = environment("HOME");
    return fromEnvironment.empty() ? homeOfUser() : fromEnvironment;
}

bool isFolder(const std::string &path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool createOneFolder(const std::string &path)
{
    return mkdir(path.c_str(), 0700) == 0 || (errno == EEXIST && isFolder(path));
}

} // namespace

std::string userDataFolder()
{
    const std::string chosen = environment("TKSV_USER_DATA");
    if (!chosen.empty())
        return withSlash(chosen);
    // A relative path in XDG_DATA_HOME is ignored, as the XDG Base Directory Specification
    // requires.
    const std::string dataHome = environment("XDG_DATA_HOME");
    if (!dataHome.empty() && dataHome.front() == '/')
        return withSlash(dataHome) + APP_FOLDER;
    const std::string userHome = home();
    return userHome.empty() ? userHome : withSlash(userHome) + ".local/share/" + APP_FOLDER;
}

bool createFolder(const std::string &path)
{
    if (isFolder(path))
        return true;
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos;
         slash = path.find('/', slash + 1)) {
        const std::string parent = path.substr(0, slash);
        if (!isFolder(parent) && !createOneFolder(parent))
            return false;
    }
    return isFolder(path) || createOneFolder(path);
}

} // namespace Tksv
