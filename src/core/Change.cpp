#include "Change.h"

#include "Languages.h"

QString Change::tr(const QString &context, const QString &key)
{
    return HostCore::Languages::text(context, key);
}
