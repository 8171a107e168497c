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

/// Returns the schema for this kind of file in RELAX NG. The schema rejects what the check reports,
/// unless the mistake depends on the values of several elements. Returns an empty array for an
/// unknown kind.
QByteArray relaxNgSchema(const QString &kind);

} // namespace Tools

#endif
