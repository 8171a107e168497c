#ifndef SOAKCHART_H
#define SOAKCHART_H

#include <QString>
#include <QVector>

#include "SoakSample.h"

/// Draws a diagram for each figure and saves the diagrams as a PNG file. The horizontal axis is the
/// number of commands, and the vertical axes start at zero. `warm` is the index of the sample with
/// which the last sample is compared. Returns true on success.
bool writeSoakChart(const QString &file, const QVector<SoakSample> &samples, int warm);

#endif
