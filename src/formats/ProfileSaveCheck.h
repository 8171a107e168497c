#ifndef PROFILESAVECHECK_H
#define PROFILESAVECHECK_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

namespace Formats
{

/* Checks that a profile file can be written. */
namespace ProfileSaveCheck
{

enum MissingFolder { FolderIsMade, FolderIsNotMade };

/// Returns true if `profiles` can be written to the file at this time. The editor makes this check
/// before it saves profiles, because saving starts by deleting the old file. The function does not
/// change any files.
bool canBeSaved(const QString &path, const QList<USSDProfile> &profiles, MissingFolder missing);

} // namespace ProfileSaveCheck

} // namespace Formats

#endif
