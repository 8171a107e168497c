#include "SoakSample.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmapCache>

#include <malloc.h>
#include <unistd.h>

#include "ObjectCensus.h"

namespace
{

const double MEGABYTE = 1 << 20;

/// The permitted growth of the heap. Some caches in Qt and the C library do not have a fixed size,
/// for example those for glyphs and free memory. A long run still detects even a small leak: one
/// leaked block per hundred commands exceeds this limit, because each block needs at least 32
/// bytes.
const double HEAP_MAY_GROW = 0.25; // megabytes
/// The permitted growth of the resident memory. The C library cannot return free pages that lie
/// between used blocks.
const double RESIDENT_MAY_GROW = 6; // megabytes

double residentMegabytes(const SoakSample &sample)
{
    return double(sample.residentBytes) / MEGABYTE;
}

double heapMegabytes(const SoakSample &sample)
{
    return double(sample.heapBytes) / MEGABYTE;
}

template <int SoakSample::*Member>
double count(const SoakSample &sample)
{
    return sample.*Member;
}

qint64 residentBytes()
{
    QFile file(QLatin1String("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

int entriesOf(const char *folder)
{
    const QDir::Filters all = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
    return QDir(QLatin1String(folder)).entryList(all).size();
}

qint64 heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

} // namespace

const QVector<SoakFigure> &soakFigures()
{
    static const QVector<SoakFigure> figures = {
        {"memory resident", residentMegabytes, RESIDENT_MAY_GROW, "MB"},
        {"heap in use", heapMegabytes, HEAP_MAY_GROW, "MB"},
        {"file descriptors", count<&SoakSample::descriptors>, 0, ""},
        {"threads", count<&SoakSample::threads>, 0, ""},
        {"timers", count<&SoakSample::timers>, 0, ""},
        {"widgets", count<&SoakSample::widgets>, 0, ""},
        {"objects", count<&SoakSample::objects>, 0, ""},
    };
    return figures;
}

SoakSample takeSoakSample()
{
    SoakSample sample;
    // The cache would keep up to 10 MB of unused data.
    QPixmapCache::clear();
    malloc_trim(0); // freed memory is not a leak
    sample.heapBytes = heapBytes();
    sample.residentBytes = residentBytes();
    sample.descriptors = entriesOf("/proc/self/fd");
    sample.threads = entriesOf("/proc/self/task");
    sample.timers = ObjectCensus::timers();
    sample.widgets = QApplication::allWidgets().size();
    sample.objects = ObjectCensus::objects();
    return sample;
}

QString grownBetween(const SoakSample &warm, const SoakSample &end)
{
    QString text;
    for (const SoakFigure &figure : soakFigures()) {
        const double grown = figure.value(end) - figure.value(warm);
        if (grown > figure.mayGrowBy)
            text += QString::fromLatin1("%1 grew by %2 %3, from %4\n")
                        .arg(QLatin1String(figure.name))
                        .arg(grown)
                        .arg(QLatin1String(figure.unit))
                        .arg(figure.value(warm));
    }
    return text;
}
