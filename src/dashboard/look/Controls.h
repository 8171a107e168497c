#ifndef CONTROLS_H
#define CONTROLS_H

#include <QAbstractButton>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "Tokens.h"

class QButtonGroup;
class QHBoxLayout;
class QLayout;

namespace Dashboard
{

/// Sets a property that the style sheet matches, and styles the widget and its children again.
/// Must not be used for a widget that contains a window of the plug-in.
void setStyleProperty(QWidget *widget, const char *property, const QString &value);

/// Gives the widget a box of the style sheet, for example "card" or "hero".
void setBox(QWidget *widget, const char *box);

/// Returns a label with plain text. `type` is one of the types of labels in the style sheet, for
/// example "h1", "body" or "small".
QLabel *makeLabel(const char *type, QWidget *parent = nullptr);
void setLabelType(QLabel *label, const char *type);

/// Returns a button. `kind` is one of the kinds of buttons in the style sheet, for example
/// "primary", or an empty string.
QPushButton *makeButton(const char *kind, QWidget *parent = nullptr);
void setButtonKind(QPushButton *button, const char *kind);

/// Gives the button an icon that follows the theme and the font. `iconName` is a string literal.
void setButtonIcon(QPushButton *button, const char *iconName, Token token);

/// Returns a square button with only an icon. Its text is a tool tip and its accessible name; set
/// it with setIconButtonText().
QPushButton *makeIconButton(const char *iconName, QWidget *parent = nullptr);
void setIconButtonText(QPushButton *button, const QString &text);

QFrame *makeCard(QWidget *parent = nullptr);

/// Returns a horizontal line of one pixel.
QFrame *makeLine(QWidget *parent = nullptr);

/// Sets the margins of the layout in pixels at 100 %. The margins follow the font and the layout
/// direction.
void setMargins(QLayout *layout, int start, int top, int end, int bottom);

/// Sets the spacing of the layout in pixels at 100 %. The spacing follows the font.
void setSpacing(QLayout *layout, int spacing);

enum class Tone { Neutral, Ok, Warn, Danger, Accent };

/// Returns the token of text and icons of this tone.
Token toneToken(Tone tone);

/** An icon that follows the theme and the font. */
class IconView : public QWidget
{
    Q_OBJECT
public:
    explicit IconView(QWidget *parent = nullptr);

    /// Sets the icon. `name` is a string literal. `size` is in pixels at 100 %.
    void setIcon(const char *name, Token token, int size = 20);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const char *m_name = nullptr;
    Token m_token = Token::Text;
    int m_size = 20;
};

/** A short word on a coloured, rounded ground. */
class Chip : public QFrame
{
    Q_OBJECT
public:
    explicit Chip(QWidget *parent = nullptr);

    void setText(const QString &text);
    QString text() const { return m_label->text(); }
    void setTone(Tone tone);
    Tone tone() const { return m_tone; }

private:
    void resizeToFont();

    QLabel *m_label;
    Tone m_tone = Tone::Neutral;
};

/** An icon on a coloured disc. */
class IconDisc : public QFrame
{
    Q_OBJECT
public:
    explicit IconDisc(QWidget *parent = nullptr);

    /// Sets the icon. `name` is a string literal.
    void setIcon(const char *name, Tone tone);

private:
    void resizeToFont();

    IconView *m_icon;
};

/** A label of one line that elides its text. The tool tip then shows the complete text. */
class ElidedLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setText(const QString &text);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateToolTip();
};

/** A switch that is on or off. */
class Switch : public QAbstractButton
{
    Q_OBJECT
public:
    explicit Switch(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF knob() const;
};

/** A row of choices of which one is chosen. */
class Segments : public QFrame
{
    Q_OBJECT
public:
    explicit Segments(QWidget *parent = nullptr);

    /// Sets the texts of the choices. The choice stays if the number of choices is the same.
    void setItems(const QStringList &items);
    /// Returns the index of the choice, or -1.
    int current() const;
    /// Makes a choice without emitting chosen().
    void setCurrent(int index);

signals:
    /// Emitted when the user makes a choice.
    void chosen(int index);

private:
    void rebuild(int count);

    QHBoxLayout *m_row;
    QButtonGroup *m_buttons;
};

/** A button that shows a value and opens the menu of all values; see QPushButton::setMenu(). */
class MenuButton : public QPushButton
{
    Q_OBJECT
public:
    explicit MenuButton(QWidget *parent = nullptr);

    /// Sets what the value is about. Screen readers report it before the value.
    void setTitle(const QString &title);
    void setValue(const QString &value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
};

/**
 * A button with an icon, a text at its start, an optional second line and an optional badge.
 *
 * The button paints its content itself. With the property text-align of a style sheet, icon and
 * text would be at opposite ends in a right-to-left layout.
 */
class LabelledButton : public QPushButton
{
    Q_OBJECT
public:
    enum Arrangement {
        Beside,  ///< the text is beside the icon
        Below,   ///< the text is below the icon, and both are centred
        IconOnly ///< the text is the tool tip
    };

    explicit LabelledButton(const char *kind, QWidget *parent = nullptr);

    /// Sets the icon. `name` is a string literal. `whenOn` is the token of the checked button.
    void setIcon(const char *name, Token token, Token whenOn);
    void setIcon(const char *name, Token token) { setIcon(name, token, token); }
    void setText(const QString &text);
    void setSecondLine(const QString &text);
    /// Sets the text of the badge; an empty string hides the badge.
    void setBadge(const QString &text);
    void setArrangement(Arrangement arrangement);
    Arrangement arrangement() const { return m_arrangement; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont textFont() const;
    QFont secondFont() const;
    QFont badgeFont() const;
    int textHeight() const;
    int badgeWidth() const;
    QColor textColor() const;
    int margin() const;
    int gap() const;
    int iconSize() const;
    QRect mirrored(const QRect &rect) const;
    void paintBeside(QPainter *painter);
    void paintBelow(QPainter *painter);
    void paintIcon(QPainter *painter, const QRect &rect);
    void paintLines(QPainter *painter, const QRect &rect);
    void paintBadge(QPainter *painter, const QRect &rect);

    const char *m_iconName = nullptr;
    Token m_token = Token::Text;
    Token m_whenOn = Token::Text;
    QString m_second;
    QString m_badge;
    Arrangement m_arrangement = Beside;
};

} // namespace Dashboard

#endif
