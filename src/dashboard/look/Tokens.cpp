#include "Tokens.h"

#include <cmath>

namespace Dashboard
{

namespace
{

struct Entry {
    Token token;
    const char *name;
    QRgb light;
    QRgb dark;
};

// The rows are in the order of the Token enumeration.
const Entry TABLE[] = {
    {Token::Bg, "bg", 0xF3F5F9, 0x0E131A},
    {Token::Surface, "surface", 0xFFFFFF, 0x171F29},
    {Token::Sunken, "sunken", 0xEBEFF5, 0x212B37},
    {Token::Border, "border", 0xD6DDE7, 0x2F3B49},
    {Token::Control, "control", 0x76839A, 0x7F8EA3},
    {Token::Text, "text", 0x141D2B, 0xE9EEF5},
    {Token::Text2, "text2", 0x465366, 0xB7C2D0},
    {Token::Text3, "text3", 0x5A677A, 0x97A5B7},
    {Token::Accent, "accent", 0x1D4ED8, 0x8DB0FF},
    {Token::AccentHover, "accentHover", 0x1A44BD, 0xA6C1FF},
    {Token::AccentPress, "accentPress", 0x15389C, 0x7BA0F5},
    {Token::OnAccent, "onAccent", 0xFFFFFF, 0x0A1A3D},
    {Token::AccentSoft, "accentSoft", 0xE5ECFD, 0x1B2B4E},
    {Token::AccentText, "accentText", 0x1B48C4, 0xA4BFFF},
    {Token::Ok, "ok", 0x0B6B3A, 0x74D9A0},
    {Token::OkSoft, "okSoft", 0xDFF3E7, 0x12301F},
    {Token::Warn, "warn", 0x7A4A00, 0xF3C26B},
    {Token::WarnSoft, "warnSoft", 0xFFF0D2, 0x382A0D},
    {Token::Danger, "danger", 0xB01F17, 0xFFA199},
    {Token::DangerSoft, "dangerSoft", 0xFCE8E6, 0x44191A},
    {Token::HeroA, "heroA", 0x14307F, 0x16295F},
    {Token::HeroB, "heroB", 0x2756D6, 0x2547A3},
    {Token::OnHero, "onHero", 0xFFFFFF, 0xFFFFFF},
    {Token::OnHero2, "onHero2", 0xDCE6FF, 0xD3DEFA},
    {Token::Paper, "paper", 0xFFFFFF, 0xE3E8EF},
    {Token::OnPaper, "onPaper", 0x141D2B, 0x141D2B},
    {Token::Focus, "focus", 0x1D4ED8, 0x8DB0FF},
    {Token::DisabledBg, "disabledBg", 0xEBEFF5, 0x212B37},
    {Token::DisabledText, "disabledText", 0x8490A2, 0x6E7C8E},
    {Token::Scrim, "scrim", 0x0B1220, 0x000000},
};
static_assert(sizeof(TABLE) / sizeof(TABLE[0]) == TOKEN_COUNT, "one entry for each token");

const Entry &entryOf(Token token)
{
    const Entry &entry = TABLE[int(token)];
    Q_ASSERT(entry.token == token);
    return entry;
}

// Converts a colour component to its linear value, as the definition of relative luminance in WCAG
// 2.1 requires.
double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

QColor tokenColor(Token token, Shade shade)
{
    const Entry &entry = entryOf(token);
    return QColor(shade == Shade::Light ? entry.light : entry.dark);
}

QString tokenName(Token token)
{
    return QLatin1String(entryOf(token).name);
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

} // namespace Dashboard
