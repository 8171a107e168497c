#ifndef SIMKEY_H
#define SIMKEY_H

#include <QString>

namespace Dashboard
{

/**
 * Returns a key that identifies the SIM without revealing its IMSI: a hash of the IMSI and a random
 * number that is unique to this installation. Returns an empty string if the IMSI is empty or if
 * the random number cannot be stored.
 *
 * `folder` contains the file with the random number. The first call creates this file, which only
 * its owner can read.
 */
QString simKey(const QString &imsi, const QString &folder);
/// Returns the key of the SIM, using the random number in the data folder of the user who runs the
/// program.
QString simKey(const QString &imsi);
/// Removes the random number, so that the keys of all SIMs change. The entries with the former keys
/// must be removed as well, because they can no longer be found. Returns false if the random number
/// cannot be removed.
bool forgetSimKeys(const QString &folder);
/// Removes the random number in the data folder of the user who runs the program.
bool forgetSimKeys();

} // namespace Dashboard

#endif
