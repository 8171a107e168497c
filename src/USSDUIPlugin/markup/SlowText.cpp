#include "SlowText.h"

namespace
{

const int NEVER_HEAVY = 1000; // characters; network replies have at most 182
const int ALWAYS_HEAVY = 10000;
const int MAX_CHANGES = 500;
const int PIECE = 990;    // less than NEVER_HEAVY, because a surrogate pair may exceed it
const int LOOK_BACK = 50; // maximum distance of a blank from the end of a piece, in characters

/// Returns true if `after` belongs to a different script from `before` or combines with it.
bool isChange(QChar before, QChar after)
{
    const int charactersOfAScript = 128; // an approximation; Qt's script tables are private
    return before.unicode() / charactersOfAScript != after.unicode() / charactersOfAScript ||
           after.category() == QChar::Mark_NonSpacing;
}

/// Returns the end of the piece that starts at `begin`. Surrogate pairs are never split.
int endOfPiece(const QString &text, int begin)
{
    int end = begin + PIECE;
    if (end >= text.length())
        return text.length();
    for (int i = end; i > end - LOOK_BACK; --i) {
        if (text.at(i - 1).isSpace())
            return i;
    }
    if (text.at(end).isLowSurrogate() && text.at(end - 1).isHighSurrogate())
        ++end;
    return end;
}

} // namespace

namespace SlowText
{

bool isHeavy(const QString &text)
{
    if (text.length() <= NEVER_HEAVY)
        return false;
    if (text.length() > ALWAYS_HEAVY)
        return true;
    int changes = 0;
    for (int i = 1; i < text.length(); ++i)
        changes += isChange(text.at(i - 1), text.at(i)) ? 1 : 0;
    return changes > MAX_CHANGES;
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

} // namespace SlowText
