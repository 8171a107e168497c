#ifndef PRIVATEFILE_H
#define PRIVATEFILE_H

#include <QByteArray>
#include <QString>

namespace Dashboard
{

/// Replaces the file with one that only its user can read. Returns an empty string, or the system's
/// error message if the file stays as it was.
QString writePrivateFile(const QString &file, const QByteArray &content);

} // namespace Dashboard

#endif
