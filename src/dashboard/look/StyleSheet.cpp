#include "StyleSheet.h"

#include <QFile>
#include <QHash>

#include "Resources.h"

namespace Dashboard
{

namespace
{

struct Role {
    QPalette::ColorRole role;
    Token token;
};

const Role ROLES[] = {
    {QPalette::Window, Token::Bg},
    {QPalette::WindowText, Token::Text},
    {QPalette::Base, Token::Surface},
    {QPalette::AlternateBase, Token::Sunken},
    {QPalette::Text, Token::Text},
    {QPalette::Button, Token::Surface},
    {QPalette::ButtonText, Token::Text},
    {QPalette::BrightText, Token::Danger},
    {QPalette::Highlight, Token::Accent},
    {QPalette::HighlightedText, Token::OnAccent},
    {QPalette::Link, Token::AccentText},
    {QPalette::LinkVisited, Token::AccentText},
    {QPalette::PlaceholderText, Token::Text3},
    {QPalette::ToolTipBase, Token::Text},
    {QPalette::ToolTipText, Token::Surface},
    {QPalette::Light, Token::Surface},
    {QPalette::Midlight, Token::Sunken},
    {QPalette::Mid, Token::Border},
    {QPalette::Dark, Token::Control},
    {QPalette::Shadow, Token::Text2},
};

const Role DISABLED_ROLES[] = {
    {QPalette::WindowText, Token::DisabledText}, {QPalette::Text, Token::DisabledText},
    {QPalette::ButtonText, Token::DisabledText}, {QPalette::Base, Token::DisabledBg},
    {QPalette::Button, Token::DisabledBg},
};

QString sheetTemplate()
{
    openResources();
    QFile file(QLatin1String(":/look/dashboard.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll());
}

/// Returns true if the sheet means the same without white space before and after this character.
bool isDivider(QChar character)
{
    switch (character.unicode()) {
    case '{':
    case '}':
    case ';':
    case ',':
        return true;
    default:
        return false;
    }
}

/// Removes the comments and the unnecessary white space. Qt keeps each token of the last sheet that
/// it has parsed, and white space is a token.
QString compacted(const QString &sheet)
{
    QString result(sheet.size(), Qt::Uninitialized);
    const QChar *const begin = result.constData();
    QChar *next = result.data();
    bool isSpaceDue = false;
    for (int at = 0; at < sheet.size(); ++at) {
        const QChar character = sheet.at(at);
        if (character == QLatin1Char('/') && sheet.at(at + 1) == QLatin1Char('*')) {
            at = sheet.indexOf(QLatin1String("*/"), at) + 1;
        } else if (character.isSpace()) {
            isSpaceDue = next != begin && !isDivider(*(next - 1));
        } else {
            if (isSpaceDue && !isDivider(character))
                *next++ = QLatin1Char(' ');
            isSpaceDue = false;
            *next++ = character;
        }
    }
    result.resize(int(next - begin));
    return result;
}

/** Replaces the names and sizes in the template of the sheet. */
class Filling
{
public:
    Filling(Shade shade, Qt::LayoutDirection direction, double scale) : m_scale(scale)
    {
        for (int i = 0; i < TOKEN_COUNT; ++i)
            m_words.insert(tokenName(Token(i)), tokenColor(Token(i), shade).name());
        const bool isMirrored = direction == Qt::RightToLeft;
        m_words.insert(QLatin1String("end"), QLatin1String(isMirrored ? "left" : "right"));
        m_words.insert(QLatin1String("shade"),
                       QLatin1String(shade == Shade::Light ? "light" : "dark"));
    }

    /// Replaces everything in a single pass, because the sheet is filled in at each start.
    QString fillIn(const QString &sheet) const
    {
        QString result;
        result.reserve(sheet.size());
        int at = 0;
        for (int mark = nextMark(sheet, 0); mark < sheet.size(); mark = nextMark(sheet, at)) {
            result.append(sheet.constData() + at, mark - at);
            at = mark;
            result +=
                sheet.at(mark) == QLatin1Char('@') ? takeWord(sheet, &at) : takeSize(sheet, &at);
        }
        result.append(sheet.constData() + at, sheet.size() - at);
        result.squeeze();
        return result;
    }

private:
    /// Returns the position of the next at sign or number sign, or the size of the text.
    static int nextMark(const QString &text, int position)
    {
        while (position < text.size() && text.at(position) != QLatin1Char('@') &&
               text.at(position) != QLatin1Char('#'))
            ++position;
        return position;
    }

    /// Returns the replacement of the word between the at signs, and moves the position behind it.
    QString takeWord(const QString &sheet, int *position) const
    {
        const int begin = *position + 1;
        const int end = sheet.indexOf(QLatin1Char('@'), begin);
        *position = end + 1;
        return m_words.value(sheet.mid(begin, end - begin));
    }

    /// Returns the scaled size for "#14px", and the scaled size minus one pixel for "#14-1px". The
    /// latter exactly compensates for the thicker border of a widget that has the focus. Returns
    /// the sign itself if it starts a colour or an object name.
    QString takeSize(const QString &sheet, int *position) const
    {
        const QLatin1String unit("px");
        int at = *position + 1;
        const int size = takeNumber(sheet, &at);
        const int less = sheet.mid(at, 1) == QLatin1String("-") ? takeNumber(sheet, &(++at)) : 0;
        if (sheet.mid(at, unit.size()) != unit)
            return sheet.mid((*position)++, 1); // a colour or an object name, not a size
        *position = at + unit.size();
        return QString::number(qRound(size * m_scale) - less) + unit;
    }

    /// Returns the number at the position, and moves the position to the character after it.
    static int takeNumber(const QString &text, int *position)
    {
        int number = 0;
        for (; *position < text.length() && text.at(*position).isDigit(); ++*position)
            number = number * 10 + text.at(*position).digitValue();
        return number;
    }

    const double m_scale;
    QHash<QString, QString> m_words;
};

} // namespace

QString styleSheet(Shade shade, Qt::LayoutDirection direction, double scale)
{
    return Filling(shade, direction, scale).fillIn(compacted(sheetTemplate()));
}

QPalette lookPalette(Shade shade)
{
    QPalette palette;
    for (const Role &role : ROLES)
        palette.setColor(role.role, tokenColor(role.token, shade));
    for (const Role &role : DISABLED_ROLES)
        palette.setColor(QPalette::Disabled, role.role, tokenColor(role.token, shade));
    return palette;
}

QPalette toolTipPalette(Shade shade)
{
    QPalette palette = lookPalette(shade);
    palette.setColor(QPalette::Window, tokenColor(Token::Text, shade));
    palette.setColor(QPalette::WindowText, tokenColor(Token::Surface, shade));
    return palette;
}

} // namespace Dashboard
