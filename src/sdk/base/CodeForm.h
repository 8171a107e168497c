#ifndef TKSV_INTERNAL_CODEFORM_H
#define TKSV_INTERNAL_CODEFORM_H

#include <string>

namespace Tksv
{

/// Returns true if the string has the form of a code: it starts with * or # and ends with #. A code
/// always opens a new session, even if the network is waiting for an answer.
bool hasFormOfCode(const std::string &text);

} // namespace Tksv

#endif
