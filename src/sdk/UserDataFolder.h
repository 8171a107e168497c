#ifndef TKSV_INTERNAL_USERDATAFOLDER_H
#define TKSV_INTERNAL_USERDATAFOLDER_H

#include <string>

namespace Tksv
{

/**
 * Returns the folder for the user's data: $TKSV_USER_DATA, or else "ussd-dashboard" in
 * $XDG_DATA_HOME, or else "ussd-dashboard" in ~/.local/share. The path has the file system's
 * encoding and ends in "/". Returns an empty path if the user has no home directory.
 */
std::string userDataFolder();

/// Creates the folder and its missing parents, accessible to this user only (mode 0700). Returns
/// whether the folder exists.
bool createFolder(const std::string &path);

} // namespace Tksv

#endif
