#include "NotificationService.h"

#include "PluginContract.h"

namespace Dashboard
{

namespace
{

const int TAKEN = 0;
const int NOT_TAKEN = 1;

bool isAddressee(const QString &name)
{
    for (const char *addressee : NotificationService::ADDRESSEES) {
        if (name == QLatin1String(addressee))
            return true;
    }
    return false;
}

PaidType paidTypeOf(const PrePostRecord &record)
{
    if (!record.bInUse || record.result == 0)
        return PaidType::Unknown;
    return record.bPostPaid ? PaidType::Postpaid : PaidType::Prepaid;
}

} // namespace

const char *const NotificationService::CLSID = "5B21E0C4-7D93-4A6F-9E08-C3F1A7D24B61";
const char *const NotificationService::ADDRESSEES[2] = {"8E4C1F07-3B6A-4d29-A5C1-6F0B92E7D3C8",
                                                        "27A9D5E3-C41B-4be6-9F72-0D5E8A63C1F4"};

NotificationService::NotificationService(QObject *parent) : QObject(parent) {}

// Reads the record immediately, because it is valid only during the call.
int NotificationService::Notify(const QString &addressee, unsigned int message, NotifyParam wParam,
                                NotifyParam)
{
    const PrePostRecord *record = reinterpret_cast<const PrePostRecord *>(wParam);
    if (message != PluginContract::MESSAGE_PRE_POST_INFO || !record || !isAddressee(addressee))
        return NOT_TAKEN;
    emit paidTypeTold(paidTypeOf(*record));
    return TAKEN;
}

} // namespace Dashboard
