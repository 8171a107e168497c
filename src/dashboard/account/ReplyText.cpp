#include "ReplyText.h"

#include <QRegularExpression>

#include <algorithm>

namespace Dashboard
{

namespace
{

QString sentenceMarks()
{
    return QString::fromUtf8("\n!?;。！？；؟؛।|");
}

QString clauseMarks()
{
    return QString::fromUtf8("()[],，、،");
}

} // namespace

ReplyText::ReplyText(const QString &text) : m_plain(plainForm(text)), m_folded(m_plain)
{
    for (QChar &character : m_folded)
        character = character.toLower();
    m_currencies = currencyMarks(m_plain);
    divide();
}

void ReplyText::divide()
{
    for (int i = 0; i < m_plain.length(); ++i) {
        if (endsSentence(i))
            m_sentenceEnds << i + 1;
        if (endsSentence(i) || endsClause(i))
            m_clauseEnds << i + 1;
    }
    divideAtConjunctions();
    m_sentenceEnds << m_plain.length() + 1;
    m_clauseEnds << m_plain.length() + 1;
}

bool ReplyText::endsSentence(int position) const
{
    const QChar character = m_plain.at(position);
    if (character == QLatin1Char('\n') &&
        m_plain.left(position).trimmed().endsWith(QLatin1Char(':')))
        return false; // a caption, whose value is on the next line
    return character == QLatin1Char('.') ? isPoint(position) : sentenceMarks().contains(character);
}

/// Returns true if the point at this position ends a sentence, and false if it belongs to a number
/// or to an abbreviated currency.
bool ReplyText::isPoint(int position) const
{
    const QChar next =
        m_plain.length() > position + 1 ? m_plain.at(position + 1) : QChar(QLatin1Char('\n'));
    if (!next.isSpace()) {
        const bool joinsSentences = position > 1 && next.isUpper() &&
                                    m_plain.at(position - 1).isLetterOrNumber() &&
                                    m_plain.at(position - 2).isLetterOrNumber();
        return joinsSentences;
    }
    if (!isCurrencyBefore(position))
        return true;
    int following = position + 1;
    while (following < m_plain.length() && m_plain.at(following) == QLatin1Char(' '))
        ++following;
    return following >= m_plain.length() ||
           (!isDigit(following) && !m_plain.at(following).isLower());
}

bool ReplyText::isCurrencyBefore(int position) const
{
    for (const CurrencyMark &mark : m_currencies) {
        if (mark.end == position || mark.end == position + 1)
            return true;
    }
    return false;
}

bool ReplyText::endsClause(int position) const
{
    if (!clauseMarks().contains(m_plain.at(position)))
        return false;
    return !isDigit(position - 1) || !isDigit(position + 1);
}

void ReplyText::divideAtConjunctions()
{
    static const QRegularExpression conjunction(
        QString::fromUtf8("[ \\n](and|und|sowie|y|et|и|а также|&|as well as|plus|more)(?= )|(?<= "
                          ")و(?=\\w)|和|及"),
        QRegularExpression::UseUnicodePropertiesOption);
    for (auto match = conjunction.globalMatch(m_folded); match.hasNext();)
        m_clauseEnds << match.next().capturedStart();
    std::sort(m_clauseEnds.begin(), m_clauseEnds.end());
}

bool ReplyText::isDigit(int position) const
{
    return position >= 0 && position < m_plain.length() && m_plain.at(position).isDigit();
}

ReplyPart ReplyText::partAt(const QList<int> &ends, int position) const
{
    ReplyPart part;
    for (const int end : ends) {
        part.end = end;
        if (end > position)
            break;
        part.start = end;
    }
    part.end = qMin(part.end, int(m_plain.length()));
    return part;
}

ReplyPart ReplyText::lineAt(int position) const
{
    ReplyPart line;
    line.start = position > 0 ? m_plain.lastIndexOf(QLatin1Char('\n'), position - 1) + 1 : 0;
    line.end = m_plain.indexOf(QLatin1Char('\n'), position);
    if (line.end < 0)
        line.end = m_plain.length();
    return line;
}

bool ReplyText::holds(const ReplyPart &part, Word meaning) const
{
    return holdsWord(folded(part.start, part.end), meaning);
}

} // namespace Dashboard
