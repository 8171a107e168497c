#ifndef SIMKEY_H
#define SIMKEY_H

#include <QString>

namespace Dashboard
{

/**
 * Returns a name for the SIM that does not contain its IMSI: a hash of the IMSI and of a random
 * number that only this installation knows. Returns an empty string if the IMSI is empty, or if the
 * random number cannot be stored.
 *
 * `folder` contains the file with the random number. The file is created by the first call and can
 * be read only by its owner.
 */
QString simKey(const QString &imsi, const QString &folder);
/// Uses the folder of the user who runs the program.
QString simKey(const QString &imsi);
/// Removes the random number, so that the keys of all SIMs change. The entries with the former keys
/// must be removed as well, because they can no longer be found.
bool forgetSimKeys(const QString &folder);
/// Uses the folder of the user who runs the program.
bool forgetSimKeys();

} // namespace Dashboard

#endif
