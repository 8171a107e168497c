#ifndef SOAKSAMPLE_H
#define SOAKSAMPLE_H

#include <QString>
#include <QVector>

/** The memory and other resources that the idle process uses. */
struct SoakSample {
    qint64 commands = 0;       // number of commands sent since the start
    qint64 openings = 0;       // number of windows opened since the start
    double simulatedHours = 0; // simulated time since the start, in hours
    qint64 residentBytes = 0;  // resident set size
    qint64 heapBytes = 0;      // allocated with malloc() and not freed
    int descriptors = 0;
    int threads = 0;
    int timers = 0;  // Qt timers in the GUI thread
    int widgets = 0; // widgets with and without a parent
    int objects = 0; // QObjects, including widgets
};

/** A value that is compared between two samples. */
struct SoakFigure {
    const char *name;
    double (*value)(const SoakSample &);
    /// The permitted growth between the warm-up and the end. docs/testing.md explains the limits.
    double mayGrowBy;
    const char *unit;
};

const QVector<SoakFigure> &soakFigures();

SoakSample takeSoakSample();

/// Returns one line for each value that has grown more than permitted.
QString grownBetween(const SoakSample &warm, const SoakSample &end);

#endif
