#ifndef LANGUAGELIST_H
#define LANGUAGELIST_H

#include <QRegularExpression>
#include <QStringList>

#include "Languages.h"

/// Returns the languages without those of a certain country, such as "pt_BR". Such a language may
/// share texts with another variant, so a test cannot require that its texts are different.
inline QStringList languagesWithoutVariants()
{
    return HostCore::Languages::codes().filter(QRegularExpression(QLatin1String("^[a-z]+$")));
}

#endif
