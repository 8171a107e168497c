/*
 * The part of USSDDlg that reports to the host whether the SIM is prepaid or postpaid.
 */
#include "USSDDlg.h"

#include "base/PluginLog.h"
#include "INotifyService.h"
#include "IPluginContainer.h"
#include "Startup.h"

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDDlg.cpp");

namespace
{

const char NOTIFICATION_PLUGIN[] = "5B21E0C4-7D93-4A6F-9E08-C3F1A7D24B61";
const char *const ADDRESSEES[] = {"8E4C1F07-3B6A-4d29-A5C1-6F0B92E7D3C8",
                                  "27A9D5E3-C41B-4be6-9F72-0D5E8A63C1F4"};

} // namespace

/// Sends the result of the detection to both parts of the host that ADDRESSEES lists. A copy of the
/// record ensures that both receive the same values, even if the host starts another detection or
/// shuts down during the first notification.
void USSDDlg::notifyHost()
{
    const PrePostRecord record = m_prePostRecord;
    sendNotify(PluginContract::MESSAGE_PRE_POST_INFO, reinterpret_cast<NotifyParam>(&record), 0);
}

void USSDDlg::sendNotify(unsigned int msg, NotifyParam wParam, NotifyParam lParam)
{
    IPluginContainer *container = Startup::GetPluginContainer();
    if (!container) {
        USSD_LOG_UNTIMED(": Plugin container is null ");
        USSD_LOG_UNTIMED_WARNING(": Plugin container is null ");
        return;
    }
    const QPointer<QObject> plugin(container->GetPlugin(QLatin1String(NOTIFICATION_PLUGIN)));
    INotifyService *service = qobject_cast<INotifyService *>(plugin.data());
    if (!service) {
        USSD_LOG_UNTIMED(": plugin is not loaded ");
        return;
    }
    for (const char *addressee : ADDRESSEES) {
        if (plugin)
            service->Notify(QLatin1String(addressee), msg, wParam, lParam);
    }
}
