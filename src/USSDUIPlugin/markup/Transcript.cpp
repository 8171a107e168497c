#include "Transcript.h"

#include "HarmlessMarkup.h"
#include "PluginConfig.h"
#include "QtCompat.h"
#include "SlowText.h"

using namespace Formats;

namespace
{

const int UNITS_IN_A_POINT = 20;

QString hexByte(int value)
{
    return QString::fromLatin1("%1").arg(static_cast<unsigned int>(value), 2, 16, QLatin1Char('0'));
}

/// Returns true if `unit` has a special meaning in a rich-text document. Such a character starts a
/// tag or an entity, or delimits a paragraph, a frame or an object.
bool meansMoreThanText(QChar unit)
{
    switch (unit.unicode()) {
    case '<':
    case '&':
    case 0x0000:
    case QChar::ParagraphSeparator:
    case QChar::ObjectReplacementCharacter:
    case 0xFDD0:
    case 0xFDD1:
        return true;
    default:
        return false;
    }
}

bool isPlain(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (meansMoreThanText(text.at(i)))
            return false;
    }
    return true;
}

/// Returns true if the entry may change the appearance of later entries. A tag may remain open, and
/// a style sheet applies to all later entries. An entry with a blank caption may be merged with the
/// next entry.
bool mayReachOn(const QString &caption, const QString &text)
{
    return text.contains(QLatin1Char('<')) || !isPlain(caption) || caption.trimmed().isEmpty();
}

QString paragraph(Transcript::Direction direction, const Char &look, bool rightToLeft,
                  const QString &content)
{
    const QString lineBreak = QLatin1String("<br>");
    QString markup = QLatin1String(
        rightToLeft ? "<p dir='rtl' style=\" margin-top:0px; margin-bottom:0px;\">"
                      "<span style=\"color : #"
                    : "<p style=\" margin-top:0px; margin-bottom:0px;\"><span style=\"color : #");
    markup += hexByte(look.red) + hexByte(look.green) + hexByte(look.blue);
    markup += QLatin1String(";\" style=\"font-size : ");
    markup += QString::number(look.yHeight / UNITS_IN_A_POINT);
    markup += QLatin1String("pt;\">") + content;
    if (direction == Transcript::Received)
        markup += lineBreak;
    markup += QLatin1String("</span></p>");
    return markup.replace(QLatin1Char('\n'), lineBreak);
}

} // namespace

namespace Transcript
{

Entry entry(Direction direction, const Char &look, bool rightToLeft, const QString &caption,
            const QString &text)
{
    const QString content = HarmlessMarkup::withStrayBracketsEscaped(text);
    Entry result;
    result.markup = paragraph(direction, look, rightToLeft, caption + content);
    result.isPlain = isPlain(caption + content);
    result.mayReachOn = mayReachOn(caption, content);
    result.isHeavy = SlowText::isHeavy(text);
    result.cost = markupCost(text);
    result.letters = result.markup;
    result.lettersMayReachOn = mayReachOn(caption, QString());
    result.words = caption + text;
    result.sample = paragraph(direction, look, rightToLeft, QLatin1String("-"));
    if (result.cost.tags > 0)
        result.letters =
            paragraph(direction, look, rightToLeft, caption + QtCompat::escapeHtml(text));
    return result;
}

QString document(const QString &entries)
{
    return QLatin1String("<html>") + entries + QLatin1String("</html>");
}

} // namespace Transcript
