#include "Currencies.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

#include "ReplyWords.h"

namespace Dashboard
{

namespace
{

/**
 * A currency with its ISO 4217 code and its marks, which are its other symbols and names, separated
 * by "|".
 */
struct Currency {
    const char *name;
    Grouping grouping;
    const char *marks;
};

// Longer marks take precedence over shorter ones, so the order of the table has no effect.
const Currency CURRENCIES[] = {
    {"EUR", Grouping::Unknown, "€|euro|euros|eur|евро|يورو|欧元|evro"},
    {"USD", Grouping::Unknown, "us$|usd|us dollars|долл.|долл|美元"},
    {"GBP", Grouping::Commas, "£|gbp"},
    {"JPY", Grouping::Commas, "円"},
    {"CNY", Grouping::Commas, "元|圆|人民币|rmb|yuan"},
    {"HKD", Grouping::Commas, "hk$|港元|港币"},
    {"TWD", Grouping::Commas, "nt$"},
    {"INR", Grouping::Commas, "₹|inr"},
    {"PKR", Grouping::Commas, "pkr"},
    {"LKR", Grouping::Commas, "lkr"},
    {"NPR", Grouping::Commas, "npr"},
    {"BDT", Grouping::Commas, "৳|tk.|tk|taka|bdt|টাকা"},
    {"KES", Grouping::Commas, "kes|ksh|kshs|ksh.|kshs."},
    {"TZS", Grouping::Commas, "tzs|tsh|tshs"},
    {"UGX", Grouping::Commas, "ugx|ush|ushs"},
    {"NGN", Grouping::Commas, "₦|ngn|naira"},
    {"GHS", Grouping::Commas, "₵|ghs|ghc|gh₵|cedis"},
    {"ETB", Grouping::Commas, "etb|birr|ብር"},
    {"ZMW", Grouping::Commas, "zmw"},
    {"MWK", Grouping::Commas, "mwk"},
    {"RWF", Grouping::Commas, "rwf|frw"},
    {"ZAR", Grouping::Unknown, "zar"},
    {"MZN", Grouping::Unknown, "mzn|mt$"},
    {"AOA", Grouping::Unknown, "kz|kwanzas|aoa"},
    {"XOF", Grouping::Unknown, "fcfa|f cfa|cfa|xof|francs cfa|f.cfa"},
    {"XAF", Grouping::Unknown, "xaf"},
    {"CDF", Grouping::Unknown, "cdf"},
    {"MGA", Grouping::Unknown, "ariary|mga"},
    {"MAD", Grouping::Unknown, "درهم مغربي"},
    {"AED", Grouping::Unknown, "د.ا|aed"},
    {"SAR", Grouping::Unknown, "ر.س|ريال سعودي|sar"},
    {"QAR", Grouping::Unknown, "ر.ق|ريال قطري|qar"},
    {"YER", Grouping::Unknown, "ريال يمني|yer"},
    {"EGP", Grouping::Unknown, "ج.م|جنيه مصري|egp|l.e.|l.e"},
    {"SDG", Grouping::Unknown, "جنيه سوداني|sdg"},
    {"KWD", Grouping::ThreeDecimals, "د.ك|دينار كويتي|kwd|k.d.|kd"},
    {"BHD", Grouping::ThreeDecimals, "د.ب|دينار بحريني|bhd|bd$"},
    {"OMR", Grouping::ThreeDecimals, "ر.ع|ريال عماني|omr"},
    {"JOD", Grouping::ThreeDecimals, "د.ا.|دينار اردني|jod"},
    {"TND", Grouping::ThreeDecimals, "د.ت|دينار تونسي|tnd"},
    {"LYD", Grouping::ThreeDecimals, "د.ل|دينار ليبي|lyd"},
    {"IQD", Grouping::Unknown, "د.ع|دينار عراقي|iqd"},
    {"DZD", Grouping::Unknown, "دج|د.ج|دينار جزائري|dzd"},
    {"SYP", Grouping::Unknown, "ل.س|ليرة سورية|syp"},
    {"LBP", Grouping::Unknown, "ل.ل|ليرة لبنانية|lbp"},
    {"ILS", Grouping::Unknown, "₪|ils|nis|شيكل|ש\"ח"},
    {"TRY", Grouping::Unknown, "₺|tl"},
    {"IRR", Grouping::Unknown, "irr"},
    {"AFN", Grouping::Unknown, "afn|افغانی"},
    {"RUB", Grouping::Unknown, "₽|руб.|руб|рубль|рубля|рублеи|р.|rub|rur"},
    {"UAH", Grouping::Unknown, "₴|грн.|грн|гривень|гривен|uah"},
    {"BYN", Grouping::Unknown, "byn|бел. руб.|бел.руб."},
    {"KZT", Grouping::Unknown, "₸|тенге|тг.|тг|kzt"},
    {"KGS", Grouping::Unknown, "сом|kgs"},
    {"UZS", Grouping::Unknown, "сум|сум.|so'm|uzs"},
    {"TJS", Grouping::Unknown, "сомони|tjs"},
    {"AZN", Grouping::Unknown, "₼|azn|manat"},
    {"AMD", Grouping::Unknown, "֏|դր.|դրամ"},
    {"GEL", Grouping::Unknown, "₾|ლარი"},
    {"MDL", Grouping::Unknown, "mdl"},
    {"RON", Grouping::Unknown, ""},
    {"BGN", Grouping::Unknown, "лв.|лв|лева|bgn"},
    {"RSD", Grouping::Unknown, "rsd|дин.|дин"},
    {"BAM", Grouping::Unknown, "km$"},
    {"MKD", Grouping::Unknown, "mkd|ден.|ден"},
    {"HRK", Grouping::Unknown, "hrk"},
    {"ALL", Grouping::Unknown, ""},
    {"HUF", Grouping::Unknown, "ft|ft.|huf"},
    {"CZK", Grouping::Unknown, "kc|czk"},
    {"PLN", Grouping::Unknown, "zł|pln|zl"},
    {"CHF", Grouping::Unknown, "chf|sfr."},
    {"SEK", Grouping::Unknown, "sek"},
    {"NOK", Grouping::Unknown, "nok"},
    {"DKK", Grouping::Unknown, "dkk"},
    {"ISK", Grouping::Points, "isk"},
    {"kr", Grouping::Unknown, "kr|kr.|kronor|kroner"},
    {"BRL", Grouping::Unknown, "r$|brl|reais"},
    {"ARS", Grouping::Points, "ars|ar$"},
    {"CLP", Grouping::Points, "clp"},
    {"COP", Grouping::Points, "cop"},
    {"PYG", Grouping::Points, "₲|gs.|pyg"},
    {"UYU", Grouping::Unknown, "uyu|$u"},
    {"PEN", Grouping::Unknown, "s/|s/.|soles"},
    {"BOB", Grouping::Unknown, "bs.|bs"},
    {"VES", Grouping::Unknown, "ves"},
    {"MXN", Grouping::Unknown, "mxn|mx$|mn$|m.n."},
    {"GTQ", Grouping::Unknown, "gtq"},
    {"HNL", Grouping::Unknown, "hnl|lps.|lps"},
    {"NIO", Grouping::Unknown, "nio|c$"},
    {"CRC", Grouping::Unknown, "₡|crc|colones"},
    {"DOP", Grouping::Unknown, "rd$"},
    {"JMD", Grouping::Unknown, "jmd|j$"},
    {"TTD", Grouping::Unknown, "ttd|tt$"},
    {"HTG", Grouping::Unknown, "htg|gourdes"},
    {"PHP", Grouping::Commas, "₱|php"},
    {"IDR", Grouping::Points, "rp|rp.|idr|rupiah"},
    {"MYR", Grouping::Commas, "rm|myr"},
    {"SGD", Grouping::Commas, "s$|sgd"},
    {"THB", Grouping::Commas, "฿|thb|บาท|baht"},
    {"VND", Grouping::Points, "₫|đ|vnđ|vnd|đong"},
    {"KHR", Grouping::Unknown, "khr|៛"},
    {"LAK", Grouping::Unknown, "₭"},
    {"MMK", Grouping::Commas, "ks|kyat|kyats|mmk"},
    {"MNT", Grouping::Unknown, "₮|mnt|төг"},
    {"KRW", Grouping::Commas, "₩|krw|원"},
    {"AUD", Grouping::Commas, "a$|aud"},
    {"NZD", Grouping::Commas, "nz$|nzd"},
    {"CAD", Grouping::Unknown, ""},
    {"FJD", Grouping::Commas, "fj$|fjd"},
    {"PGK", Grouping::Unknown, "pgk"},
    {"MVR", Grouping::Unknown, "mvr|rf."},
    // The remaining codes of ISO 4217, which have no other marks.
    {"AWG", Grouping::Unknown, ""},
    {"ANG", Grouping::Unknown, ""},
    {"BBD", Grouping::Unknown, ""},
    {"BIF", Grouping::Unknown, ""},
    {"BMD", Grouping::Unknown, ""},
    {"BND", Grouping::Unknown, ""},
    {"BSD", Grouping::Unknown, ""},
    {"BTN", Grouping::Unknown, ""},
    {"BWP", Grouping::Unknown, ""},
    {"BZD", Grouping::Unknown, ""},
    {"CVE", Grouping::Unknown, ""},
    {"CUP", Grouping::Unknown, ""},
    {"DJF", Grouping::Unknown, ""},
    {"ERN", Grouping::Unknown, ""},
    {"FKP", Grouping::Unknown, ""},
    {"GIP", Grouping::Unknown, ""},
    {"GMD", Grouping::Unknown, ""},
    {"GNF", Grouping::Unknown, ""},
    {"GYD", Grouping::Unknown, ""},
    {"KMF", Grouping::Unknown, ""},
    {"KPW", Grouping::Unknown, ""},
    {"KYD", Grouping::Unknown, ""},
    {"LRD", Grouping::Unknown, ""},
    {"LSL", Grouping::Unknown, ""},
    {"MOP", Grouping::Unknown, ""},
    {"MRU", Grouping::Unknown, ""},
    {"NAD", Grouping::Unknown, ""},
    {"PAB", Grouping::Unknown, ""},
    {"SBD", Grouping::Unknown, ""},
    {"SCR", Grouping::Unknown, ""},
    {"SHP", Grouping::Unknown, ""},
    {"SLE", Grouping::Unknown, ""},
    {"SLL", Grouping::Unknown, ""},
    {"SOS", Grouping::Unknown, ""},
    {"SRD", Grouping::Unknown, ""},
    {"SSP", Grouping::Unknown, ""},
    {"STN", Grouping::Unknown, ""},
    {"SVC", Grouping::Unknown, ""},
    {"SZL", Grouping::Unknown, ""},
    {"TMT", Grouping::Unknown, ""},
    {"TOP", Grouping::Unknown, ""},
    {"VUV", Grouping::Unknown, ""},
    {"WST", Grouping::Unknown, ""},
    {"XCD", Grouping::Unknown, ""},
    {"XPF", Grouping::Unknown, ""},
    {"ZWG", Grouping::Unknown, ""},
    {"ZWL", Grouping::Unknown, ""},
    {"Rs", Grouping::Commas, "rs|rs.|₨|رو|रु.|रु|روپے"},
    {"$", Grouping::Unknown, "$|dollar|dollars|dolares"},
    {"¥", Grouping::Commas, "¥"},
    {"peso", Grouping::Unknown, "pesos|peso"},
    {"lei", Grouping::Unknown, "lei"},
    {"Fr", Grouping::Unknown, "fr.|francs"},
    {"Sh", Grouping::Commas, "shs|sh.|/="},
    {"DH", Grouping::Unknown, "dh|dhs|dhs.|dh."},
    {"DA", Grouping::Unknown, "da$"},
    {"DT", Grouping::ThreeDecimals, "dt$"},
    {"درهم", Grouping::Unknown, "درهم|دراهم"},
    {"ريال", Grouping::Unknown, "ريال|ريالا"},
    {"دينار", Grouping::Unknown, "دينار|دنانير"},
    {"جنيه", Grouping::Unknown, "جنيه|جنيها|جنيهات"},
    {"ليرة", Grouping::Unknown, "ليرة|ليرات"},
};

struct Mark {
    QString text; // in lower case and in plain form
    QString name;
    Grouping grouping = Grouping::Unknown;
    bool isCode = false; // matches only in capital letters
};

bool isIsoCode(const char *name)
{
    return qstrlen(name) == 3 && name[0] >= 'A' && name[0] <= 'Z' && name[1] >= 'A' &&
           name[1] <= 'Z' && name[2] >= 'A' && name[2] <= 'Z';
}

void addMarks(const Currency &currency, QList<Mark> *marks)
{
    Mark mark;
    mark.name = QString::fromUtf8(currency.name);
    mark.grouping = currency.grouping;
    for (const QString &each : QString::fromUtf8(currency.marks).split(QLatin1Char('|'))) {
        mark.text = plainForm(each).toLower();
        // In these marks, the trailing "$" is not part of the currency's symbol and is removed. In
        // other marks, such as "us$", the "$" is part of the symbol.
        if (each == QLatin1String("da$") || each == QLatin1String("dt$") ||
            each == QLatin1String("km$") || each == QLatin1String("mt$") ||
            each == QLatin1String("bd$"))
            mark.text.chop(1);
        if (!mark.text.isEmpty())
            *marks << mark;
    }
    mark.isCode = true;
    mark.text = mark.name.toLower();
    if (isIsoCode(currency.name))
        *marks << mark;
}

QList<Mark> readMarks()
{
    QList<Mark> marks;
    for (const Currency &currency : CURRENCIES)
        addMarks(currency, &marks);
    std::stable_sort(marks.begin(), marks.end(), [](const Mark &a, const Mark &b) {
        return a.text.length() > b.text.length();
    });
    return marks;
}

/// Returns the marks grouped by their first character, with the longest ones first.
QHash<QChar, QList<Mark>> sortMarks()
{
    QHash<QChar, QList<Mark>> sorted;
    for (const Mark &mark : readMarks())
        sorted[mark.text.at(0)] << mark;
    return sorted;
}

const QHash<QChar, QList<Mark>> &allMarks()
{
    static const QHash<QChar, QList<Mark>> marks = sortMarks();
    return marks;
}

bool isLetterAt(const QString &text, int position)
{
    return position >= 0 && position < text.length() && text.at(position).isLetter();
}

/// Returns true if the mark is only a part of a word. Always returns false for Chinese, Thai and
/// Korean, where a currency is often not separated from adjacent words.
bool isInsideWord(const QString &text, int start, int end)
{
    const QChar::Script script = text.at(start).script();
    if (script == QChar::Script_Han || script == QChar::Script_Thai ||
        script == QChar::Script_Hangul)
        return false;
    const bool touchesBefore = text.at(start).isLetter() && isLetterAt(text, start - 1);
    return touchesBefore || (text.at(end - 1).isLetter() && isLetterAt(text, end));
}

bool isCapital(const QString &text)
{
    return text == text.toUpper();
}

/// Returns true if a currency code can be recognized in the reply. If the reply contains only
/// capital letters, a code such as "ALL" cannot be distinguished from the word "all".
bool mayBeCode(const QString &plain)
{
    return plain != plain.toUpper();
}

/// Returns the mark at this position, or null.
const Mark *markAt(const QString &plain, const QString &folded, int position)
{
    const auto marks = allMarks().constFind(folded.at(position));
    if (marks == allMarks().constEnd())
        return nullptr;
    for (const Mark &mark : *marks) {
        const int end = position + mark.text.length();
        if (folded.mid(position, mark.text.length()) != mark.text ||
            isInsideWord(folded, position, end))
            continue;
        const bool isWritten = isCapital(plain.mid(position, mark.text.length()));
        if (!mark.isCode || (isWritten && mayBeCode(plain)))
            return &mark;
    }
    return nullptr;
}

} // namespace

QList<CurrencyMark> currencyMarks(const QString &plain)
{
    const QString folded = plain.toLower();
    QList<CurrencyMark> result;
    for (int i = 0; i < plain.length(); ++i) {
        const Mark *mark = markAt(plain, folded, i);
        if (!mark)
            continue;
        CurrencyMark found;
        found.start = i;
        found.end = i + mark->text.length();
        found.name = mark->name;
        found.grouping = mark->grouping;
        result << found;
        i = found.end - 1;
    }
    return result;
}

} // namespace Dashboard
