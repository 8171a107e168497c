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

    /// Returns the entry with the given key, or null if the group does not contain the key.
    const KeyFileEntry *find(const std::string &key) const;
};

/**
 * Returns the groups of a GLib key file in the order of the file. The result includes line numbers,
 * which GKeyFile does not report. Adds a complaint for each line that is not valid in a key file,
 * and for each duplicate group or key.
 */
std::vector<KeyFileGroup> readKeyFile(const std::string &text, Complaints &complaints);

} // namespace Tksv

#endif
