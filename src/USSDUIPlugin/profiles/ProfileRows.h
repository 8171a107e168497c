#ifndef PROFILEROWS_H
#define PROFILEROWS_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

/* Functions that convert between the profile editor's table and lists of profiles. */
namespace ProfileRows
{

enum Column { NameColumn = 0, CodeColumn = 1, ColumnCount = 2 };

const int ROWS = 100; // number of rows in the table; further profiles are not shown

/** The contents of the two cells in a row. */
struct Row {
    QString name;
    QString code;
};

/// Returns the profiles described by the rows, in order. The name and the code come from the row.
/// The other fields come from the profile in `shown` that belongs to the row, if any. Rows whose
/// code has been cleared and new rows without a code are omitted, because they cannot send
/// anything. A profile without a code or a name is kept unless its row has been edited. Profiles
/// beyond the last row are kept as well.
QList<Formats::USSDProfile> profiles(const QList<Row> &rows,
                                     const QList<Formats::USSDProfile> &shown);

/// Returns the profiles that belong to the system file if `isSystem` is true, otherwise those that
/// belong to the user file. The order does not change.
QList<Formats::USSDProfile> ofFile(const QList<Formats::USSDProfile> &profiles, bool isSystem);

/// Returns true if the lists differ in the number of profiles or in the name or the code of a
/// profile.
bool differ(const QList<Formats::USSDProfile> &a, const QList<Formats::USSDProfile> &b);

} // namespace ProfileRows

#endif
