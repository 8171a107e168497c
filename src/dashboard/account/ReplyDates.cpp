#include "ReplyDates.h"

#include <QRegularExpression>
#include <QStringList>

namespace Dashboard
{

namespace
{

const int MONTHS = 12;
const int FIRST_YEAR = 2000; // years of other calendars are outside this range
const int LAST_YEAR = 2099;

/// The beginnings of the names of the months in several languages. Each line contains one month. A
/// name that ends with "$" must match the complete word.
const char *const MONTH_NAMES[MONTHS] = {
    "jan|ene|gen|янв|січ|يناير|كانون الثاني|جانفي|styc|led|sij|oca|tammi|ιαν",
    "feb|fev|fév|фев|лют|فبراير|شباط|فيفري|lut|uno|velj|sub|şub|helmi|φεβ",
    "mar$|march|märz|marz|maer|mrz|marc|mars|мар|бер|مارس|اذار|ozu|bre|maalis|μαρ",
    "apr|abr|avr|апр|кві|ابريل|نيسان|افريل|kwi|dub|trav|nis|huhti|απρ",
    "may$|mayis|mai$|mayo|maio|mag|maj|май|мая|маи|тра|مايو|ايار|ماي$|svib|kve|touko|μαι",
    "jun$|june|juni|junio|junho|juin|giu|июн|чер|يونيو|حزيران|جوان|cze|lip|haz|kesa|ιουν",
    "jul|juil|lug|июл|лип|يوليو|تموز|جويلية|srp|tem|heina|ιουλ",
    "aug|ago|aou|aoû|авг|сер|اغسطس|اب$|اوت|sie|kol|ağu|agu|elo|αυγ",
    "sep|set|сен|вер|سبتمبر|ايلول|wrz|rujan|eyl|syys|σεπ",
    "oct|okt|out|ott|окт|жов|اكتوبر|تشرين الاول|paz|paź|lis|eki|loka|οκτ",
    "nov|ноя|лис|نوفمبر|تشرين الثاني|studenog|kas|marras|νοε",
    "dec|dez|dic|déc|дек|гру|ديسمبر|كانون الاول|gru|prosinac|ara|joulu|δεκ"};

bool isName(const QString &word, const QString &stem)
{
    if (stem.endsWith(QLatin1Char('$')))
        return word == stem.left(stem.length() - 1);
    return word.startsWith(stem);
}

/// Returns the month that matches the word, or 0 if there is none. Also returns 0 if the word is
/// ambiguous because it matches different months in different languages.
int monthOf(const QString &word)
{
    int month = 0;
    for (int i = 0; i < MONTHS; ++i) {
        bool isThis = false;
        for (const QString &name : QString::fromUtf8(MONTH_NAMES[i]).split(QLatin1Char('|')))
            isThis = isThis || isName(word, plainForm(name).toLower());
        if (isThis && month != 0)
            return 0;
        if (isThis)
            month = i + 1;
    }
    return month;
}

/** A date in a reply. The date is invalid if it is ambiguous. */
struct FoundDate {
    int start = 0;
    int end = 0;
    QDate date;
};

QDate checkedDate(int year, int month, int day)
{
    return year >= FIRST_YEAR && year <= LAST_YEAR ? QDate(year, month, day) : QDate();
}

/// Returns the date in a numeric format such as 2027-12-31, 31.12.2027 or 12/31/2027. Returns an
/// invalid date if the order of day, month and year is ambiguous.
QDate dateOfDigits(const QRegularExpressionMatch &match)
{
    const int first = match.captured(1).toInt();
    const int second = match.captured(3).toInt();
    const int third = match.captured(4).toInt();
    const QString mark = match.captured(2);
    if (match.captured(1).length() == 4)
        return checkedDate(first, second, third);
    if (match.captured(4).length() != 4)
        return QDate(); // the position of a two-digit year is unknown
    if (mark == QLatin1String("."))
        return checkedDate(third, second, first);
    if (first > MONTHS)
        return checkedDate(third, second, first);
    return second > MONTHS ? checkedDate(third, first, second) : QDate();
}

void addMatch(const QRegularExpressionMatch &match, const QDate &date, QList<FoundDate> *dates)
{
    FoundDate found;
    found.start = match.capturedStart();
    found.end = match.capturedEnd();
    found.date = date;
    *dates << found;
}

void findDigits(const QString &folded, QList<FoundDate> *dates)
{
    static const QRegularExpression digits(QString::fromUtf8(
        "(?<![0-9.,/:-])([0-9]{4}|[0-9]{1,2})([./-])([0-9]{1,2})\\2([0-9]{4}|[0-9]{1,2})"
        "(?![0-9/-])(?!\\.[0-9])"));
    for (auto match = digits.globalMatch(folded); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        addMatch(found, dateOfDigits(found), dates);
    }
    static const QRegularExpression chinese(
        QString::fromUtf8("(?<![0-9])([0-9]{4}) ?年 ?([0-9]{1,2}) ?月 ?([0-9]{1,2}) ?日"));
    for (auto match = chinese.globalMatch(folded); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        addMatch(found,
                 checkedDate(found.captured(1).toInt(), found.captured(2).toInt(),
                             found.captured(3).toInt()),
                 dates);
    }
}

void findDayFirst(const QString &folded, QList<FoundDate> *dates)
{
    static const QRegularExpression dayFirst(QString::fromUtf8(
        "(?<![0-9.,/:-])([0-9]{1,2})(?:\\.|st|nd|rd|th|er|o)?[ -]?(?:of |de |/)?"
        "(\\p{L}{3,12}(?: (?:الثاني|الاول))?)\\.?[ ,/-]{1,2}(?:de |del |of )?([0-9]{4})(?![0-9])"));
    for (auto match = dayFirst.globalMatch(folded); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const int month = monthOf(found.captured(2));
        if (month > 0)
            addMatch(found,
                     checkedDate(found.captured(3).toInt(), month, found.captured(1).toInt()),
                     dates);
    }
}

void findMonthFirst(const QString &folded, QList<FoundDate> *dates)
{
    static const QRegularExpression monthFirst(QString::fromUtf8(
        "(?<![\\p{L}0-9.,/:-])(?<![0-9] )(\\p{L}{3,12})\\.?[ -]([0-9]{1,2})(?:st|nd|rd|th)?,?[ -]"
        "([0-9]{4})(?![0-9])"));
    for (auto match = monthFirst.globalMatch(folded); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const int month = monthOf(found.captured(1));
        if (month > 0)
            addMatch(found,
                     checkedDate(found.captured(3).toInt(), month, found.captured(2).toInt()),
                     dates);
    }
}

bool isBare(const QString &plain, const FoundDate &date)
{
    const QString rest = plain.left(date.start) + plain.mid(date.end);
    for (const QChar character : rest) {
        if (character.isLetterOrNumber())
            return false;
    }
    return true;
}

/// Returns true if the words next to the date are about the validity of the account.
bool hasValidityWords(const ReplyText &text, const FoundDate &date)
{
    const ReplyPart clause = text.clauseAt(date.start);
    const int lastDigit = text.plain().lastIndexOf(QRegularExpression(QLatin1String("[0-9]")),
                                                   qMax(0, date.start - 1));
    const int start = date.start == 0 ? 0 : qMax(clause.start, lastDigit + 1);
    QString before = text.folded(start, date.start);
    for (const CurrencyMark &mark : text.currencies()) {
        if (mark.start >= start && mark.end <= date.start)
            before = text.folded(mark.end, date.start);
    }
    const QString behind = text.folded(date.end, clause.end);
    return (holdsWord(before, Word::Validity) || holdsWord(behind, Word::Validity)) &&
           hasOnlyWords(before,
                        {Word::Validity, Word::Account, Word::Balance, Word::Link, Word::Number});
}

/// Returns true if, according to the words, the date is the end of the validity of the account, as
/// opposed to that of a bonus or a package.
bool isOfAccount(const ReplyText &text, const FoundDate &date)
{
    if (isBare(text.plain(), date))
        return true;
    const ReplyPart sentence = text.sentenceAt(date.start);
    if (!hasValidityWords(text, date) || text.holds(sentence, Word::Extra))
        return false;
    return text.holds(sentence, Word::Account) ||
           !holdsWord(text.folded(0, date.start), Word::Extra);
}

} // namespace

std::optional<QDate> readValidity(const ReplyText &text)
{
    QList<FoundDate> dates;
    findDigits(text.folded(), &dates);
    findDayFirst(text.folded(), &dates);
    findMonthFirst(text.folded(), &dates);
    std::optional<QDate> validity;
    for (const FoundDate &found : dates) {
        if (!isOfAccount(text, found))
            continue;
        if (!found.date.isValid() || (validity && *validity != found.date))
            return std::nullopt;
        validity = found.date;
    }
    return validity;
}

} // namespace Dashboard
