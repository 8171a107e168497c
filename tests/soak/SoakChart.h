#ifndef SOAKCHART_H
#define SOAKCHART_H

#include <QString>
#include <QVector>

#include "SoakSample.h"

/// Draws a strip for each figure over the number of commands, with scales from zero, and writes the
/// picture as a PNG file. `warm` is the index of the sample that the end is compared with. Returns
/// whether the file was written.
bool writeSoakChart(const QString &file, const QVector<SoakSample> &samples, int warm);

#endif
