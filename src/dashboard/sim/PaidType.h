#ifndef PAIDTYPE_H
#define PAIDTYPE_H

#include <QString>

namespace Dashboard
{

/** The type of contract to which a SIM belongs. */
enum class PaidType { Unknown, Prepaid, Postpaid };

/// Returns "Prepaid" or "Postpaid" in the user's language, or an empty string if the type is
/// unknown.
QString paidTypeText(PaidType type);

} // namespace Dashboard

#endif
