#ifndef PROFILEROWS_H
#define PROFILEROWS_H

#include <QList>
#include <QString>

#include "USSDProfile.h"

/* The contents of the profile editor's table as plain values. */
namespace ProfileRows
{

enum Column { NameColumn = 0, CodeColumn = 1, ColumnCount = 2 };

const int ROWS = 100; // profiles beyond these rows are not shown in the table

/** The two cells of a row. */
struct Row {
    QString name;
    QString code;
};

/// Returns the profiles described by the rows, in order. If `shown` contains a profile for a row,
/// the result uses the name and the code from the row and all other fields from the profile. A row
/// whose code has been cleared is omitted. A new row without a code is also omitted, because there
/// is nothing to send. A profile without a code or a name remains unchanged unless its row is
/// edited. Profiles beyond the last row are kept.
QList<Formats::USSDProfile> profiles(const QList<Row> &rows,
                                     const QList<Formats::USSDProfile> &shown);

/// Returns the profiles of the system file if `isSystem` is true, otherwise the profiles of the
/// user file, in order.
QList<Formats::USSDProfile> ofFile(const QList<Formats::USSDProfile> &profiles, bool isSystem);

/// Returns true if the lists differ in the number of profiles, or in any name or code.
bool differ(const QList<Formats::USSDProfile> &a, const QList<Formats::USSDProfile> &b);

} // namespace ProfileRows

#endif
