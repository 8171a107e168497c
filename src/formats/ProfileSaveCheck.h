#ifndef PROFILESAVECHECK_H
#define PROFILESAVECHECK_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

namespace Formats
{

/* Checks whether profiles can be saved. */
namespace ProfileSaveCheck
{

enum MissingFolder { FolderIsMade, FolderIsNotMade };

/// Returns true if `profiles` can currently be written to the file. The editor checks this in
/// advance, because saving starts by deleting the old file. The function does not change any files.
bool canBeSaved(const QString &path, const QList<USSDProfile> &profiles, MissingFolder missing);

} // namespace ProfileSaveCheck

} // namespace Formats

#endif
