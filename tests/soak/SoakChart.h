#ifndef SOAKCHART_H
#define SOAKCHART_H

#include <QString>
#include <QVector>

#include "SoakSample.h"

/// Draws one strip for each figure, plotted over the number of commands with scales from zero.
/// Writes the chart as a PNG file. `warm` is the index of the sample with which the end is
/// compared. Returns true if the file was written.
bool writeSoakChart(const QString &file, const QVector<SoakSample> &samples, int warm);

#endif
