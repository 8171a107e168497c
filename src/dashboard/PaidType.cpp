#include "PaidType.h"

#include "DashboardText.h"

QString paidTypeText(PaidType type)
{
    switch (type) {
    case PAID_BEFORE:
        return dashboardText("PAID_PREPAID");
    case PAID_AFTER:
        return dashboardText("PAID_POSTPAID");
    default:
        return QString();
    }
}
