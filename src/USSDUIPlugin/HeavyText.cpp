#include "HeavyText.h"

namespace
{

const int kNeverHeavy = 1000; // characters; a network sends at most 182
const int kAlwaysHeavy = 10000;
const int kMaxChanges = 500;
const int kPiece = 990;   // a little less than what is never heavy: a pair may be added
const int kLookBack = 50; // for a blank

/// Places where the next character belongs to another script, or is a mark on the one before it.
bool isChange(QChar before, QChar after)
{
    const int charactersOfAScript = 128; // about: the tables of the scripts are Qt's own
    return before.unicode() / charactersOfAScript != after.unicode() / charactersOfAScript ||
           after.category() == QChar::Mark_NonSpacing;
}

/// Where the piece that begins at `begin` ends: never between two halves of a pair.
int endOfPiece(const QString &text, int begin)
{
    int end = begin + kPiece;
    if (end >= text.length())
        return text.length();
    for (int i = end; i > end - kLookBack; --i) {
        if (text.at(i - 1).isSpace())
            return i;
    }
    if (text.at(end).isLowSurrogate() && text.at(end - 1).isHighSurrogate())
        ++end;
    return end;
}

} // namespace

namespace HeavyText
{

bool isHeavy(const QString &text)
{
    if (text.length() <= kNeverHeavy)
        return false;
    if (text.length() > kAlwaysHeavy)
        return true;
    int changes = 0;
    for (int i = 1; i < text.length(); ++i)
        changes += isChange(text.at(i - 1), text.at(i)) ? 1 : 0;
    return changes > kMaxChanges;
}

QStringList pieces(const QString &text)
{
    QStringList pieces;
    for (int begin = 0; begin < text.length();) {
        const int end = endOfPiece(text, begin);
        pieces << text.mid(begin, end - begin);
        begin = end;
    }
    return pieces;
}

} // namespace HeavyText
