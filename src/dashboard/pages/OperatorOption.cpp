#include "OperatorOption.h"

#include <QPainter>
#include <QStyle>

#include "look/Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size.
const int HEIGHT = 54;
const int RADIUS = 12;
const int DISC = 20;
const int HOLE = 10;
const int MARGIN = 12;
const int GAP = 16;
const int TITLE_SIZE = 14;
const int SECOND_SIZE = 12;

} // namespace

OperatorOption::OperatorOption(const QString &title, const QString &text, QWidget *parent)
    : QRadioButton(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setTexts(title, text);
    connect(&Look::instance(), &Look::changed, this, [this] { updateGeometry(); });
}

void OperatorOption::setTexts(const QString &title, const QString &text)
{
    setText(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
    setAccessibleName(title);
    setAccessibleDescription(text);
    m_second = text;
    update();
}

QSize OperatorOption::sizeHint() const
{
    return QSize(px(HEIGHT) * 4, px(HEIGHT));
}

QSize OperatorOption::minimumSizeHint() const
{
    return QSize(px(HEIGHT) * 2, px(HEIGHT));
}

bool OperatorOption::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

QRect OperatorOption::mirrored(const QRect &rect) const
{
    return QStyle::visualRect(layoutDirection(), this->rect(), rect);
}

void OperatorOption::paintEvent(QPaintEvent *)
{
    const Look &look = Look::instance();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int line = hasFocus() ? 2 : 1;
    const bool isStrong = isChecked() || hasFocus();
    painter.setPen(QPen(look.color(isStrong ? Token::Accent : Token::Border), line));
    painter.setBrush(look.color(isChecked() ? Token::AccentSoft : Token::Surface));
    const double inset = line / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), px(RADIUS),
                            px(RADIUS));
    const QRect disc = mirrored(QRect(px(MARGIN), (height() - px(DISC)) / 2, px(DISC), px(DISC)));
    const int ring = isChecked() ? (px(DISC) - px(HOLE)) / 2 : 2;
    painter.setBrush(look.color(Token::Surface));
    painter.setPen(QPen(look.color(isChecked() ? Token::Accent : Token::Control), ring));
    painter.drawEllipse(QRectF(disc).adjusted(ring / 2.0, ring / 2.0, -ring / 2.0, -ring / 2.0));
    const int start = px(MARGIN + DISC + GAP);
    const int width = this->width() - start - px(MARGIN);
    const int flags = int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    painter.setFont(sized(font(), TITLE_SIZE, STRONG_WEIGHT));
    painter.setPen(look.color(Token::Text));
    painter.drawText(mirrored(QRect(start, 0, width, height() / 2)), flags | Qt::AlignBottom,
                     painter.fontMetrics().elidedText(accessibleName(), Qt::ElideRight, width));
    painter.setFont(sized(font(), SECOND_SIZE, QFont::Normal));
    painter.setPen(look.color(Token::Text2));
    painter.drawText(mirrored(QRect(start, height() / 2, width, height() / 2)),
                     flags | Qt::AlignTop,
                     painter.fontMetrics().elidedText(m_second, Qt::ElideRight, width));
}

} // namespace Dashboard
