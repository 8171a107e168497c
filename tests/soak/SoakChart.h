#ifndef SOAKCHART_H
#define SOAKCHART_H

#include <QString>
#include <QVector>

#include "SoakSample.h"

/// Draws a strip for each figure, with the number of commands on the horizontal axis and scales
/// that start at zero. Writes the chart as a PNG file. `warm` is the index of the sample with which
/// the last sample is compared. Returns true if the file was written.
bool writeSoakChart(const QString &file, const QVector<SoakSample> &samples, int warm);

#endif
