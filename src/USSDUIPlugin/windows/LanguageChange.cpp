/* The part of CUSSDService that handles language changes. All open windows are retranslated. */
#include "USSDService.h"

#include "FrameLook.h"

namespace
{

template <typename Dialog>
void setLanguageIfExists(const QPointer<Dialog> &dialog)
{
    if (dialog)
        dialog->SetLanguage();
}

} // namespace

void CUSSDService::changeLanguage()
{
    setLanguageIfExists(m_pPrepaidDlg);
    setLanguageIfExists(m_pPostpaidDlg);
    setLanguageIfExists(m_pGeneralModalDlg);
    setLanguageIfExists(m_pGeneralEmbeddedDlg);
    setLanguageIfExists(m_pUSSDSMSDlg);
    // Update the titles of the open frames and adapt their sizes to the new strings.
    if (m_pPrepaidFrame && m_pPrepaidDlg) {
        m_pPrepaidFrame->setWindowTitle(tr(QLatin1String(paidTitleKey(PAID_TYPE_PREPAID))));
        fixFrameSize(m_pPrepaidFrame, m_pPrepaidDlg.data());
    }
    if (m_pPostpaidFrame && m_pPostpaidDlg) {
        m_pPostpaidFrame->setWindowTitle(tr(QLatin1String(paidTitleKey(PAID_TYPE_POSTPAID))));
        fixFrameSize(m_pPostpaidFrame, m_pPostpaidDlg.data());
    }
    if (m_pGeneralFrame)
        m_pGeneralFrame->setWindowTitle(tr(QLatin1String("IDS_ADVANCE_USSD")));
    if (m_pUSSDSMSFrame)
        m_pUSSDSMSFrame->setWindowTitle(tr(QLatin1String("IDS_WINDOW_TITLE_SMSUSSD")));
}
