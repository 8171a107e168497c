#ifndef PROFILEROWS_H
#define PROFILEROWS_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

/* The contents of the profile editor's table as plain values. */
namespace ProfileRows
{

enum Column { NameColumn = 0, CodeColumn = 1, ColumnCount = 2 };

const int ROWS = 100; // the table does not show profiles beyond these rows

/** The two cells of a row. */
struct Row {
    QString name;
    QString code;
};

/// Returns the profiles that the rows describe, in order. Row i shows profile i of `shown`, if
/// there is one: the result takes the name and the code from the row and all other fields from the
/// profile. A row whose code has been cleared is left out. So is a new row without a code, because
/// there is nothing to send. A profile without a code or a name stays unchanged unless its row is
/// edited. Profiles beyond the last row are kept.
QList<Formats::USSDProfile> profiles(const QList<Row> &rows,
                                     const QList<Formats::USSDProfile> &shown);

/// Returns the profiles of the system file if `isSystem` is true, otherwise those of the user file,
/// in order.
QList<Formats::USSDProfile> ofFile(const QList<Formats::USSDProfile> &profiles, bool isSystem);

/// Returns true if the number of profiles, or any name or code, differs.
bool differ(const QList<Formats::USSDProfile> &a, const QList<Formats::USSDProfile> &b);

} // namespace ProfileRows

#endif
