#ifndef SOAKCHART_H
#define SOAKCHART_H

#include <QString>
#include <QVector>

#include "SoakSample.h"

/// Draws each figure over the commands sent, one strip for each, all from zero, and writes the
/// picture as a PNG. `warm` is the sample that the end is compared with. Whether it was written.
bool writeSoakChart(const QString &file, const QVector<SoakSample> &samples, int warm);

#endif
