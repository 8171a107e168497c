#ifndef BALANCECHART_H
#define BALANCECHART_H

#include <QFrame>

#include "account/AccountEntry.h"

class QLabel;

namespace Dashboard
{

/** The curve of a chart. On days without a reply, the curve shows the last known balance. */
class ChartView : public QWidget
{
    Q_OBJECT
public:
    explicit ChartView(QWidget *parent = nullptr);

    /// Sets the balances, starting with the oldest day. `last` is the last day on the time axis,
    /// and `count` is the number of days on this axis.
    void setDays(const QList<BalanceDay> &days, const QDate &last, int count);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double topValue() const;
    double bottomValue() const;
    QRectF plot() const;
    double xOf(double days) const;
    double yOf(double value) const;
    QPainterPath line() const;
    void paintGrid(QPainter *painter) const;
    void paintLine(QPainter *painter) const;
    void paintDates(QPainter *painter) const;
    QFont captionFont() const;

    QList<BalanceDay> m_days;
    QDate m_first;
    QDate m_last;
};

/** The card with a chart of the balance over the last 30 days. */
class BalanceChart : public QFrame
{
    Q_OBJECT
public:
    explicit BalanceChart(QWidget *parent = nullptr);

    void show(const QList<BalanceDay> &days, const QDate &today);
    /// Returns the description of the chart for screen readers, such as "From 18.00 to 12.50 EUR in
    /// 30 days, lowest 2.50".
    QString sentence() const { return m_sentence; }

private:
    QString sentenceOf(const QList<BalanceDay> &days) const;

    QLabel *m_title;
    QLabel *m_period;
    ChartView *m_view;
    QLabel *m_hint;
    QLabel *m_sums;
    QString m_sentence;
};

} // namespace Dashboard

#endif
