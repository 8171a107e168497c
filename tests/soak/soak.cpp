/*
 * Simulates months of use in minutes. The plug-in, the device SDK and the simulated network run in
 * this process. At the end, the memory and other resources of the process are compared with those
 * after the warm-up.
 *
 *   soak [--commands N] [--openings N] [--report FOLDER]
 *
 * Writes soak.png and soak.txt to FOLDER. The exit status is 0 if nothing has grown more than
 * permitted and all commands had an outcome, 2 if the run could not be started, and 1 otherwise.
 */
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdio>

#include "ObjectCensus.h"
#include "SoakChart.h"
#include "SoakClock.h"
#include "SoakHost.h"
#include "SoakSample.h"
#include "Watchdog.h"

namespace
{

const double HOUR = 3600 * 1000.0; // ms
const int OPENINGS_IN_ROUND = 6;   // the page, the editor and four frames
const int OTHERS_IN_ROUND = 2;     // one without a reply, and one that the device cancels
const int SAMPLES = 200;

struct Order {
    qint64 commands = 2000;
    qint64 openings = 200;
    QString report; // the folder for the report; if empty, no report is written

    int rounds() const { return int((openings + OPENINGS_IN_ROUND - 1) / OPENINGS_IN_ROUND); }
    SoakLoad load() const;
};

/// Returns the load of a round. The general window sends every tenth command. Of the other
/// commands, every tenth one is queued.
SoakLoad Order::load() const
{
    const int each = int((commands + rounds() - 1) / rounds());
    SoakLoad load = {};
    load.pageCommands = qMax(1, each / 10);
    load.queuedCommands = qMax(1, (each - load.pageCommands) / 10);
    load.pipelineCommands =
        qMax(1, each - load.pageCommands - load.queuedCommands - OTHERS_IN_ROUND);
    return load;
}

bool readOrder(const QStringList &words, Order *order)
{
    for (int i = 1; i + 1 < words.size(); i += 2) {
        bool isNumber = true;
        if (words.at(i) == QLatin1String("--commands"))
            order->commands = words.at(i + 1).toLongLong(&isNumber);
        else if (words.at(i) == QLatin1String("--openings"))
            order->openings = words.at(i + 1).toLongLong(&isNumber);
        else if (words.at(i) == QLatin1String("--report"))
            order->report = words.at(i + 1);
        else
            return false;
        if (!isNumber || order->commands < 1 || order->openings < 1)
            return false;
    }
    return words.size() % 2 == 1;
}

void dropLog(QtMsgType, const QMessageLogContext &, const QString &) {}

/** Performs the run and collects the samples. */
class Soak
{
public:
    explicit Soak(const Order &order) : m_order(order), m_host(order.load()) {}

    bool isReady() const { return m_host.isReady(); }
    void run();
    QString report() const;
    /// Returns a description of all failures, or an empty string if there are none.
    QString faults() const;
    bool writeReport() const;

private:
    SoakSample sample() const;
    int warmUp() const { return 2 * SoakHost::cycle(); }

    const Order m_order;
    SoakHost m_host;
    QVector<SoakSample> m_samples;
    int m_warm = 0;
};

SoakSample Soak::sample() const
{
    SoakSample sample = takeSoakSample();
    sample.commands = m_host.commands();
    sample.openings = m_host.openings();
    sample.simulatedHours = double(SoakClock::now()) / HOUR;
    return sample;
}

/// Takes samples only after rounds of the same kind, because memory use depends on the language.
void Soak::run()
{
    const int cycle = SoakHost::cycle();
    const int rounds = warmUp() + m_order.rounds();
    const int every = qMax(1, rounds / SAMPLES / cycle) * cycle;
    m_samples.reserve(SAMPLES * 2);
    for (int number = 0; number < rounds || number % cycle != 0; ++number) {
        m_host.round(number);
        Watchdog::instance().watch("round " + std::to_string(number));
        if (number + 1 == warmUp())
            m_warm = m_samples.size();
        if ((number + 1) % every == 0 || number + 1 == warmUp())
            m_samples << sample();
    }
    m_samples << sample();
}

QString Soak::report() const
{
    QString text;
    QTextStream out(&text);
    const SoakSample &warm = m_samples.at(m_warm);
    const SoakSample &end = m_samples.last();
    out << end.commands << " commands, " << end.openings << " windows opened, " << m_host.answers()
        << " outcomes, " << qRound(end.simulatedHours) << " hours simulated\n";
    for (const SoakFigure &figure : soakFigures())
        out << figure.name << ": " << figure.value(warm) << ' ' << figure.unit
            << " after the warm-up, " << figure.value(end) << ' ' << figure.unit << " at the end\n";
    return text;
}

QString Soak::faults() const
{
    QString text = grownBetween(m_samples.at(m_warm), m_samples.last());
    for (const QString &trouble : m_host.troubles())
        text += trouble + QLatin1Char('\n');
    return text;
}

bool Soak::writeReport() const
{
    const QDir folder(m_order.report);
    QFile file(folder.filePath(QLatin1String("soak.txt")));
    return folder.mkpath(QLatin1String(".")) && file.open(QIODevice::WriteOnly) &&
           file.write((report() + faults()).toUtf8()) > 0 &&
           writeSoakChart(folder.filePath(QLatin1String("soak.png")), m_samples, m_warm);
}

int fail(const char *text)
{
    fprintf(stderr, "%s\n", text);
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    ObjectCensus::install();
    qInstallMessageHandler(dropLog);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Order order;
    if (!readOrder(QApplication::arguments(), &order))
        return fail("usage: soak [--commands N] [--openings N] [--report FOLDER]");
    SoakClock::install();
    Watchdog::instance().watch("the first round");
    Soak soak(order);
    if (!soak.isReady())
        return fail("the plug-in's files cannot be laid out");
    soak.run();
    Watchdog::instance().rest();
    printf("%s%s", qPrintable(soak.report()), qPrintable(soak.faults()));
    if (!order.report.isEmpty() && !soak.writeReport())
        return fail("the report cannot be written");
    return soak.faults().isEmpty() ? 0 : 1;
}
