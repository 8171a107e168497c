#ifndef PROFILESAVECHECK_H
#define PROFILESAVECHECK_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

namespace Formats
{

/* Checks a profile file on the disk before it is written. */
namespace ProfileSaveCheck
{

enum MissingFolder { FolderIsMade, FolderIsNotMade };

/// Returns true if `profiles` can be written to the file at this time. The editor checks this
/// before it saves, because saving deletes the old file first. Changes nothing on the disk.
bool canBeSaved(const QString &path, const QList<USSDProfile> &profiles, MissingFolder missing);

} // namespace ProfileSaveCheck

} // namespace Formats

#endif
