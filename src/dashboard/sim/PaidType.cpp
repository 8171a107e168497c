#include "PaidType.h"

#include "base/DashboardText.h"

namespace Dashboard
{

QString paidTypeText(PaidType type)
{
    switch (type) {
    case PaidType::Prepaid:
        return dashboardText("PAID_PREPAID");
    case PaidType::Postpaid:
        return dashboardText("PAID_POSTPAID");
    default:
        return QString();
    }
}

} // namespace Dashboard
