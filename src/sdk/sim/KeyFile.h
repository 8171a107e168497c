#ifndef TKSV_INTERNAL_KEYFILE_H
#define TKSV_INTERNAL_KEYFILE_H

#include <string>
#include <vector>

#include "Complaint.h"

namespace Tksv
{

struct KeyFileEntry {
    std::string key;
    std::string value; // the escape sequences \n, \t, \s, \r and \\ have been replaced
    int line = 0;      // starts at 1
};

struct KeyFileGroup {
    std::string name;
    int line = 0;
    std::vector<KeyFileEntry> entries;
    bool isDamaged = false; // a line of the group does not belong in a key file, or occurs twice

    /// Returns the entry with the given key, or null if the group does not contain the key.
    const KeyFileEntry *find(const std::string &key) const;
};

/**
 * Returns the groups of a GLib key file in their order, with the line numbers that GKeyFile does
 * not report. Adds a complaint for each line that does not belong in a key file, and for groups and
 * keys that occur twice. Even then, returns everything else, so that its mistakes can be found,
 * too.
 */
std::vector<KeyFileGroup> readKeyFile(const std::string &text, Complaints &complaints);

} // namespace Tksv

#endif
