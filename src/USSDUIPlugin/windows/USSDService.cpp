#include "USSDService.h"

#include <new>

#include "base/PluginLog.h"
#include "base/PluginMessage.h"
#include "base/PluginText.h"
#include "CommonUtils.h"
#include "FrameLook.h"
#include "PluginContract.h"
#include "QtCompat.h"
#include "requests/USSDLogic.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDService.cpp");

namespace
{

const int GENERAL_FRAME_WIDTH = 588;
const int GENERAL_FRAME_HEIGHT = 465;
const int PLAIN_FRAME = 1;

Qt::WindowFlags frameFlags()
{
    return Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint;
}

template <typename Dialog>
void leaveIfExists(const QPointer<Dialog> &dialog)
{
    if (dialog)
        dialog->OnClickedCloseButton();
}

template <typename Widget>
void closeIfExists(const QPointer<Widget> &widget)
{
    if (widget)
        QtCompat::closeEvenIfHidden(widget);
}

} // namespace

CUSSDService *CUSSDService::m_pInstance = nullptr;

CUSSDService *CUSSDService::instance()
{
    if (!m_pInstance)
        m_pInstance = new (std::nothrow) CUSSDService;
    return m_pInstance;
}

void CUSSDService::Destroy()
{
    USSD_LOG_SCOPE();
    if (!m_pInstance)
        return;
    m_pInstance->destroyUSSD();
    delete m_pInstance;
    m_pInstance = nullptr;
}

CUSSDService::CUSSDService() : m_modalPaidType(PAID_TYPE_NONE), m_shownPaidType(PAID_TYPE_NONE)
{
    USSD_LOG_SCOPE();
}

CUSSDService::~CUSSDService()
{
    // In this line, the time follows the source and the function. The format must not change,
    // because log parsers depend on it.
    USSD_IF_LOGGING(
        qDebug("%s: %s: %s entered", LOG_SOURCE, "~CUSSDService", PluginLog::timeOfDay()));
}

QString CUSSDService::tr(const QString &key)
{
    return pluginText(key);
}

// ---- queries to the logic --------------------------------------------------------------------

int CUSSDService::GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask)
{
    USSD_LOG_SCOPE();
    if (!m_pPrepaidDlg && !createUSSDDlgWindow(WINDOW_MODEL_MODAL, PAID_TYPE_PREPAID))
        return 0;
    return m_pPrepaidDlg->GetPrePostInfo(inUse, postpaid, result, ask);
}

bool CUSSDService::IsImsiDynamicMatch()
{
    USSD_LOG_SCOPE();
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    return logic && logic->IsImsiDynamicMatch();
}

bool CUSSDService::CheckImsiIsValid(const QString &imsi, int &flags)
{
    USSD_LOG_SCOPE();
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    return logic && logic->CheckImsiIsValid(imsi, flags);
}

void CUSSDService::unSDKRegisterEvent()
{
    USSD_LOG_UNTIMED(" called");
    if (USSDLogic *logic = USSDLogic::GetUSSDLogicInstance())
        logic->unSDKRegisterEvent();
    USSD_LOG_UNTIMED(" exit");
}

int CUSSDService::Notify(unsigned int event, unsigned int param1, unsigned int param2)
{
    USSD_LOG_SCOPE();
    Q_UNUSED(param1);
    Q_UNUSED(param2);
    if (event == PluginContract::EVENT_LANGUAGE_CHANGED) {
        changeLanguage();
    } else if (event == PluginContract::EVENT_CHECK_SIM && IsImsiDynamicMatch()) {
        closeFramesOfTheSim();
    }
    return 0;
}

/// Closes the frames of the windows that depend on the SIM. The host may shut down the plug-in when
/// a frame is closed, so this object may be deleted in the meantime.
void CUSSDService::closeFramesOfTheSim()
{
    const QPointer<USSDExtendDialog> frames[] = {m_pPrepaidFrame, m_pPostpaidFrame,
                                                 m_pGeneralFrame};
    for (const QPointer<USSDExtendDialog> &frame : frames)
        closeIfExists(frame);
}

// ---- creating --------------------------------------------------------------------------------

int CUSSDService::createUSSDDlgWindow(WINDOW_MODEL model, PAID_TYPE type)
{
    USSD_LOG_SCOPE();
    if (type == PAID_TYPE_USSD_SMS) {
        if (!m_pUSSDSMSDlg) {
            m_pUSSDSMSDlg = new (std::nothrow) CUSSDSMSDlg;
            if (m_pUSSDSMSDlg)
                m_pUSSDSMSDlg->InitDialog();
        }
        return m_pUSSDSMSDlg ? 1 : 0;
    }
    if (type != PAID_TYPE_PREPAID && type != PAID_TYPE_POSTPAID)
        return 1;
    QPointer<USSDDlg> &dialog = type == PAID_TYPE_PREPAID ? m_pPrepaidDlg : m_pPostpaidDlg;
    if (!dialog) {
        dialog = new (std::nothrow) USSDDlg;
        if (dialog)
            dialog->InitDialog(nullptr, type, model);
    }
    return dialog ? 1 : 0;
}

int CUSSDService::createUSSDGeneralDlgWindow(WINDOW_MODEL model)
{
    USSD_LOG_SCOPE();
    if (model != WINDOW_MODEL_MODAL && model != WINDOW_MODEL_EMBEDDED)
        return 0;
    QPointer<USSDGeneralDlg> &dialog =
        model == WINDOW_MODEL_MODAL ? m_pGeneralModalDlg : m_pGeneralEmbeddedDlg;
    if (!dialog) {
        dialog = new (std::nothrow) USSDGeneralDlg;
        if (!dialog)
            return 0;
        dialog->InitDialog(nullptr, model);
    }
    dialog->ReInitDialog();
    return 1;
}

bool CUSSDService::makeFrame(QPointer<USSDExtendDialog> &frame)
{
    if (!frame) {
        frame = new (std::nothrow)
            USSDExtendDialog(CommonUtils::GetMainWindow(), Qt::WindowCloseButtonHint, PLAIN_FRAME);
        if (frame)
            connect(frame, SIGNAL(dlgCloseEvent()), this, SLOT(OnDlgCloseEvent()));
    }
    return frame;
}

/// Creates the frame of the prepaid, the postpaid or the USSD-SMS window. Returns 1 on success,
/// otherwise 0.
int CUSSDService::makeListedFrame(QPointer<USSDExtendDialog> &frame)
{
    if (!makeFrame(frame))
        return 0;
    setPropForDlgAndLayout(frame);
    return 1;
}

void CUSSDService::setPropForDlgAndLayout(USSDExtendDialog *frame)
{
    USSD_LOG_SCOPE();
    frame->setWindowModality(Qt::WindowModal);
    frame->setWindowFlags(frameFlags());
}

int CUSSDService::createOuterDlgForUSSDPrepaid()
{
    USSD_LOG_SCOPE();
    return makeListedFrame(m_pPrepaidFrame);
}

int CUSSDService::createOuterDlgForUSSDPostpaid()
{
    USSD_LOG_SCOPE();
    return makeListedFrame(m_pPostpaidFrame);
}

int CUSSDService::createOuterDlgForUSSDSMS()
{
    USSD_LOG_SCOPE();
    return makeListedFrame(m_pUSSDSMSFrame);
}

int CUSSDService::createOuterDlgForUSSDGeneralDlg()
{
    USSD_LOG_SCOPE();
    if (!makeFrame(m_pGeneralFrame))
        return 0;
    m_pGeneralFrame->setWindowModality(Qt::WindowModal);
    m_pGeneralFrame->setFixedSize(GENERAL_FRAME_WIDTH, GENERAL_FRAME_HEIGHT);
    if (!CommonUtils::IsMiniMode())
        m_pGeneralFrame->setWindowFlags(frameFlags());
    return 1;
}

/// Removes an existing connection before connecting, so that a window that is shown again does not
/// handle a signal twice.
void CUSSDService::connectAnew(QObject *sender, const char *signal, const char *slot)
{
    disconnect(sender, signal, this, slot);
    connect(sender, signal, this, slot);
}

// ---- showing ---------------------------------------------------------------------------------

int CUSSDService::DoModal()
{
    USSD_LOG_SCOPE();
    m_shownPaidType = PAID_TYPE_GENERAL;
    return doModal(PAID_TYPE_GENERAL);
}

int CUSSDService::DoPrePostPaidModal(PAID_TYPE type)
{
    USSD_LOG_SCOPE();
    return doModal(type);
}

int CUSSDService::doModal(PAID_TYPE type)
{
    USSD_LOG_SCOPE();
    m_modalPaidType = type;
    switch (type) {
    case PAID_TYPE_GENERAL:
        return doGeneralModal();
    case PAID_TYPE_PREPAID:
    case PAID_TYPE_POSTPAID:
        return doPaidModal(type);
    case PAID_TYPE_USSD_SMS:
        return doUSSDSMSModal();
    default:
        return 0;
    }
}

int CUSSDService::doGeneralModal()
{
    if (!createOuterDlgForUSSDGeneralDlg() || !createUSSDGeneralDlgWindow(WINDOW_MODEL_MODAL))
        return 0;
    connectAnew(m_pGeneralModalDlg, SIGNAL(clickedcloseButton()), SLOT(OnClickedCloseButton()));
    connectAnew(m_pGeneralModalDlg, SIGNAL(closeButtonClicked()), SLOT(OnCloseButtonClicked()));
    CommonUtils::MoveCentre(m_pGeneralFrame);
    m_pGeneralFrame->AddMainWidget(m_pGeneralModalDlg);
    connectAnew(m_pGeneralFrame, SIGNAL(rejected()), SLOT(OnCloseButtonClicked()));
    m_pGeneralFrame->setWindowTitle(tr(QLatin1String("IDS_ADVANCE_USSD")));
    m_pGeneralFrame->show();
    return 1;
}

int CUSSDService::doPaidModal(PAID_TYPE type)
{
    const bool prepaid = type == PAID_TYPE_PREPAID;
    if (!(prepaid ? createOuterDlgForUSSDPrepaid() : createOuterDlgForUSSDPostpaid()) ||
        !createUSSDDlgWindow(WINDOW_MODEL_MODAL, type))
        return 0;
    setPropShowDialog(prepaid ? m_pPrepaidFrame : m_pPostpaidFrame,
                      prepaid ? m_pPrepaidDlg : m_pPostpaidDlg, type);
    return 1;
}

void CUSSDService::setPropShowDialog(USSDExtendDialog *frame, USSDDlg *dialog, PAID_TYPE type)
{
    USSD_LOG_SCOPE();
    if (!frame || !dialog)
        return;
    fixFrameSize(frame, dialog);
    connectAnew(dialog, SIGNAL(clickedcloseButton()), SLOT(OnClickedCloseButton()));
    connectAnew(dialog, SIGNAL(closeButtonClicked()), SLOT(OnCloseButtonClicked()));
    CommonUtils::MoveCentre(frame);
    frame->AddMainWidget(dialog);
    connectAnew(frame, SIGNAL(rejected()), SLOT(OnCloseButtonClicked()));
    frame->setWindowTitle(tr(QLatin1String(paidTitleKey(type))));
    frame->show();
    dialog->MyDoModal(type);
}

int CUSSDService::doUSSDSMSModal()
{
    if (!createOuterDlgForUSSDSMS() || !createUSSDDlgWindow(WINDOW_MODEL_MODAL, PAID_TYPE_USSD_SMS))
        return 0;
    SetUSSDSMSSDlg(m_pUSSDSMSFrame, m_pUSSDSMSDlg);
    return 1;
}

void CUSSDService::SetUSSDSMSSDlg(USSDExtendDialog *frame, CUSSDSMSDlg *dialog)
{
    USSD_LOG_SCOPE();
    if (!frame || !dialog)
        return;
    fixFrameSize(frame, dialog);
    connectAnew(dialog, SIGNAL(clickedcloseButton()), SLOT(OnClickedCloseButton()));
    CommonUtils::MoveCentre(frame);
    frame->AddMainWidget(dialog);
    frame->setWindowTitle(tr(QLatin1String("IDS_WINDOW_TITLE_SMSUSSD")));
    frame->show();
}

int CUSSDService::ShowPrePostPaidWindow(QWidget *parent, QRect &rect, PAID_TYPE type)
{
    USSD_LOG_SCOPE();
    return showWindow(parent, rect, type);
}

int CUSSDService::showWindow(QWidget *parent, QRect &rect, PAID_TYPE type)
{
    USSD_LOG_SCOPE();
    m_shownPaidType = type;
    if (type != PAID_TYPE_GENERAL || !createUSSDGeneralDlgWindow(WINDOW_MODEL_EMBEDDED))
        return 0;
    m_pGeneralEmbeddedDlg->setParent(parent);
    m_pGeneralEmbeddedDlg->resize(rect.size());
    m_pGeneralEmbeddedDlg->move(rect.topLeft());
    m_pGeneralEmbeddedDlg->setProfileFocus();
    m_pGeneralEmbeddedDlg->show();
    return 0;
}

void CUSSDService::Hide()
{
    USSD_LOG_SCOPE();
    if (m_shownPaidType == PAID_TYPE_GENERAL && m_pGeneralEmbeddedDlg)
        m_pGeneralEmbeddedDlg->hide();
}

void CUSSDService::FitSize(QRect &rect)
{
    USSD_LOG_SCOPE();
    if (m_shownPaidType != PAID_TYPE_GENERAL || !m_pGeneralEmbeddedDlg)
        return;
    m_pGeneralEmbeddedDlg->resize(rect.size());
    m_pGeneralEmbeddedDlg->move(rect.topLeft());
}

// ---- closing ---------------------------------------------------------------------------------

void CUSSDService::OnClickedCloseButton()
{
    USSD_LOG_SCOPE();
    delete m_pPrepaidDlg;
    dropFrame(m_pPrepaidFrame);
    delete m_pPostpaidDlg;
    dropFrame(m_pPostpaidFrame);
    delete m_pGeneralModalDlg;
    dropFrame(m_pGeneralFrame);
    delete m_pUSSDSMSDlg;
    dropFrame(m_pUSSDSMSFrame);
}

/// Deletes the frame later, because this function may have been called from the frame's close
/// event. The frames are also stored in a list, so that they can be deleted immediately if the host
/// shuts down and unloads the library.
void CUSSDService::dropFrame(QPointer<USSDExtendDialog> &frame)
{
    m_listDroppedFrames.removeAll(QPointer<USSDExtendDialog>()); // removes null pointers
    if (!frame)
        return;
    frame->deleteLater();
    m_listDroppedFrames << frame;
    frame = nullptr;
}

void CUSSDService::OnDlgCloseEvent()
{
    USSD_LOG_SCOPE();
    const QPointer<CUSSDService> self(this); // a host that is notified may shut down the plug-in
    switch (m_modalPaidType) {
    case PAID_TYPE_PREPAID:
        leaveIfExists(m_pPrepaidDlg);
        break;
    case PAID_TYPE_POSTPAID:
        leaveIfExists(m_pPostpaidDlg);
        break;
    case PAID_TYPE_GENERAL:
        leaveIfExists(m_pGeneralModalDlg);
        break;
    case PAID_TYPE_USSD_SMS:
        leaveIfExists(m_pUSSDSMSDlg);
        if (self)
            m_modalPaidType = PAID_TYPE_USSD_SMS; // kept, whereas other types are reset
        return;
    default:
        return;
    }
    if (self)
        m_modalPaidType = PAID_TYPE_NONE;
}

void CUSSDService::OnCloseButtonClicked()
{
    USSD_LOG_SCOPE();
    if (m_modalPaidType == PAID_TYPE_PREPAID)
        closeIfExists(m_pPrepaidFrame);
    else if (m_modalPaidType == PAID_TYPE_POSTPAID)
        closeIfExists(m_pPostpaidFrame);
    else if (m_modalPaidType == PAID_TYPE_GENERAL)
        closeIfExists(m_pGeneralFrame);
}

void CUSSDService::destroyUSSD()
{
    USSD_LOG_SCOPE();
    PluginMessage::closeAll();
    delete m_pPrepaidDlg;
    delete m_pPostpaidDlg;
    delete m_pUSSDSMSDlg;
    delete m_pGeneralModalDlg;
    delete m_pGeneralEmbeddedDlg;
    delete m_pPrepaidFrame;
    delete m_pPostpaidFrame;
    delete m_pGeneralFrame;
    delete m_pUSSDSMSFrame;
    qDeleteAll(m_listDroppedFrames);
    m_listDroppedFrames.clear();
    USSDLogic::Destroy();
}
