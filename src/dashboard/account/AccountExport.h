#ifndef ACCOUNTEXPORT_H
#define ACCOUNTEXPORT_H

#include <QString>

namespace Dashboard
{

/// Returns true if the name ends with ".csv" or ".json".
bool isExportName(const QString &file);

/// Writes all entries of the database to a CSV or JSON file, depending on the extension of the file
/// name. To protect the user's privacy, SIMs are identified only by consecutive numbers. Replaces
/// an existing file, which is kept if writing fails. Returns an error message, or an empty string
/// on success.
QString exportAccountTo(const QString &file, const QString &database);

} // namespace Dashboard

#endif
