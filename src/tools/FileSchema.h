#ifndef FILESCHEMA_H
#define FILESCHEMA_H

#include <QByteArray>

#include "Spelling.h"

namespace Tools
{

/*
 * The structure of the plug-in's XML files. A single table is the source of the names that
 * "ussd-config check" accepts, and of the schemas that XML editors use.
 */

/// Returns the kinds of files for which there is a schema, as in CheckReport::kind.
QStringList schemaKinds();

/// Returns the names that may appear in a file of this kind, except the name of the root.
KnownNames knownNames(const QString &kind);

/// Returns the RELAX NG schema for this kind of file. The schema rejects every mistake that
/// "ussd-config check" reports, except mistakes that depend on the values of several elements.
/// Returns an empty array for an unknown kind.
QByteArray relaxNgSchema(const QString &kind);

} // namespace Tools

#endif
