#ifndef CLOCKTEXT_H
#define CLOCKTEXT_H

#include <QDateTime>

#include "Isolate.h"

namespace Dashboard
{

/// Returns the time of day such as "14:32", which is the same in every language.
inline QString clockText(const QDateTime &time)
{
    return isolated(time.time().toString(QLatin1String("HH:mm")));
}

} // namespace Dashboard

#endif
