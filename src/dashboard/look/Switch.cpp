#include <QPainter>

#include "Controls.h"
#include "Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size.
const int WIDTH = 40;
const int HEIGHT = 22;
const int RING = 2; // the margin for the focus ring around the track

} // namespace

Switch::Switch(QWidget *parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

QSize Switch::sizeHint() const
{
    const Look &look = Look::instance();
    return QSize(look.px(WIDTH) + 4 * RING, look.px(HEIGHT) + 4 * RING);
}

void Switch::paintEvent(QPaintEvent *)
{
    const Look &look = Look::instance();
    const QRectF outer = QRectF(rect()).adjusted(1, 1, -1, -1);
    const QRectF track = QRectF(rect()).adjusted(2 * RING, 2 * RING, -2 * RING, -2 * RING);
    const bool isOn = isChecked();
    const Token line = !isEnabled() ? Token::DisabledText : isOn ? Token::Accent : Token::Control;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus()) {
        painter.setPen(QPen(look.color(Token::Focus), RING));
        painter.drawRoundedRect(outer, outer.height() / 2, outer.height() / 2);
    }
    const QRectF inside = track.adjusted(0.75, 0.75, -0.75, -0.75);
    painter.setPen(QPen(look.color(line), 1.5));
    painter.setBrush(look.color(isOn ? line : Token::Surface));
    painter.drawRoundedRect(inside, inside.height() / 2, inside.height() / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.color(isOn ? Token::OnAccent : line));
    painter.drawEllipse(knob());
}

// Returns the rectangle of the knob. If the switch is on, the knob is at the end of the track.
QRectF Switch::knob() const
{
    const QRectF track = QRectF(rect()).adjusted(2 * RING, 2 * RING, -2 * RING, -2 * RING);
    const double side = track.height() * (isChecked() ? 0.64 : 0.55);
    const double gap = (track.height() - side) / 2;
    const bool isRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const double left = isRight ? track.right() - gap - side : track.left() + gap;
    return QRectF(left, track.top() + gap, side, side);
}

} // namespace Dashboard
