#ifndef PLUGINTEXT_H
#define PLUGINTEXT_H

#include <QString>

#include "Change.h"

/// The plug-in's text behind `key` in the user's language. Any thread.
inline QString pluginText(const QString &key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), key);
}

#endif
