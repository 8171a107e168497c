#ifndef LOOK_H
#define LOOK_H

#include <QObject>

#include "Tokens.h"

namespace Dashboard
{

enum class ThemeChoice { System, Light, Dark };

/**
 * The look of the program: theme, palette, style sheet and sizes.
 *
 * Until start() is called, the look is light and changes nothing in the application, which is what
 * most tests use.
 */
class Look : public QObject
{
    Q_OBJECT
public:
    /// Returns the look of the current QApplication.
    static Look &instance();

    /// Gives the application its palette and style sheet. From now on, they follow the theme, the
    /// layout direction and the application font.
    void start();

    void setTheme(ThemeChoice theme);
    ThemeChoice theme() const { return m_theme; }
    Shade shade() const;
    /// Sets the shade that ThemeChoice::System means.
    void setSystemShade(Shade shade);
    QColor color(Token token) const { return tokenColor(token, shade()); }

    /// Returns the size in pixels, scaled with the application font: 14 pixels are 100 %.
    int px(int at100Percent) const;
    /// Returns the size of the application font in pixels.
    int em() const;
    double scale() const;

    void setReducesMotion(bool reducesMotion);
    /// Returns true if the user or the style wants no animations.
    bool reducesMotion() const;

signals:
    /// Emitted after a change of theme, direction or font, when palette and style sheet are set.
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
    QString m_sheet;
};

} // namespace Dashboard

#endif
