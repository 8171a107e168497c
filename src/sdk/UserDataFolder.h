#ifndef TKSV_INTERNAL_USERDATAFOLDER_H
#define TKSV_INTERNAL_USERDATAFOLDER_H

#include <string>

namespace tksv
{

/**
 * Where the user's data belongs: $TKSV_USER_DATA, else "ussd-dashboard" in $XDG_DATA_HOME, else in
 * ~/.local/share. Bytes of the file system, ending in "/"; empty when the user has no home.
 */
std::string userDataFolder();

/// Makes the folder and those above it, for this user alone (mode 0700). Whether it is there.
bool makeFolder(const std::string &path);

} // namespace tksv

#endif
