#ifndef DASHBOARDTEXT_H
#define DASHBOARDTEXT_H

#include <QString>

#include "Change.h"

namespace Dashboard
{

/// Returns the dashboard's string for the key in the current language.
inline QString dashboardText(const char *key)
{
    return Change::tr(QLatin1String("Dashboard"), QLatin1String(key));
}

} // namespace Dashboard

#endif
