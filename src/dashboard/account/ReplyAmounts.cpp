#include "ReplyAmounts.h"

#include "Currencies.h"
#include "ReplyNumbers.h"

namespace Dashboard
{

namespace
{

const int MOST_BLANKS = 2; // the maximum number of spaces between a number and its currency

/// The meaning of an amount in the reply, according to the words around it. Rival means that the
/// amount follows a word for the balance, but other words next to it are unknown, so the reply is
/// ambiguous.
enum class Role { Balance, Rival, Possible, Unknown, Other };

/** A number with a currency, and its meaning in the reply. */
struct Amount {
    int start = 0;
    int end = 0;
    std::optional<Money> money; // absent if the number or its sign is ambiguous
    Role role = Role::Unknown;
};

/// Returns true if there are only the given marks and at most MOST_BLANKS spaces between two
/// positions.
bool areAdjacent(const ReplyText &text, int from, int to, const QString &marks)
{
    if (from > to)
        return false;
    int blanks = 0;
    for (const QChar character : text.plain().mid(from, to - from)) {
        if (character.isSpace() && character != QLatin1Char('\n'))
            ++blanks;
        else if (!marks.contains(character))
            return false;
    }
    return blanks <= MOST_BLANKS;
}

QString untilDigit(const QString &text)
{
    int length = 0;
    while (length < text.length() && !text.at(length).isDigit())
        ++length;
    return text.left(length);
}

/** Finds the amounts in a reply and determines which one is the balance. */
class AmountReader
{
public:
    explicit AmountReader(const ReplyText &text) : m_text(text), m_plain(text.plain()) {}
    std::optional<Money> balance();

private:
    void find();
    void pair(const CurrencyMark &mark, const QList<ReplyNumber> &numbers);
    bool hasOwnUnit(const ReplyNumber &number) const;
    void add(const CurrencyMark &mark, const ReplyNumber &number, bool isDoubtful);
    Amount amountOf(const CurrencyMark &mark, const ReplyNumber &number) const;
    bool addSubunits(Amount *amount) const;
    bool isTouched(const Amount &amount, const ReplyNumber &number) const;
    int signOf(const Amount &amount, const CurrencyMark &mark, const ReplyNumber &number) const;
    int dashSign(int dash) const;
    void classify();
    Role roleOf(int index) const;
    Role roleByWords(const QString &before, const QString &behind) const;
    bool isShared(const ReplyPart &clause) const;
    bool isAnnounced(const Amount &amount) const;
    bool isBare(const Amount &amount) const;
    QChar characterBefore(int position) const;

    const ReplyText &m_text;
    const QString &m_plain;
    QList<Amount> m_amounts;
};

void AmountReader::find()
{
    const QList<ReplyNumber> numbers = replyNumbers(m_plain);
    for (const CurrencyMark &mark : m_text.currencies())
        pair(mark, numbers);
}

/// Assigns the adjacent number to the currency. If there are numbers on both sides, the one that
/// touches the currency is used. If both or neither of them touch it, both amounts are ambiguous.
void AmountReader::pair(const CurrencyMark &mark, const QList<ReplyNumber> &numbers)
{
    const ReplyNumber *left = nullptr;
    const ReplyNumber *right = nullptr;
    for (const ReplyNumber &number : numbers) {
        if (areAdjacent(m_text, number.end, mark.start, QLatin1String("(")))
            left = &number;
        if (!right && !hasOwnUnit(number) &&
            areAdjacent(m_text, mark.end, number.start, QString::fromUtf8(":=.)-−+")))
            right = &number;
    }
    if (left && !m_amounts.isEmpty() && m_amounts.last().end >= left->end && right)
        left = nullptr; // already assigned to the currency on its other side
    const bool touchesLeft = left && left->end == mark.start;
    const bool touchesRight = right && right->start == mark.end;
    if (left && right && touchesLeft == touchesRight) {
        add(mark, *left, true);
        add(mark, *right, true);
    } else if (left && (!right || touchesLeft)) {
        add(mark, *left, false);
    } else if (right) {
        add(mark, *right, false);
    }
}

/// Returns true if the number is a time, a fraction, or an amount of subunits, such as cents.
bool AmountReader::hasOwnUnit(const ReplyNumber &number) const
{
    return number.text.contains(QLatin1Char(':')) || number.text.contains(QLatin1Char('/')) ||
           beginsWithWord(m_text.folded(number.end, m_plain.length()), Word::Subunit);
}

void AmountReader::add(const CurrencyMark &mark, const ReplyNumber &number, bool isDoubtful)
{
    Amount amount = amountOf(mark, number);
    if (isDoubtful)
        amount.money.reset();
    m_amounts << amount;
}

Amount AmountReader::amountOf(const CurrencyMark &mark, const ReplyNumber &number) const
{
    Amount amount;
    amount.start = qMin(mark.start, number.start);
    amount.end = qMax(mark.end, number.end);
    Money money;
    money.currency = mark.name;
    const int sign = signOf(amount, mark, number);
    if (sign == 0 || isTouched(amount, number) ||
        !number.read(mark.grouping, &money.units, &money.decimals))
        return amount;
    money.units *= sign;
    amount.money = money;
    if (!addSubunits(&amount))
        amount.money.reset();
    return amount;
}

/// Returns true if an adjacent character shows that the amount is a part of something else, such as
/// a range or a percentage.
bool AmountReader::isTouched(const Amount &amount, const ReplyNumber &number) const
{
    const QChar before = characterBefore(amount.start);
    const QChar behind = m_plain.length() > amount.end ? m_plain.at(amount.end) : QChar();
    const QString joining = QString::fromUtf8(".,'/*#~≈<>^_\\،");
    const bool isJoined =
        joining.contains(before) || before.isDigit() || QString::fromUtf8("-−%").contains(behind);
    const bool isJoinedToLetter = amount.start == number.start && before.isLetter() &&
                                  before.script() != QChar::Script_Han &&
                                  before.script() != QChar::Script_Thai;
    const ReplyPart line = m_text.lineAt(amount.start);
    const QString lead = m_plain.mid(line.start, number.start - line.start).trimmed();
    // Unless it follows a word, a colon or an equals sign, a number such as "1 500" may be the key
    // of a menu item and an amount.
    const bool isKey = number.text.contains(QLatin1Char(' ')) &&
                       (lead.isEmpty() || !(lead.right(1).at(0).isLetter() ||
                                            QLatin1String(":=").contains(lead.right(1))));
    return isJoined || isJoinedToLetter || isKey;
}

/// Adds the subunits of an amount such as "12 rub. 50 kop.". Returns false if the amount is
/// followed by a number that may be subunits in a different form.
bool AmountReader::addSubunits(Amount *amount) const
{
    const QString behind = m_text.folded(amount->end, m_plain.length());
    const QString form = behind.trimmed();
    int digits = 0;
    while (digits < form.length() && form.at(digits).isDigit())
        ++digits;
    const bool isNext = digits > 0 && beginsWithWord(form.mid(digits), Word::Subunit);
    if (!isNext) {
        const ReplyPart sentence = m_text.sentenceAt(amount->end);
        const int end = qMin(sentence.end, amount->end + 16);
        return !m_text.holds({amount->end, end}, Word::Subunit) || amount->money->decimals > 0;
    }
    if (digits > 2 || amount->money->decimals > 0)
        return false;
    const qint64 part = form.left(digits).toLongLong() * Money::UNITS / 100;
    amount->money->units += amount->money->units < 0 ? -part : part;
    amount->money->decimals = 2;
    return true;
}

QChar AmountReader::characterBefore(int position) const
{
    return position > 0 ? m_plain.at(position - 1) : QChar(QLatin1Char('\n'));
}

/// Returns the sign of the amount as 1 or -1. Returns 0 if the sign is ambiguous, for example
/// because the mark before the amount may be either a minus sign or a dash.
int AmountReader::signOf(const Amount &amount, const CurrencyMark &mark,
                         const ReplyNumber &number) const
{
    const QString between =
        mark.end <= number.start ? m_plain.mid(mark.end, number.start - mark.end) : QString();
    if (between.contains(QLatin1Char('+')) || characterBefore(amount.start) == QLatin1Char('+'))
        return 0;
    if (between.contains(QChar(0x2212)))
        return -1;
    if (between.contains(QLatin1Char('-')))
        return between.contains(QLatin1Char(' ')) ? 0 : -1;
    const QString lead = m_plain.left(amount.start);
    const int last = lead.trimmed().isEmpty() ? -1 : lead.lastIndexOf(lead.trimmed().right(1));
    if (last < 0)
        return 1;
    const QChar dash = lead.at(last);
    if (dash == QChar(0x2212))
        return -1;
    if (dash == QChar(0x2013))
        return 0;
    if (dash != QLatin1Char('-'))
        return 1;
    return last == amount.start - 1 ? dashSign(last) : 0;
}

/// Returns the sign for an amount that directly follows a hyphen. After a word for the balance, the
/// hyphen may be a dash that separates the word from the amount.
int AmountReader::dashSign(int dash) const
{
    if (dash == 0)
        return -1;
    const QString before = m_text.folded(m_text.lineAt(dash).start, dash);
    const QString word = before.trimmed();
    if (word.isEmpty())
        return -1;
    const QChar last = word.at(word.length() - 1);
    if (last == QLatin1Char(':') || last == QLatin1Char('='))
        return -1;
    const bool isMinus = before.endsWith(QLatin1Char(' ')) && last.isLetter() &&
                         !holdsWord(word.section(QLatin1Char(' '), -1), Word::Balance);
    return isMinus ? -1 : 0;
}

/// Returns true if the amount follows a colon or an equals sign.
bool AmountReader::isAnnounced(const Amount &amount) const
{
    const QString lead = m_plain.left(amount.start).trimmed();
    return lead.endsWith(QLatin1Char(':')) || lead.endsWith(QLatin1Char('='));
}

/// Returns true if the clause contains several amounts and it is not clear which words refer to
/// which amount.
bool AmountReader::isShared(const ReplyPart &clause) const
{
    int count = 0;
    bool areAnnounced = true;
    for (const Amount &amount : m_amounts) {
        if (amount.start < clause.start || amount.start >= clause.end)
            continue;
        ++count;
        areAnnounced = areAnnounced && isAnnounced(amount);
    }
    return count > 1 && !areAnnounced;
}

void AmountReader::classify()
{
    for (int i = 0; i < m_amounts.size(); ++i)
        m_amounts[i].role = roleOf(i);
}

Role AmountReader::roleOf(int index) const
{
    const Amount &amount = m_amounts.at(index);
    const ReplyPart clause = m_text.clauseAt(amount.start);
    if (isShared(clause))
        return Role::Unknown;
    int start = clause.start;
    int end = clause.end;
    if (index > 0)
        start = qMax(start, m_amounts.at(index - 1).end);
    if (index + 1 < m_amounts.size() && m_amounts.at(index + 1).start < end)
        end = amount.end; // the words before the next amount refer to that amount
    return roleByWords(m_text.folded(start, amount.start), m_text.folded(amount.end, end));
}

Role AmountReader::roleByWords(const QString &before, const QString &behind) const
{
    if (holdsWord(before, Word::NotBalance) || holdsWord(before, Word::NotBalanceYet) ||
        holdsWord(behind, Word::NotBalance) || endsWithWord(before, Word::Price) ||
        beginsWithWord(behind, Word::Per))
        return Role::Other;
    if (!hasOnlyWords(before, {Word::Balance, Word::Have, Word::Link}) ||
        !hasOnlyWords(untilDigit(behind),
                      {Word::Balance, Word::Have, Word::Left, Word::Link, Word::Validity}))
        return holdsWord(before, Word::Balance) ? Role::Rival : Role::Unknown;
    const bool isOwned = before.trimmed().isEmpty() || holdsWord(before, Word::Have);
    if (holdsWord(before, Word::Balance) || (isOwned && holdsWord(behind, Word::Balance)))
        return Role::Balance;
    if (holdsWord(before, Word::Have) || holdsWord(behind, Word::Have))
        return Role::Possible;
    return Role::Unknown;
}

/// Returns true if the reply does not contain any letters or digits outside the amount.
bool AmountReader::isBare(const Amount &amount) const
{
    const QString rest = m_plain.left(amount.start) + m_plain.mid(amount.end);
    for (const QChar character : rest) {
        if (character.isLetterOrNumber())
            return false;
    }
    return true;
}

std::optional<Money> AmountReader::balance()
{
    find();
    classify();
    const Amount *found = nullptr;
    for (const Amount &amount : m_amounts) {
        if (amount.role != Role::Balance && amount.role != Role::Rival)
            continue;
        if (amount.role == Role::Rival || !amount.money ||
            (found && *found->money != *amount.money))
            return std::nullopt;
        found = &amount;
    }
    if (found)
        return found->money;
    if (m_amounts.size() != 1)
        return std::nullopt;
    const Amount &only = m_amounts.first();
    const bool isLikely = only.role == Role::Possible || isBare(only);
    return isLikely ? only.money : std::nullopt;
}

} // namespace

std::optional<Money> readBalance(const ReplyText &text)
{
    return AmountReader(text).balance();
}

} // namespace Dashboard
