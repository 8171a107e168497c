#ifndef ACCOUNTEXPORT_H
#define ACCOUNTEXPORT_H

#include <QString>

namespace Dashboard
{

/// Returns true if the name ends with ".csv" or ".json".
bool isExportName(const QString &file);

/// Writes all entries of the database to a CSV or JSON file, depending on the name of the file. The
/// SIMs are numbered, and nothing tells which SIM has which number. Replaces an existing file; on
/// failure, the existing file stays. Returns an error message, or an empty string on success.
QString exportAccountTo(const QString &file, const QString &database);

} // namespace Dashboard

#endif
