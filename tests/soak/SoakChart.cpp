#include "SoakChart.h"

#include <QImage>
#include <QPainter>

namespace
{

const int WIDTH = 940; // pixels, like all sizes in this file
const int STRIP = 88;
const int GAP = 22;
const int LEFT = 180;
const int RIGHT = 160;
const int TOP = 40;
const int BOTTOM = 16;
const QColor INK(40, 40, 40);
const QColor PALE(225, 225, 225);
const QColor LINE(30, 100, 180);
const QColor WARM_UP(245, 238, 220);

class Chart
{
public:
    Chart(QPainter *painter, const QVector<SoakSample> &samples, int warm)
        : m_painter(painter), m_samples(samples), m_warm(warm)
    {
    }

    void draw()
    {
        drawTitle();
        for (int i = 0; i < soakFigures().size(); ++i)
            drawStrip(soakFigures().at(i), strip(i));
    }

private:
    static QRectF strip(int index)
    {
        return QRectF(LEFT, TOP + index * (STRIP + GAP), WIDTH - LEFT - RIGHT, STRIP);
    }

    void drawTitle()
    {
        const SoakSample &end = m_samples.last();
        m_painter->setPen(INK);
        m_painter->drawText(QRectF(0, 0, WIDTH, TOP), Qt::AlignCenter,
                            QString::fromLatin1("%L1 commands, %L2 windows opened, %L3 hours "
                                                "simulated; shaded: warm-up")
                                .arg(end.commands)
                                .arg(end.openings)
                                .arg(end.simulatedHours, 0, 'f', 0));
    }

    qreal x(const SoakSample &sample, const QRectF &area) const
    {
        return area.left() +
               area.width() * qreal(sample.commands) / qreal(m_samples.last().commands);
    }

    /// Returns the top value of the scale: the highest value plus 25 percent.
    double top(const SoakFigure &figure) const
    {
        double highest = 1;
        for (const SoakSample &sample : m_samples)
            highest = qMax(highest, figure.value(sample));
        return highest * 1.25;
    }

    void drawStrip(const SoakFigure &figure, const QRectF &area)
    {
        QRectF warmUp = area;
        warmUp.setRight(x(m_samples.at(m_warm), area));
        m_painter->fillRect(warmUp, WARM_UP);
        m_painter->setPen(PALE);
        m_painter->drawRect(area);
        drawLine(figure, area);
        drawWords(figure, area);
    }

    void drawLine(const SoakFigure &figure, const QRectF &area)
    {
        const double highest = top(figure);
        QPolygonF line;
        for (const SoakSample &sample : m_samples)
            line << QPointF(x(sample, area),
                            area.bottom() - area.height() * figure.value(sample) / highest);
        m_painter->setPen(QPen(LINE, 2));
        m_painter->drawPolyline(line);
    }

    void drawWords(const SoakFigure &figure, const QRectF &area)
    {
        m_painter->setPen(INK);
        m_painter->drawText(QRectF(0, area.top(), LEFT - GAP, STRIP),
                            Qt::AlignRight | Qt::AlignVCenter, QLatin1String(figure.name));
        const QString values = text(figure, m_samples.at(m_warm)) + QLatin1String(" warm\n") +
                               text(figure, m_samples.last()) + QLatin1String(" end");
        m_painter->drawText(QRectF(area.right() + GAP / 2.0, area.top(), RIGHT, STRIP),
                            Qt::AlignLeft | Qt::AlignVCenter, values);
    }

    static QString text(const SoakFigure &figure, const SoakSample &sample)
    {
        const bool whole = figure.unit[0] == '\0';
        const QString value = QString::number(figure.value(sample), 'f', whole ? 0 : 2);
        return whole ? value : value + QLatin1Char(' ') + QLatin1String(figure.unit);
    }

    QPainter *const m_painter;
    const QVector<SoakSample> &m_samples;
    const int m_warm;
};

} // namespace

bool writeSoakChart(const QString &file, const QVector<SoakSample> &samples, int warm)
{
    const int height = TOP + soakFigures().size() * (STRIP + GAP) + BOTTOM - GAP;
    QImage image(WIDTH, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    Chart(&painter, samples, warm).draw();
    painter.end();
    return image.save(file, "PNG");
}
