#include "HarmlessMarkup.h"

#include <algorithm>
#include <iterator>

#include <QByteArray>
#include <QImage>
#include <QTextDocument>

namespace
{

const int LONGEST_TAG = 10; // the length of "blockquote"

/// The tags that QTextDocument supports, sorted.
const char *const KNOWN_TAGS[] = {
    "a",    "address", "b",     "big",   "blockquote", "body",  "br",   "caption", "center",
    "cite", "code",    "dd",    "dfn",   "div",        "dl",    "dt",   "em",      "font",
    "h1",   "h2",      "h3",    "h4",    "h5",         "h6",    "head", "hr",      "html",
    "i",    "img",     "kbd",   "li",    "link",       "meta",  "nobr", "ol",      "p",
    "pre",  "qt",      "s",     "samp",  "script",     "small", "span", "strong",  "style",
    "sub",  "sup",     "table", "tbody", "td",         "tfoot", "th",   "thead",   "title",
    "tr",   "tt",      "u",     "ul",    "var"};

bool isKnown(const QString &name)
{
    const QByteArray latin = name.toLatin1();
    const char *const *end = std::end(KNOWN_TAGS);
    const char *const *found =
        std::lower_bound(std::begin(KNOWN_TAGS), end, latin,
                         [](const char *tag, const QByteArray &wanted) { return tag < wanted; });
    return found != end && latin == *found;
}

bool endsName(const QString &text, int place)
{
    const QChar unit = text.at(place);
    const bool closes = unit == QLatin1Char('/') && place + 1 < text.length() &&
                        text.at(place + 1) == QLatin1Char('>');
    return closes || unit.isSpace() || unit == QLatin1Char('>') || unit == QLatin1Char('<') ||
           unit == QLatin1Char('=');
}

/// Returns true if the character is white space other than a line feed. Line feeds are excluded
/// because the transcript replaces them with tags.
bool isBlank(QChar unit)
{
    return unit.isSpace() && unit != QLatin1Char('\n');
}

/// Returns the start of the tag name after `bracket`, skipping blanks and the slash of a closing
/// tag.
int nameBegin(const QString &text, int bracket)
{
    int begin = bracket + 1;
    while (begin < text.length() && isBlank(text.at(begin)))
        ++begin;
    const bool closes = begin < text.length() && text.at(begin) == QLatin1Char('/');
    return closes ? begin + 1 : begin;
}

int nameEnd(const QString &text, int begin)
{
    int end = begin;
    while (end < text.length() && end - begin <= LONGEST_TAG && !endsName(text, end))
        ++end;
    return end;
}

/// Returns true if a quoted value starts at `place`. A quotation mark starts a value only at the
/// beginning of a word, as in `size="2"`.
bool opensQuote(const QString &text, int place)
{
    const QChar unit = text.at(place);
    const QChar before = text.at(place - 1);
    return (unit == QLatin1Char('"') || unit == QLatin1Char('\'')) &&
           (before.isSpace() || before == QLatin1Char('='));
}

/// Returns true if an unquoted ">" closes the tag before another tag or a line feed starts.
bool hasEnd(const QString &text, int place)
{
    for (int i = place; i < text.length(); ++i) {
        if (opensQuote(text, i))
            i = text.indexOf(text.at(i), i + 1);
        if (i < 0 || text.at(i) == QLatin1Char('<') || text.at(i) == QLatin1Char('\n'))
            return false;
        if (text.at(i) == QLatin1Char('>'))
            return true;
    }
    return false;
}

bool beginsTag(const QString &text, int bracket)
{
    const int begin = nameBegin(text, bracket);
    const int end = nameEnd(text, begin);
    return isKnown(text.mid(begin, end - begin).toLower()) && hasEnd(text, end);
}

} // namespace

namespace HarmlessMarkup
{

QString withStrayBracketsEscaped(const QString &text)
{
    QString result;
    result.reserve(text.length());
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i) == QLatin1Char('<') && !beginsTag(text, i))
            result += QLatin1String("&lt;");
        else
            result += text.at(i);
    }
    return result;
}

bool mayKeepMarkup(const MarkupCost &cost, const MarkupCost &before, bool isInPieces)
{
    return cost.isBearable(before) && (!isInPieces || cost.tags == 0);
}

QVariant emptyResource(int type)
{
    if (type != QTextDocument::ImageResource)
        return QString(QLatin1String(""));
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(0);
    return pixel;
}

} // namespace HarmlessMarkup
