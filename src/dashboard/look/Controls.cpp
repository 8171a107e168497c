#include "Controls.h"

#include <QGuiApplication>
#include <QLayout>
#include <QStyle>
#include <QVariant>

#include "Icons.h"
#include "Look.h"

namespace Dashboard
{

namespace
{

const int BUTTON_ICON = 18; // in pixels at 100 % text size
const int ICON_GAP = 4;     // added to the style's gap between icon and text
const int ICON_BUTTON = 40;
const char ICON_BUTTON_KIND[] = "iconbtn";

/// Applies the style again. Has no effect if the widget has not been polished yet, because the
/// style is then applied when the widget is shown.
void polishAgain(QWidget *widget)
{
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

/** Keeps the margins and the spacing of a layout scaled with the font. */
class LayoutSizes : public QObject
{
public:
    explicit LayoutSizes(QLayout *layout) : QObject(layout), m_layout(layout)
    {
        setObjectName(QLatin1String(NAME));
        connect(&Look::instance(), &Look::changed, this, [this] { apply(); });
    }

    static LayoutSizes *of(QLayout *layout)
    {
        QObject *sizes =
            layout->findChild<QObject *>(QLatin1String(NAME), Qt::FindDirectChildrenOnly);
        return sizes ? static_cast<LayoutSizes *>(sizes) : new LayoutSizes(layout);
    }

    void setMargins(const QMargins &margins)
    {
        m_margins = margins;
        m_hasMargins = true;
        apply();
    }

    void setSpacing(int spacing)
    {
        m_spacing = spacing;
        apply();
    }

private:
    static constexpr char NAME[] = "Dashboard_LayoutSizes";

    void apply()
    {
        const Look &look = Look::instance();
        if (m_spacing >= 0)
            m_layout->setSpacing(look.px(m_spacing));
        if (!m_hasMargins)
            return;
        const bool isMirrored = QGuiApplication::layoutDirection() == Qt::RightToLeft;
        const int start = look.px(m_margins.left());
        const int end = look.px(m_margins.right());
        m_layout->setContentsMargins(isMirrored ? end : start, look.px(m_margins.top()),
                                     isMirrored ? start : end, look.px(m_margins.bottom()));
    }

    QLayout *m_layout;
    QMargins m_margins; // left() is the start margin, right() is the end margin
    int m_spacing = -1;
    bool m_hasMargins = false;
};

/// Calls the function now and whenever the look changes.
template <typename Function>
void keepUpdated(QWidget *widget, Function function)
{
    function();
    QObject::connect(&Look::instance(), &Look::changed, widget, function);
}

} // namespace

void setStyleProperty(QWidget *widget, const char *property, const QString &value)
{
    const QVariant before = widget->property(property);
    if (before.isValid() && before.toString() == value)
        return;
    widget->setProperty(property, value);
    polishAgain(widget);
    for (QWidget *child : widget->findChildren<QWidget *>())
        polishAgain(child);
}

void setBox(QWidget *widget, const char *box)
{
    widget->setAttribute(Qt::WA_StyledBackground);
    setStyleProperty(widget, "box", QLatin1String(box));
}

QLabel *makeLabel(const char *type, QWidget *parent)
{
    QLabel *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    setLabelType(label, type);
    return label;
}

void setLabelType(QLabel *label, const char *type)
{
    setStyleProperty(label, "t", QLatin1String(type));
}

QPushButton *makeButton(const char *kind, QWidget *parent)
{
    QPushButton *button = new QPushButton(parent);
    button->setAutoDefault(false);
    setButtonKind(button, kind);
    return button;
}

void setButtonKind(QPushButton *button, const char *kind)
{
    setStyleProperty(button, "kind", QLatin1String(kind));
}

void setButtonIcon(QPushButton *button, const char *iconName, Token token)
{
    button->setIcon(icon(iconName, token));
    keepUpdated(button, [button] {
        const int side = px(BUTTON_ICON);
        button->setIconSize(QSize(side + ICON_GAP, side));
    });
}

QPushButton *makeIconButton(const char *iconName, QWidget *parent)
{
    QPushButton *button = makeButton(ICON_BUTTON_KIND, parent);
    setButtonIcon(button, iconName, Token::Text2);
    keepUpdated(button, [button] {
        const int side = px(ICON_BUTTON);
        button->setFixedSize(side, side);
    });
    return button;
}

void setIconButtonText(QPushButton *button, const QString &text)
{
    button->setToolTip(text);
    button->setAccessibleName(text);
}

QFrame *makeCard(QWidget *parent)
{
    QFrame *card = new QFrame(parent);
    setBox(card, "card");
    return card;
}

QFrame *makeLine(QWidget *parent)
{
    QFrame *line = new QFrame(parent);
    line->setFixedHeight(1);
    setBox(line, "hline");
    return line;
}

void setShown(QWidget *widget, bool isShown)
{
    if (widget->isHidden() == isShown)
        widget->setVisible(isShown);
}

void setMargins(QLayout *layout, int start, int top, int end, int bottom)
{
    LayoutSizes::of(layout)->setMargins(QMargins(start, top, end, bottom));
}

void setSpacing(QLayout *layout, int spacing)
{
    LayoutSizes::of(layout)->setSpacing(spacing);
}

Token toneToken(Tone tone)
{
    switch (tone) {
    case Tone::Ok:
        return Token::Ok;
    case Tone::Warn:
        return Token::Warn;
    case Tone::Danger:
        return Token::Danger;
    case Tone::Accent:
        return Token::AccentText;
    case Tone::Neutral:
        break;
    }
    return Token::Text2;
}

} // namespace Dashboard
