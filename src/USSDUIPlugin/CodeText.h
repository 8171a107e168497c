#ifndef CODETEXT_H
#define CODETEXT_H

#include <QString>

/// Whether a text is a code such as *100# or *101*%s#, or has no letter, as a number. Such a text
/// reads from left to right in every language, while another one follows the language.
inline bool isCodeLike(const QString &text)
{
    if (text.startsWith(QLatin1Char('*')) || text.startsWith(QLatin1Char('#')))
        return true;
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i).isLetter())
            return false;
    }
    return true;
}

#endif
