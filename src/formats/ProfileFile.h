#ifndef PROFILEFILE_H
#define PROFILEFILE_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

/* A profile file on the disk. */
namespace ProfileFile
{

enum MissingFolder { FolderIsMade, FolderIsNotMade };

/// Whether these profiles could be written to the file now. Saving deletes the old file first, so
/// this is asked before. Changes nothing on the disk.
bool canBeSaved(const QString &path, const QList<USSDProfile> &profiles, MissingFolder missing);

} // namespace ProfileFile

#endif
