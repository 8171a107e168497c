#ifndef REPLYTEXT_H
#define REPLYTEXT_H

#include <QList>
#include <QString>

#include "Currencies.h"
#include "ReplyWords.h"

namespace Dashboard
{

/** A range of characters in a reply. */
struct ReplyPart {
    int start = 0;
    int end = 0;
};

/** A reply in plain form, divided into sentences and clauses. */
class ReplyText
{
public:
    explicit ReplyText(const QString &text);

    const QString &plain() const { return m_plain; }
    const QString &folded() const { return m_folded; } // the reply in lower case
    QString folded(int start, int end) const { return m_folded.mid(start, end - start); }

    const QList<CurrencyMark> &currencies() const { return m_currencies; }

    ReplyPart clauseAt(int position) const { return partAt(m_clauseEnds, position); }
    ReplyPart sentenceAt(int position) const { return partAt(m_sentenceEnds, position); }
    ReplyPart lineAt(int position) const;

    /// Returns true if the part contains a word with this meaning.
    bool holds(const ReplyPart &part, Word meaning) const;
    bool holds(Word meaning) const { return holdsWord(m_folded, meaning); }

private:
    void divide();
    bool endsSentence(int position) const;
    bool endsClause(int position) const;
    bool isPoint(int position) const;
    void divideAtConjunctions();
    bool isDigit(int position) const;
    bool isCurrencyBefore(int position) const;
    ReplyPart partAt(const QList<int> &ends, int position) const;

    QString m_plain;
    QString m_folded;
    QList<CurrencyMark> m_currencies;
    QList<int> m_clauseEnds; // the end positions of the clauses, in ascending order
    QList<int> m_sentenceEnds;
};

} // namespace Dashboard

#endif
