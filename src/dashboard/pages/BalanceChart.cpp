#include "BalanceChart.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QVBoxLayout>

#include <cmath>

#include "account/AccountStore.h"
#include "account/AccountWords.h"
#include "base/DashboardText.h"
#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size.
const int CAPTION_SIZE = 12;
const int CAPTION_HEIGHT = 22;
const int VALUE_GAP = 8;
const int MARKER = 5;
const int HEIGHT = 118;
const int WIDTH = 200;

double valueOf(qint64 units)
{
    return double(units) / Money::UNITS;
}

/// Returns the next larger number that is 1, 2, 3 or 5 times a power of ten.
double roundUp(double value)
{
    if (value <= 0)
        return 1;
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    for (const double step : {1.0, 2.0, 3.0, 5.0}) {
        if (value <= step * power)
            return step * power;
    }
    return 10 * power;
}

QString gridText(double value)
{
    Money money;
    money.units = qRound64(value * Money::UNITS);
    money.decimals = std::fabs(value - std::round(value)) > 0.001 ? 1 : 0;
    return amountText(money);
}

} // namespace

// ---- the line -----------------------------------------------------------------------------------

ChartView::ChartView(QWidget *parent) : QWidget(parent)
{
    setObjectName(QLatin1String("Dashboard_ChartView"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

QSize ChartView::sizeHint() const
{
    return QSize(px(WIDTH), px(HEIGHT));
}

QSize ChartView::minimumSizeHint() const
{
    return QSize(px(WIDTH) / 2, px(HEIGHT) * 3 / 4);
}

void ChartView::setDays(const QList<BalanceDay> &days, const QDate &last, int count)
{
    m_days = days;
    m_last = last;
    m_first = last.addDays(-count);
    update();
}

QFont ChartView::captionFont() const
{
    QFont captions = font();
    captions.setPixelSize(px(CAPTION_SIZE));
    return captions;
}

double ChartView::topValue() const
{
    double top = 0;
    for (const BalanceDay &day : m_days)
        top = qMax(top, valueOf(day.last.units));
    return roundUp(top);
}

double ChartView::bottomValue() const
{
    double bottom = 0;
    for (const BalanceDay &day : m_days)
        bottom = qMin(bottom, valueOf(day.last.units));
    return bottom < 0 ? -roundUp(-bottom) : 0;
}

QRectF ChartView::plot() const
{
    const QFontMetrics metrics(captionFont());
    const int values = qMax(metrics.horizontalAdvance(gridText(topValue())),
                            metrics.horizontalAdvance(gridText(bottomValue()))) +
                       px(VALUE_GAP);
    const double top = metrics.height() / 2.0;
    return QRectF(values, top, width() - values - px(MARKER),
                  height() - top - px(CAPTION_HEIGHT) - metrics.height() / 2.0);
}

double ChartView::xOf(double days) const
{
    const QRectF area = plot();
    const double span = m_first.daysTo(m_last);
    return area.left() + area.width() * qBound(0.0, days / span, 1.0);
}

double ChartView::yOf(double value) const
{
    const QRectF area = plot();
    const double share = (value - bottomValue()) / (topValue() - bottomValue());
    return area.bottom() - area.height() * share;
}

QPainterPath ChartView::line() const
{
    QPainterPath path;
    for (const BalanceDay &day : m_days) {
        const double x = xOf(m_first.daysTo(day.day));
        const double y = yOf(valueOf(day.last.units));
        if (path.elementCount() == 0)
            path.moveTo(x, y);
        path.lineTo(x, path.currentPosition().y());
        path.lineTo(x, y);
    }
    path.lineTo(xOf(m_first.daysTo(m_last)), path.currentPosition().y());
    return path;
}

void ChartView::paintGrid(QPainter *painter) const
{
    const QRectF area = plot();
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    for (const double value : {topValue(), (topValue() + bottomValue()) / 2, bottomValue()}) {
        const int y = qRound(yOf(value));
        const int start = qRound(area.left());
        const int end = qRound(area.right());
        painter->setPen(Look::instance().color(Token::Border));
        painter->drawLine(isMirrored ? width() - end : start, y, isMirrored ? width() - start : end,
                          y);
        const QRect text(0, y - px(CAPTION_HEIGHT) / 2, start - px(VALUE_GAP), px(CAPTION_HEIGHT));
        painter->setPen(Look::instance().color(Token::Text3));
        painter->drawText(QStyle::visualRect(layoutDirection(), rect(), text),
                          Qt::AlignTrailing | Qt::AlignVCenter, gridText(value));
    }
}

/// Paints the curve, which is mirrored in a right-to-left layout.
void ChartView::paintLine(QPainter *painter) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (layoutDirection() == Qt::RightToLeft)
        painter->setTransform(QTransform(-1, 0, 0, 1, width(), 0), true);
    const QPainterPath path = line();
    QPainterPath ground = path;
    ground.lineTo(path.currentPosition().x(), plot().bottom());
    ground.lineTo(path.elementAt(0).x, plot().bottom());
    QColor tint = Look::instance().color(Token::Accent);
    QLinearGradient fade(0, plot().top(), 0, plot().bottom());
    tint.setAlphaF(0.18);
    fade.setColorAt(0, tint);
    tint.setAlphaF(0.02);
    fade.setColorAt(1, tint);
    painter->fillPath(ground, fade);
    painter->setPen(QPen(Look::instance().color(Token::Accent), px(2), Qt::SolidLine, Qt::RoundCap,
                         Qt::RoundJoin));
    painter->drawPath(path);
    painter->setPen(QPen(Look::instance().color(Token::Surface), px(2)));
    painter->setBrush(Look::instance().color(Token::Accent));
    painter->drawEllipse(path.currentPosition(), px(MARKER), px(MARKER));
    painter->restore();
}

void ChartView::paintDates(QPainter *painter) const
{
    const QRect row(qRound(plot().left()), height() - px(CAPTION_HEIGHT) + 2,
                    width() - qRound(plot().left()), px(CAPTION_HEIGHT) - 2);
    const QRect mirrored = QStyle::visualRect(layoutDirection(), rect(), row);
    painter->setPen(Look::instance().color(Token::Text3));
    painter->drawText(mirrored, Qt::AlignLeading | Qt::AlignVCenter, shortDate(m_first));
    painter->drawText(mirrored, Qt::AlignTrailing | Qt::AlignVCenter,
                      dashboardText("HOME_CHART_TODAY"));
}

void ChartView::paintEvent(QPaintEvent *)
{
    if (m_days.size() < 2)
        return;
    QPainter painter(this);
    painter.setFont(captionFont());
    paintGrid(&painter);
    paintLine(&painter);
    paintDates(&painter);
}

// ---- the card -----------------------------------------------------------------------------------

BalanceChart::BalanceChart(QWidget *parent)
    : QFrame(parent), m_title(makeLabel("strong", this)), m_period(makeLabel("cap", this)),
      m_view(new ChartView(this)), m_hint(makeLabel("muted", this)), m_sums(makeLabel("cap", this))
{
    setObjectName(QLatin1String("Dashboard_BalanceChart"));
    setBox(this, "card");
    QVBoxLayout *column = new QVBoxLayout(this);
    setMargins(column, 20, 16, 16, 14);
    setSpacing(column, 6);
    QHBoxLayout *head = new QHBoxLayout;
    head->addWidget(m_title, 1);
    head->addWidget(m_period);
    column->addLayout(head);
    column->addWidget(m_view, 1);
    column->addWidget(m_hint, 1);
    column->addWidget(m_sums);
    for (QLabel *label : {m_hint, m_sums})
        label->setWordWrap(true);
}

void BalanceChart::show(const QList<BalanceDay> &days, const QDate &today)
{
    const bool isLine = days.size() >= 2;
    m_title->setText(dashboardText("HOME_CHART"));
    m_period->setText(dashboardText("HOME_CHART_PERIOD").arg(AccountStore::CHART_DAYS));
    m_hint->setText(dashboardText("HOME_CHART_EMPTY"));
    m_hint->setVisible(!isLine);
    m_view->setVisible(isLine);
    m_sums->setVisible(isLine);
    m_view->setDays(days, today, AccountStore::CHART_DAYS);
    Money spent;
    if (isLine)
        spent.currency = days.last().last.currency;
    for (const BalanceDay &day : days)
        spent.decimals = qMax(spent.decimals, day.last.decimals);
    Money topped = spent;
    // Ignores the changes on the first day, because they include the difference from a balance that
    // is not in the chart.
    for (int i = 1; i < days.size(); ++i) {
        spent.units += days.at(i).falls;
        topped.units += days.at(i).rises;
    }
    m_sums->setText(dashboardText("HOME_CHART_SUMS").arg(moneyText(spent), moneyText(topped)));
    m_sentence = isLine ? sentenceOf(days) : m_hint->text();
    m_view->setAccessibleName(m_sentence);
    setAccessibleName(m_title->text());
}

QString BalanceChart::sentenceOf(const QList<BalanceDay> &days) const
{
    Money lowest = days.first().last;
    for (const BalanceDay &day : days)
        lowest.units = qMin(lowest.units, day.lowest);
    return dashboardText("HOME_CHART_SENTENCE")
        .arg(amountText(days.first().last), moneyText(days.last().last))
        .arg(AccountStore::CHART_DAYS)
        .arg(amountText(lowest));
}

} // namespace Dashboard
