#include "SignalBars.h"

#include <QPainter>

namespace Dashboard
{

namespace
{

const int BARS = 5;
const int BAR_WIDTH = 5; // in pixels
const int GAP = 3;
const int HEIGHT = 20;
const int FULL = 100;

QRect barRect(int bar, int bottom)
{
    const int height = HEIGHT * (bar + 1) / BARS;
    return QRect(bar * (BAR_WIDTH + GAP), bottom - height, BAR_WIDTH, height);
}

} // namespace

SignalBars::SignalBars(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SignalBars::setPercent(int percent)
{
    m_percent = percent;
    update();
}

QSize SignalBars::sizeHint() const
{
    return QSize(BARS * (BAR_WIDTH + GAP) - GAP, HEIGHT);
}

// Draws the bars. Any signal above 0 % fills at least the first bar.
void SignalBars::paintEvent(QPaintEvent *)
{
    const int filled = m_percent <= 0 ? 0 : (m_percent * BARS + FULL - 1) / FULL;
    QPainter painter(this);
    for (int bar = 0; bar < BARS; ++bar) {
        const QPalette::ColorRole role = bar < filled ? QPalette::Highlight : QPalette::Mid;
        painter.fillRect(barRect(bar, height()), palette().color(role));
    }
}

} // namespace Dashboard
