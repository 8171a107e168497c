#ifndef PAIDTYPE_H
#define PAIDTYPE_H

#include <QString>

namespace Dashboard
{

/** The kind of contract that a SIM belongs to. */
enum class PaidType { Unknown, Prepaid, Postpaid };

/// Returns "Prepaid" or "Postpaid" in the user's language, or an empty string if the type is
/// unknown.
QString paidTypeText(PaidType type);

} // namespace Dashboard

#endif
