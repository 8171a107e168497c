#include "StatusDot.h"

#include <QPainter>

#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int DIAMETER = 8; // in pixels at 100 % text size

} // namespace

StatusDot::StatusDot(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void StatusDot::setTone(Tone tone)
{
    m_tone = tone;
    update();
}

QSize StatusDot::sizeHint() const
{
    const int diameter = px(DIAMETER);
    return QSize(diameter, diameter);
}

void StatusDot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Look::instance().color(toneToken(m_tone)));
    painter.drawEllipse(rect());
}

} // namespace Dashboard
