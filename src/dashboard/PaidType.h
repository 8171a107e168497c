#ifndef PAIDTYPE_H
#define PAIDTYPE_H

#include <QString>

/** Who pays for the SIM, and when. */
enum PaidType { PAID_UNKNOWN, PAID_BEFORE, PAID_AFTER };

/// "Prepaid" or "Postpaid" in the user's language; empty when unknown.
QString paidTypeText(PaidType type);

#endif
