#ifndef ISOLATE_H
#define ISOLATE_H

#include <QString>

namespace Dashboard
{

/// Returns the code or number enclosed in the direction isolates U+2066 and U+2069, so that it is
/// displayed from left to right even in a right-to-left sentence. Returns an empty string
/// unchanged.
inline QString isolated(const QString &codeOrNumber)
{
    if (codeOrNumber.isEmpty())
        return codeOrNumber;
    return QChar(0x2066) + codeOrNumber + QChar(0x2069);
}

/// Returns the words enclosed in the direction isolates U+2068 and U+2069, so that their direction
/// depends on their own first letter and not on the sentence that contains them. Returns an empty
/// string unchanged.
inline QString isolatedWords(const QString &words)
{
    return words.isEmpty() ? words : QChar(0x2068) + words + QChar(0x2069);
}

} // namespace Dashboard

#endif
