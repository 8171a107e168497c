#include "StyleSheet.h"

#include <QFile>

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

void fillInShade(QString *sheet, Shade shade)
{
    for (int i = 0; i < TOKEN_COUNT; ++i)
        sheet->replace(QLatin1Char('@') + tokenName(Token(i)) + QLatin1Char('@'),
                       tokenColor(Token(i), shade).name());
    sheet->replace(QLatin1String("@shade@"),
                   shade == Shade::Light ? QLatin1String("light") : QLatin1String("dark"));
}

void fillInSides(QString *sheet, Qt::LayoutDirection direction)
{
    const bool isMirrored = direction == Qt::RightToLeft;
    sheet->replace(QLatin1String("@end@"),
                   isMirrored ? QLatin1String("left") : QLatin1String("right"));
}

/// Returns the number at the position, and moves the position to the character after the number.
int takeNumber(const QString &text, int *position)
{
    int number = 0;
    for (; *position < text.length() && text.at(*position).isDigit(); ++*position)
        number = number * 10 + text.at(*position).digitValue();
    return number;
}

/// Replaces each "#14px" with the scaled size, and each "#14-1px" with the scaled size minus one
/// pixel. The latter exactly compensates for the thicker border of a widget that has the focus.
/// QRegularExpression is not used, because it would compile machine code at each start.
QString withSizes(const QString &sheet, double scale)
{
    const QLatin1String unit("px");
    QString result;
    int end = 0;
    for (int mark = sheet.indexOf(QLatin1Char('#')); mark >= 0;
         mark = sheet.indexOf(QLatin1Char('#'), mark + 1)) {
        int at = mark + 1;
        const int size = takeNumber(sheet, &at);
        const int less = sheet.mid(at, 1) == QLatin1String("-") ? takeNumber(sheet, &(++at)) : 0;
        if (sheet.mid(at, unit.size()) != unit)
            continue; // a colour, not a size
        result += sheet.mid(end, mark - end) + QString::number(qRound(size * scale) - less) + unit;
        end = at + unit.size();
    }
    return result + sheet.mid(end);
}

} // namespace

QString styleSheet(Shade shade, Qt::LayoutDirection direction, double scale)
{
    QString sheet = sheetTemplate();
    fillInShade(&sheet, shade);
    fillInSides(&sheet, direction);
    return withSizes(sheet, scale);
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
