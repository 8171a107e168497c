#include "SignalBars.h"

#include <QPainter>

#include "base/DashboardText.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int BARS = 5;
const int BAR_WIDTH = 3; // in pixels at 100 % text size
const int GAP = 2;
const int LOWEST = 5;
const int HEIGHT = 16;
const int FULL = 100;

const int STRONG = 60; // per cent
const int GOOD = 30;

QRect barRect(int bar, int bottom)
{
    const int height = px(LOWEST + (HEIGHT - LOWEST) * bar / (BARS - 1));
    return QRect(bar * (px(BAR_WIDTH) + px(GAP)), bottom - height, px(BAR_WIDTH), height);
}

} // namespace

SignalBars::SignalBars(QWidget *parent) : QWidget(parent)
{
    setObjectName(QLatin1String("Dashboard_SignalBars"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void SignalBars::setPercent(int percent)
{
    m_percent = percent;
    setVisible(percent >= 0);
    retranslate();
    update();
}

QString SignalBars::word() const
{
    if (m_percent < 0)
        return QString();
    if (m_percent >= STRONG)
        return dashboardText("HEADER_SIGNAL_STRONG");
    if (m_percent >= GOOD)
        return dashboardText("HEADER_SIGNAL_GOOD");
    return dashboardText(m_percent > 0 ? "HEADER_SIGNAL_WEAK" : "HEADER_SIGNAL_NONE");
}

void SignalBars::retranslate()
{
    if (m_percent < 0)
        return;
    setToolTip(dashboardText("HEADER_SIGNAL_PERCENT").arg(m_percent));
    setAccessibleName(dashboardText("HEADER_SIGNAL_NAME").arg(word()).arg(m_percent));
}

QSize SignalBars::sizeHint() const
{
    return QSize(BARS * (px(BAR_WIDTH) + px(GAP)) - px(GAP), px(HEIGHT));
}

// Draws the bars. Any signal above 0 % fills at least the first bar.
void SignalBars::paintEvent(QPaintEvent *)
{
    const int filled = m_percent <= 0 ? 0 : (m_percent * BARS + FULL - 1) / FULL;
    QPainter painter(this);
    for (int bar = 0; bar < BARS; ++bar) {
        const Token token = bar < filled ? Token::Text : Token::Border;
        painter.fillRect(barRect(bar, height()), Look::instance().color(token));
    }
}

} // namespace Dashboard
