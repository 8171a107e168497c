#ifndef PRIVATEFILE_H
#define PRIVATEFILE_H

#include <QByteArray>
#include <QString>

namespace Dashboard
{

/// Replaces the file with a new one that only its owner can read. Returns an empty string on
/// success. Otherwise, leaves the file unchanged and returns the system's error message.
QString writePrivateFile(const QString &file, const QByteArray &content);

} // namespace Dashboard

#endif
