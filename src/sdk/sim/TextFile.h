#ifndef TKSV_INTERNAL_TEXTFILE_H
#define TKSV_INTERNAL_TEXTFILE_H

#include <string>

namespace Tksv
{

/// Reads a regular file of at most 1 MiB. Returns an empty string on success, otherwise the reason
/// for the failure.
std::string readTextFile(const std::string &path, std::string &text);

} // namespace Tksv

#endif
