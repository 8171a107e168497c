#ifndef TKSV_INTERNAL_KEYFILE_H
#define TKSV_INTERNAL_KEYFILE_H

#include <string>
#include <vector>

#include "Complaint.h"

namespace tksv
{

struct KeyFileEntry {
    std::string key;
    std::string value; // with \n, \t, \s and \\ resolved
    int line = 0;
};

struct KeyFileGroup {
    std::string name;
    int line = 0;
    std::vector<KeyFileEntry> entries;

    /// Null when the group has no such key.
    const KeyFileEntry *find(const std::string &key) const;
};

/**
 * The groups of a GLib key file in their order, each with its line, which GKeyFile itself does not
 * tell. Anything that is no key file, and any group or key that stands there twice, is a complaint.
 */
std::vector<KeyFileGroup> readKeyFile(const std::string &text, Complaints &complaints);

} // namespace tksv

#endif
