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

/// Sets a property that selectors of the style sheet use, and applies the style sheet to the widget
/// and its children again. Must not be used for a widget that contains a window of the plug-in.
void setStyleProperty(QWidget *widget, const char *property, const QString &value);

/// Sets the box style of the widget, for example "card" or "hero". The style sheet defines the box
/// styles.
void setBox(QWidget *widget, const char *box);

/// Returns a label for plain text. `type` is one of the label types that the style sheet defines,
/// for example "h1", "body" or "small".
QLabel *makeLabel(const char *type, QWidget *parent = nullptr);
void setLabelType(QLabel *label, const char *type);

/// Returns a button. `kind` is empty or one of the button kinds that the style sheet defines, for
/// example "primary".
QPushButton *makeButton(const char *kind, QWidget *parent = nullptr);
void setButtonKind(QPushButton *button, const char *kind);

/// Sets an icon that adapts to the theme and the font size. `iconName` must be a string literal.
void setButtonIcon(QPushButton *button, const char *iconName, Token token);

/// Returns a square button that shows only an icon. setIconButtonText() sets its tool tip and its
/// accessible name.
QPushButton *makeIconButton(const char *iconName, QWidget *parent = nullptr);
void setIconButtonText(QPushButton *button, const QString &text);

QFrame *makeCard(QWidget *parent = nullptr);

/// Returns a horizontal line of one pixel.
QFrame *makeLine(QWidget *parent = nullptr);

/// Shows or hides the widget. Unlike QWidget::setVisible(), does nothing if the widget will be
/// shown together with its parent anyway. QWidget::setVisible() would lay out the widget with a
/// size that it does not have yet, which slows down the start of the program.
void setShown(QWidget *widget, bool isShown);

/// Sets the margins of the layout. They are in pixels at 100 % text size, and adapt to the font
/// size and the layout direction.
void setMargins(QLayout *layout, int start, int top, int end, int bottom);

/// Sets the spacing of the layout. It is in pixels at 100 % text size, and adapts to the font size.
void setSpacing(QLayout *layout, int spacing);

enum class Tone { Neutral, Ok, Warn, Danger, Accent };

/// Returns the colour token for text and icons with this tone.
Token toneToken(Tone tone);

/** A widget that shows an icon, which adapts to the theme and the font size. */
class IconView : public QWidget
{
    Q_OBJECT
public:
    explicit IconView(QWidget *parent = nullptr);

    /// Sets the icon. `name` must be a string literal. `size` is in pixels at 100 % text size.
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

/** A label for a short text with a coloured, rounded background. */
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

    /// Sets the icon. `name` must be a string literal.
    void setIcon(const char *name, Tone tone);

private:
    void resizeToFont();

    IconView *m_icon;
};

/**
 * A label with a single line, which is elided if it is too long. The tool tip then shows the
 * complete text.
 */
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

/** A toggle switch, painted as a track with a knob. */
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

/** A row of buttons, called segments, of which at most one is selected. */
class Segments : public QFrame
{
    Q_OBJECT
public:
    explicit Segments(QWidget *parent = nullptr);

    /// Sets the texts of the segments. The selection does not change if the number of segments is
    /// the same.
    void setItems(const QStringList &items);
    /// Returns the index of the selected segment, or -1 if there is none.
    int current() const;
    /// Selects a segment without emitting chosen().
    void setCurrent(int index);

signals:
    /// Emitted when the user selects a segment.
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

    /// Sets the title of the value, which screen readers report before the value.
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
 * A button with an icon, a text that is aligned to the start, an optional second line and an
 * optional badge.
 *
 * The button paints its content itself. If the text were aligned by the style sheet property
 * text-align, icon and text would be at opposite ends in a right-to-left layout.
 */
class LabelledButton : public QPushButton
{
    Q_OBJECT
public:
    enum Arrangement {
        Beside,  ///< the text is beside the icon
        Below,   ///< the text is centred below the icon
        IconOnly ///< the text is the tool tip
    };

    explicit LabelledButton(const char *kind, QWidget *parent = nullptr);

    /// Sets the icon. `name` must be a string literal. `whenOn` is the colour token when the button
    /// is checked.
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
