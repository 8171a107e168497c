#ifndef SOAKSAMPLE_H
#define SOAKSAMPLE_H

#include <QString>
#include <QVector>

/** What the process holds at one moment at which nothing is going on. */
struct SoakSample {
    qint64 commands = 0;       // sent until now
    qint64 openings = 0;       // of windows, until now
    double simulatedHours = 0; // since the start
    qint64 residentBytes = 0;  // RSS
    qint64 heapBytes = 0;      // handed out by malloc and not given back
    int descriptors = 0;
    int threads = 0;
    int timers = 0;  // of Qt, in the GUI thread
    int widgets = 0; // with and without parent
    int objects = 0; // QObjects, widgets included
};

/** One line of the comparison. */
struct SoakFigure {
    const char *name;
    double (*value)(const SoakSample &);
    /// What the end may hold more than the moment after the warm-up: see docs/testing.md.
    double mayGrowBy;
    const char *unit;
};

const QVector<SoakFigure> &soakFigures();

SoakSample takeSoakSample();

/// What grew by more than it may, one a line; empty when nothing did.
QString grownBetween(const SoakSample &warm, const SoakSample &end);

#endif
