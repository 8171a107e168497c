#ifndef TKSV_INTERNAL_KEYFILE_H
#define TKSV_INTERNAL_KEYFILE_H

#include <string>
#include <vector>

#include "Complaint.h"

namespace Tksv
{

struct KeyFileEntry {
    std::string key;
    std::string value; // the value with the escape sequences \n, \t, \s, \r and \\ replaced
    int line = 0;      // starts at 1
};

struct KeyFileGroup {
    std::string name;
    int line = 0;
    std::vector<KeyFileEntry> entries;
    bool isDamaged = false; // true if a line of the group is invalid or a duplicate

    /// Returns the entry with the given key, or null if the group does not contain the key.
    const KeyFileEntry *find(const std::string &key) const;
};

/**
 * Returns the groups of a GLib key file in the order of the file. Unlike GKeyFile, the function
 * determines the line numbers. Adds a complaint for each invalid line and for each duplicate group
 * or key. The remaining contents are still returned, so that they can be checked for other errors.
 */
std::vector<KeyFileGroup> readKeyFile(const std::string &text, Complaints &complaints);

} // namespace Tksv

#endif
