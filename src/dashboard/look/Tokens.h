#ifndef TOKENS_H
#define TOKENS_H

#include <QColor>
#include <QString>

namespace Dashboard
{

/** The purposes of colours in the dashboard. Each token has a colour for each shade. */
enum class Token {
    Bg,
    Surface,
    Sunken,
    Border, // low contrast, for decoration only
    Control,
    Text,
    Text2,
    Text3,
    Accent,
    AccentHover,
    AccentPress,
    OnAccent,
    AccentSoft,
    AccentText,
    Ok,
    OkSoft,
    Warn,
    WarnSoft,
    Danger,
    DangerSoft,
    HeroA,
    HeroB,
    OnHero,
    OnHero2,
    Paper, // light in both shades, because the operator defines the text colours of the transcript
    OnPaper,
    Focus,
    DisabledBg,
    DisabledText,
    Scrim
};
const int TOKEN_COUNT = int(Token::Scrim) + 1;

enum class Shade { Light, Dark };

QColor tokenColor(Token token, Shade shade);

/// Returns the name of the token as used in the style sheet, for example "accentSoft".
QString tokenName(Token token);

/// Returns the contrast ratio of two opaque colours as defined by WCAG 2.1, from 1 to 21.
double contrast(const QColor &a, const QColor &b);

} // namespace Dashboard

#endif
