#ifndef LOOK_H
#define LOOK_H

#include <QFont>
#include <QObject>

#include "Tokens.h"

namespace Dashboard
{

enum class ThemeChoice { System, Light, Dark };

/**
 * The appearance of the program: theme, palette, style sheet and sizes.
 *
 * Until start() is called, the theme is light, and the application is not changed. Most tests do
 * not call start().
 */
class Look : public QObject
{
    Q_OBJECT
public:
    /// Returns the only instance, which belongs to the current QApplication.
    static Look &instance();

    /// Sets the palette and the style sheet of the application. Afterwards, they are updated when
    /// the theme, the layout direction or the application font changes.
    void start();

    void setTheme(ThemeChoice theme);
    ThemeChoice theme() const { return m_theme; }
    Shade shade() const;
    /// Sets the shade that is used for ThemeChoice::System.
    void setSystemShade(Shade shade);
    QColor color(Token token) const { return tokenColor(token, shade()); }

    /// Converts a size in pixels at 100 % text size to pixels at the current text size.
    int px(int at100Percent) const;
    /// Returns the size of the application font in pixels.
    int em() const;
    double scale() const;

    void setReducesMotion(bool reducesMotion);
    /// Returns true if the user or the style has disabled animations.
    bool reducesMotion() const;

signals:
    /// Emitted when the palette and the style sheet have been updated after a change of the theme,
    /// the layout direction or the font.
    void changed();

private slots:
    void update();

private:
    explicit Look(QObject *parent);
    void dress();

    ThemeChoice m_theme = ThemeChoice::System;
    Shade m_systemShade = Shade::Light;
    bool m_isStarted = false;
    bool m_reducesMotion = false;
    mutable QFont m_emFont; // the font for which m_em was computed
    mutable int m_em = 0;   // 0 means that it is not known yet
    QString m_sheet;
};

/// Converts a size in pixels at 100 % text size to pixels at the current text size. The text size
/// is 100 % if the application font has a size of 14 pixels.
inline int px(int at100Percent)
{
    return Look::instance().px(at100Percent);
}

/// The weight that "font-weight: 600" of the style sheet selects. Qt 5, whose weights are below
/// 100, divides this value by 8. With another weight of the same typeface, Qt would load the font
/// twice.
const QFont::Weight STRONG_WEIGHT = QFont::Weight(QFont::Bold < 100 ? 600 / 8 : 600);

/// Returns the font with this weight and size. The size is in pixels at 100 % text size.
QFont sized(QFont font, int at100Percent, QFont::Weight weight);

} // namespace Dashboard

#endif
