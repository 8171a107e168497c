#include <QMenu>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "Controls.h"
#include "Icons.h"
#include "Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size.
const int ARROW = 16;
const int GAP = 8;
const int MARGIN = 14;

} // namespace

MenuButton::MenuButton(QWidget *parent) : QPushButton(parent)
{
    setAutoDefault(false);
    setStyleProperty(this, "kind", QString());
    connect(&Look::instance(), &Look::changed, this, &MenuButton::updateGeometry);
}

void MenuButton::setTitle(const QString &title)
{
    m_title = title;
    setAccessibleName(QString::fromLatin1("%1, %2").arg(m_title, text()));
}

void MenuButton::setValue(const QString &value)
{
    setText(value);
    setTitle(m_title);
}

QSize MenuButton::sizeHint() const
{
    return QPushButton::sizeHint() + QSize(px(GAP + ARROW), 0);
}

void MenuButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionButton::HasMenu; // the button paints its own arrow
    const QString text = option.text;
    option.text.clear();
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);
    const QRect arrow(width() - px(MARGIN + ARROW), (height() - px(ARROW)) / 2, px(ARROW),
                      px(ARROW));
    const QRect words(px(MARGIN), 0, arrow.left() - px(MARGIN + GAP), height());
    const Token token = isEnabled() ? Token::Text : Token::DisabledText;
    painter.setPen(Look::instance().color(token));
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), words),
                     Qt::AlignCenter | Qt::TextShowMnemonic, text);
    Dashboard::icon("down", token)
        .paint(&painter, QStyle::visualRect(layoutDirection(), rect(), arrow));
}

} // namespace Dashboard
