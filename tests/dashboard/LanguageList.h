#ifndef LANGUAGELIST_H
#define LANGUAGELIST_H

#include <QRegularExpression>
#include <QStringList>

#include "Languages.h"

/// Returns all languages except country variants such as "pt_BR". A variant may share texts with
/// another variant, so a test cannot require that its texts are different.
inline QStringList languagesWithoutVariants()
{
    return HostCore::Languages::codes().filter(QRegularExpression(QLatin1String("^[a-z]+$")));
}

#endif
