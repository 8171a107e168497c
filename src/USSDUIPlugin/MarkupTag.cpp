#include "MarkupTag.h"

#include <algorithm>
#include <iterator>

#include <QByteArray>

namespace
{

const int kLongestTag = 10; // "blockquote"

/// The tags that QTextDocument reads, sorted.
const char *const kKnownTags[] = {
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
    const char *const *end = std::end(kKnownTags);
    const char *const *found =
        std::lower_bound(std::begin(kKnownTags), end, latin,
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

/// The name of the tag that would begin at `bracket`, in lower case; blanks may stand before it.
QString tagName(const QString &text, int bracket)
{
    int begin = bracket + 1;
    while (begin < text.length() && text.at(begin).isSpace())
        ++begin;
    if (begin < text.length() && text.at(begin) == QLatin1Char('/'))
        ++begin;
    int end = begin;
    while (end < text.length() && end - begin <= kLongestTag && !endsName(text, end))
        ++end;
    return text.mid(begin, end - begin).toLower();
}

} // namespace

namespace MarkupTag
{

QString withOthersAsLetters(const QString &text)
{
    const int lastClose = text.lastIndexOf(QLatin1Char('>')); // a tag without one has no end
    QString result;
    result.reserve(text.length());
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i) == QLatin1Char('<') && (i > lastClose || !isKnown(tagName(text, i))))
            result += QLatin1String("&lt;");
        else
            result += text.at(i);
    }
    return result;
}

} // namespace MarkupTag
