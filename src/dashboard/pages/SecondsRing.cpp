#include "SecondsRing.h"

#include <QPainter>

#include "look/Controls.h"
#include "look/Look.h"
#include "plugin/CommandMonitor.h"

namespace Dashboard
{

namespace
{

const int SIZE = 40; // pixels at 100 % text size
const int STROKE = 3;
const int FULL_CIRCLE = 360 * 16; // in sixteenths of a degree, as QPainter requires
const int TOP = 90 * 16;

} // namespace

SecondsRing::SecondsRing(QWidget *parent) : QProgressBar(parent)
{
    setRange(0, REPLY_SECONDS);
    setTextVisible(false);
    setBox(this, "ring"); // selects the style of rings in the style sheet
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Repaints the ring for every value. The base class repaints only when the length of its bar
    // changes, which does not happen every second.
    connect(this, &QProgressBar::valueChanged, this, QOverload<>::of(&QWidget::update));
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

QSize SecondsRing::sizeHint() const
{
    const int size = px(SIZE);
    return QSize(size, size);
}

void SecondsRing::paintEvent(QPaintEvent *)
{
    const Look &look = Look::instance();
    const qreal stroke = look.px(STROKE);
    const QRectF circle = QRectF(rect()).adjusted(stroke, stroke, -stroke, -stroke);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.color(Token::Border), stroke));
    painter.drawEllipse(circle);
    if (!look.reducesMotion()) {
        painter.setPen(QPen(look.color(Token::Accent), stroke, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(circle, TOP, -FULL_CIRCLE * value() / maximum());
    }
    QFont number = font();
    number.setPixelSize(look.px(13));
    number.setBold(true);
    painter.setFont(number);
    painter.setPen(look.color(Token::Text));
    painter.drawText(rect(), Qt::AlignCenter, QString::number(value()));
}

} // namespace Dashboard
