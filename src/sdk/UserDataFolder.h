#ifndef TKSV_INTERNAL_USERDATAFOLDER_H
#define TKSV_INTERNAL_USERDATAFOLDER_H

#include <string>

namespace Tksv
{

/**
 * Returns the user's data folder: $TKSV_USER_DATA, or else "ussd-dashboard" in $XDG_DATA_HOME, or
 * else "ussd-dashboard" in ~/.local/share. The path is in the file system's encoding and ends with
 * "/". Returns an empty string if the user has no home directory.
 */
std::string userDataFolder();

/// Creates the folder and its missing parents with access for the current user only (mode 0700).
/// Returns true if the folder exists afterwards.
bool createFolder(const std::string &path);

} // namespace Tksv

#endif
