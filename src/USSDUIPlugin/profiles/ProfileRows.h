#ifndef PROFILEROWS_H
#define PROFILEROWS_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

/* What the profile editor's table says, as plain values. */
namespace ProfileRows
{

enum Column { NameColumn = 0, CodeColumn = 1, ColumnCount = 2 };

const int ROWS = 100; // profiles beyond it are not shown

/** The two cells of a row. */
struct Row {
    QString name;
    QString code;
};

/// The profiles that these rows stand for, in order. Row i showed profile i of `shown`, as far as
/// there was one; what a person changed there is taken over, the rest of the profile stays. A row
/// whose code was emptied is left out, and so is a new one without a code, since nothing could be
/// sent. A profile that came without a code or a name stays as it was. Profiles beyond the rows are
/// kept.
QList<USSDProfile> profiles(const QList<Row> &rows, const QList<USSDProfile> &shown);

/// Those of the system file, or the others, in order.
QList<USSDProfile> ofFile(const QList<USSDProfile> &profiles, bool isSystem);

/// Whether the number of profiles, or any name or code, differs.
bool differ(const QList<USSDProfile> &a, const QList<USSDProfile> &b);

} // namespace ProfileRows

#endif
