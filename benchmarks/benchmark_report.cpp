/*
 * Converts the rows printed by the benchmarks (see Benchmark::report) to a Markdown table and a bar
 * chart:
 *
 *     benchmark_report ROWS.tsv CHART.png >TABLE.md
 */
#include <cmath>
#include <cstdio>

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QStringList>

namespace
{

/// The median of a series of measurements, with the minimum and the maximum.
struct Spread {
    double median, smallest, largest;
};

struct Row {
    QString what, unit, baseline;
    Spread measured, base, ratio;
    double limit;

    bool hasLimit() const { return limit > 0; }
    bool isReached() const { return !hasLimit() || ratio.median <= limit; }
};

const int FIELDS = 13;

Spread spread(const QStringList &fields, int first)
{
    Spread result = {fields.at(first).toDouble(), fields.at(first + 1).toDouble(),
                     fields.at(first + 2).toDouble()};
    return result;
}

Row row(const QString &line)
{
    const QStringList fields = line.split(QLatin1Char('\t'));
    if (fields.count() != FIELDS)
        qFatal("not a row of a benchmark: %s", qPrintable(line));
    Row result = {fields.at(0),
                  fields.at(1),
                  fields.at(5),
                  spread(fields, 2),
                  spread(fields, 6),
                  spread(fields, 9),
                  fields.at(12).toDouble()};
    return result;
}

QList<Row> readRows(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(path));
    QList<Row> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (!line.isEmpty())
            rows << row(line);
    }
    return rows;
}

/// Returns the value with as many decimals as three significant digits require, but at most five.
/// Never uses an exponent.
QString number(double value)
{
    const int digits = value > 0 ? 2 - static_cast<int>(std::floor(std::log10(value))) : 0;
    return QString::number(value, 'f', qBound(0, digits, 5));
}

QString text(const Spread &figures, const QString &unit = QString())
{
    return number(figures.median) + unit + QLatin1String(" (") + number(figures.smallest) +
           QLatin1String(" to ") + number(figures.largest) + QLatin1Char(')');
}

void printTable(const QList<Row> &rows)
{
    std::printf(
        "| measurement | median (smallest to largest) | baseline | median (smallest to largest) "
        "| ratio (smallest to largest) | target |\n|---|---|---|---|---|---|\n");
    for (const Row &one : rows) {
        const QString unit = QLatin1Char(' ') + one.unit;
        std::printf("| %s | %s | %s | %s | %s | %s%s |\n", qUtf8Printable(one.what),
                    qUtf8Printable(text(one.measured, unit)), qUtf8Printable(one.baseline),
                    qUtf8Printable(text(one.base, unit)), qUtf8Printable(text(one.ratio)),
                    one.hasLimit() ? qUtf8Printable(number(one.limit)) : "–",
                    one.isReached() ? "" : ", **not reached**");
    }
}

// ---- the chart: a bar for each ratio, with its spread and its limit ----------------------------

const int NAME_WIDTH = 600; // in pixels, like the sizes below
const int BARS_WIDTH = 460;
const int VALUE_WIDTH = 170;
const int ROW_HEIGHT = 34;
const int HEAD = 60;
const int FOOT = 24;
const int LARGEST_RATIO = 4; // the end of the scale; longer bars are cut off

int place(double ratio)
{
    return NAME_WIDTH +
           static_cast<int>(BARS_WIDTH * qMin<double>(ratio, LARGEST_RATIO) / LARGEST_RATIO);
}

void paintScale(QPainter &painter, int bottom)
{
    for (int ratio = 0; ratio <= LARGEST_RATIO; ++ratio) {
        painter.setPen(ratio == 1 ? Qt::black : QColor(200, 200, 200));
        painter.drawLine(place(ratio), HEAD - 8, place(ratio), bottom);
        painter.setPen(Qt::black);
        painter.drawText(QRect(place(ratio) - 40, HEAD - 28, 80, 18), Qt::AlignCenter,
                         QString::number(ratio));
    }
}

void paintSpread(QPainter &painter, const Spread &ratio, int middle)
{
    painter.setPen(QPen(QColor(60, 60, 60), 1));
    painter.drawLine(place(ratio.smallest), middle, place(ratio.largest), middle);
    painter.drawLine(place(ratio.smallest), middle - 4, place(ratio.smallest), middle + 4);
    painter.drawLine(place(ratio.largest), middle - 4, place(ratio.largest), middle + 4);
}

void paintLimit(QPainter &painter, double limit, int top)
{
    painter.setPen(QPen(QColor(200, 0, 0), 2));
    painter.drawLine(place(limit), top + 2, place(limit), top + ROW_HEIGHT - 2);
}

void paintRow(QPainter &painter, const Row &one, int top)
{
    const int middle = top + ROW_HEIGHT / 2;
    painter.setPen(Qt::black);
    painter.drawText(QRect(8, top, NAME_WIDTH - 16, ROW_HEIGHT / 2), Qt::AlignVCenter, one.what);
    painter.setPen(QColor(110, 110, 110));
    painter.drawText(QRect(8, middle, NAME_WIDTH - 16, ROW_HEIGHT / 2), Qt::AlignVCenter,
                     QLatin1String("to: ") + one.baseline);
    const QRect bar(NAME_WIDTH, top + 7, place(one.ratio.median) - NAME_WIDTH, ROW_HEIGHT - 14);
    painter.fillRect(bar, one.isReached() ? QColor(90, 150, 210) : QColor(230, 150, 60));
    paintSpread(painter, one.ratio, middle);
    if (one.hasLimit())
        paintLimit(painter, one.limit, top);
    painter.setPen(Qt::black);
    QString value = number(one.ratio.median);
    if (one.hasLimit())
        value += QLatin1String("   of ") + number(one.limit);
    painter.drawText(QRect(NAME_WIDTH + BARS_WIDTH + 12, top, VALUE_WIDTH, ROW_HEIGHT),
                     Qt::AlignVCenter, value);
}

void paintChart(QPainter &painter, const QList<Row> &rows, const QSize &size)
{
    painter.setFont(QFont(QLatin1String("DejaVu Sans"), 8));
    painter.drawText(QRect(8, 6, size.width() - 16, 20), Qt::AlignVCenter,
                     QLatin1String("Cost as a multiple of its baseline: bar = median, line = "
                                   "smallest to largest, red = target"));
    paintScale(painter, size.height() - FOOT);
    for (int i = 0; i < rows.count(); ++i)
        paintRow(painter, rows.at(i), HEAD + i * ROW_HEIGHT);
}

void writeChart(const QList<Row> &rows, const QString &path)
{
    const QSize size(NAME_WIDTH + BARS_WIDTH + VALUE_WIDTH,
                     HEAD + ROW_HEIGHT * rows.count() + FOOT);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintChart(painter, rows, size);
    painter.end();
    if (!image.save(path))
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.count() != 3)
        qFatal("usage: benchmark_report ROWS.tsv CHART.png");
    const QList<Row> rows = readRows(arguments.at(1));
    printTable(rows);
    writeChart(rows, arguments.at(2));
    return 0;
}
