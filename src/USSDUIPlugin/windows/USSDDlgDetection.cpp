/*
 * The part of USSDDlg that determines whether the SIM is prepaid or postpaid.
 */
#include "USSDDlg.h"

#include "base/PluginLog.h"
#include "PostpaidReply.h"

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDDlg.cpp");

int USSDDlg::GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask)
{
    USSD_LOG_SCOPE();
    if (!m_pLogic) {
        USSD_LOG_EXIT(" Fail Exit: Logic is NULL");
        return 0;
    }
    m_prePostRecord.bInUse = inUse;
    m_prePostRecord.bPostPaid = postpaid;
    m_prePostRecord.result = result;
    m_pLogic->GetPrePostDiffer(m_prePostDiffer);
    if (ask)
        startDetection();
    inUse = m_prePostRecord.bInUse;
    postpaid = m_prePostRecord.bPostPaid;
    result = m_prePostRecord.result;
    return 1;
}

void USSDDlg::startDetection()
{
    m_prePostRecord.bInUse = m_prePostDiffer.value;
    if (!m_prePostDiffer.value)
        return;
    m_prePostRecord.bPostPaid = false;
    m_prePostRecord.result = 0;
    m_pLogic->ReleaseUSSDCommand();
    if (m_prePostDiffer.command.isEmpty())
        return;
    int status = 0;
    const int result = m_pLogic->SendUSSDCommand(
        USSDCmdOrResp(COMPONENT_PREPOST_QUERY, m_prePostDiffer.command), &status);
    m_prePostRecord.result = isAnswerAwaited(result) ? 1 : 0;
}

void USSDDlg::onPrePostPaidRspReceived(const QString &text)
{
    USSD_LOG_SCOPE();
    if (text == tr(QLatin1String("USSD_CODE_TIME_OUT"))) {
        m_prePostRecord.result = 0;
    } else {
        m_prePostRecord.bPostPaid = isPostpaidReply(text, m_prePostDiffer.returnPattern);
        USSD_LOG(" bPostPaid=%d", m_prePostRecord.bPostPaid);
    }
    notifyHost();
}
