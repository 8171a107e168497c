#ifndef PLUGINTEXT_H
#define PLUGINTEXT_H

#include <QString>

#include "Change.h"

/// Returns the plug-in's string for `key` in the user's language. May be called from any thread.
inline QString pluginText(const QString &key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), key);
}

#endif
