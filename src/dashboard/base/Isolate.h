#ifndef ISOLATE_H
#define ISOLATE_H

#include <QString>

namespace Dashboard
{

/// Returns the code or number between the isolates U+2066 and U+2069, so that it reads from left to
/// right in a right-to-left sentence too. Returns an empty string unchanged.
inline QString isolated(const QString &codeOrNumber)
{
    if (codeOrNumber.isEmpty())
        return codeOrNumber;
    return QChar(0x2066) + codeOrNumber + QChar(0x2069);
}

} // namespace Dashboard

#endif
