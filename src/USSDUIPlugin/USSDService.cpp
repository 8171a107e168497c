#include "USSDService.h"

#include <new>

#include <QTime>

#include "CommonUtils.h"
#include "PluginLog.h"
#include "PluginMessage.h"
#include "PluginText.h"
#include "USSDLogic.h"

static const char kLogSource[] = USSD_LOG_SOURCE("USSDService.cpp");

namespace
{

const unsigned int kEventLanguageChanged = 320;
const unsigned int kEventCheckImsi = 579;
const int kGeneralFrameWidth = 588;
const int kGeneralFrameHeight = 465;
const int kPlainFrame = 1;

Qt::WindowFlags frameFlags()
{
    return Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint;
}

template <typename Widget>
void closeIfExists(const QPointer<Widget> &widget)
{
    if (widget)
        widget->close();
}

/// Deletes the dialog at once and the frame, in whose close event this may run, afterwards.
template <typename Dialog>
void dropFramed(QPointer<Dialog> &dialog, QPointer<USSDExtendDialog> &frame)
{
    delete dialog;
    dialog = nullptr;
    if (frame)
        frame->deleteLater();
    frame = nullptr;
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
    // Source, function, time: in another order than everywhere else, as readers of logs know it.
    const QByteArray time =
        QTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz")).toLocal8Bit();
    qDebug("%s: %s: %s entered", kLogSource, "~CUSSDService", time.constData());
}

QString CUSSDService::tr(const QString &key)
{
    return pluginText(key);
}

// ---- questions to the logic ------------------------------------------------------------------

int CUSSDService::GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask)
{
    USSD_LOG_SCOPE();
    Q_UNUSED(inUse);
    Q_UNUSED(postpaid);
    Q_UNUSED(result);
    Q_UNUSED(ask);
    return 0;
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
    if (event == kEventLanguageChanged) {
        if (m_pGeneralModalDlg)
            m_pGeneralModalDlg->SetLanguage();
        if (m_pGeneralEmbeddedDlg)
            m_pGeneralEmbeddedDlg->SetLanguage();
    } else if (event == kEventCheckImsi && IsImsiDynamicMatch()) {
        closeIfExists(m_pGeneralFrame);
    }
    return 0;
}

// ---- making ----------------------------------------------------------------------------------

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

QPointer<USSDExtendDialog> CUSSDService::createFrame()
{
    USSDExtendDialog *frame = new (std::nothrow)
        USSDExtendDialog(CommonUtils::GetMainWindow(), Qt::WindowCloseButtonHint, kPlainFrame);
    if (frame)
        connect(frame, SIGNAL(dlgCloseEvent()), this, SLOT(OnDlgCloseEvent()));
    return frame;
}

int CUSSDService::createOuterDlgForUSSDGeneralDlg()
{
    USSD_LOG_SCOPE();
    if (!m_pGeneralFrame)
        m_pGeneralFrame = createFrame();
    if (!m_pGeneralFrame)
        return 0;
    m_pGeneralFrame->setWindowModality(Qt::WindowModal);
    m_pGeneralFrame->setFixedSize(kGeneralFrameWidth, kGeneralFrameHeight);
    if (!CommonUtils::IsMiniMode())
        m_pGeneralFrame->setWindowFlags(frameFlags());
    return 1;
}

/// A connection of an earlier showing is replaced, so that nothing is handled twice.
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
    return type == PAID_TYPE_GENERAL ? doGeneralModal() : 0;
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
    dropFramed(m_pGeneralModalDlg, m_pGeneralFrame);
}

void CUSSDService::OnDlgCloseEvent()
{
    USSD_LOG_SCOPE();
    if (m_modalPaidType == PAID_TYPE_GENERAL) {
        if (m_pGeneralModalDlg)
            m_pGeneralModalDlg->OnClickedCloseButton();
        m_modalPaidType = PAID_TYPE_NONE;
    }
}

void CUSSDService::OnCloseButtonClicked()
{
    USSD_LOG_SCOPE();
    if (m_modalPaidType == PAID_TYPE_GENERAL)
        closeIfExists(m_pGeneralFrame);
}

void CUSSDService::destroyUSSD()
{
    USSD_LOG_SCOPE();
    PluginMessage::closeAll();
    delete m_pGeneralModalDlg;
    delete m_pGeneralEmbeddedDlg;
    delete m_pGeneralFrame;
    USSDLogic::Destroy();
}
