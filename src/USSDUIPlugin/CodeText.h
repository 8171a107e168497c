#ifndef CODETEXT_H
#define CODETEXT_H

#include <QString>

/// Whether a text has no letter, as a code such as *100# or a number. Such a text reads from left
/// to right in every language, while one with letters follows the language.
inline bool isCodeLike(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i).isLetter())
            return false;
    }
    return true;
}

#endif
