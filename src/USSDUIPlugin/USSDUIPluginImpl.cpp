#include "USSDUIPluginImpl.h"

#include "base/PluginLog.h"
#include "windows/USSDService.h"

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDUIPluginImpl.cpp");

namespace
{

const int SERVICE_USSD = 0x1001;

} // namespace

CUSSDUIPluginImpl::CUSSDUIPluginImpl() : m_pService(nullptr)
{
    USSD_LOG_SCOPE();
}

CUSSDUIPluginImpl::~CUSSDUIPluginImpl()
{
    USSD_LOG_SCOPE();
    if (CUSSDService *service = CUSSDService::instance())
        service->destroyUSSD();
    CUSSDService::Destroy();
    m_pService = nullptr;
}

void CUSSDUIPluginImpl::Release()
{
    USSD_LOG(" Enter");
}

int CUSSDUIPluginImpl::GetLastError()
{
    USSD_LOG(" Enter");
    return 0;
}

void CUSSDUIPluginImpl::OnDestroy()
{
    USSD_LOG(" Enter");
    CUSSDService::Destroy();
    m_pService = nullptr;
}

void CUSSDUIPluginImpl::UnSDKRegisterEvent()
{
    USSD_LOG_UNTIMED(" called");
    if (CUSSDService *service = CUSSDService::instance())
        service->unSDKRegisterEvent();
    USSD_LOG_UNTIMED(" exit");
}

bool CUSSDUIPluginImpl::Init()
{
    USSD_LOG(" Enter");
    return true;
}

int CUSSDUIPluginImpl::GetPluginType()
{
    USSD_LOG(" Enter");
    return 0;
}

QString CUSSDUIPluginImpl::GetCLSID()
{
    USSD_LOG(" Enter");
    return QString();
}

int CUSSDUIPluginImpl::GetVersion()
{
    USSD_LOG(" Enter");
    return 0;
}

QString CUSSDUIPluginImpl::GetPluginName()
{
    USSD_LOG(" Enter");
    return QLatin1String("USSDUIPluginImpl");
}

bool CUSSDUIPluginImpl::IsAllowRelease()
{
    USSD_LOG(" Enter");
    return false;
}

bool CUSSDUIPluginImpl::QueryInterface(int id, QObject **out)
{
    USSD_LOG_UNTIMED(" called");
    if (id != SERVICE_USSD)
        return false;
    CUSSDService *service = nullptr;
    try {
        service = CUSSDService::instance();
    } catch (...) { // exceptions must not reach the host
        return false;
    }
    m_pService = service;
    if (out)
        *out = service;
    return true;
}

int CUSSDUIPluginImpl::ShowWindow(QWidget *parent, QRect &rect)
{
    USSD_LOG(" Enter");
    return CUSSDService::instance()->showWindow(parent, rect, PAID_TYPE_GENERAL);
}

int CUSSDUIPluginImpl::DoModal()
{
    USSD_LOG(" Enter");
    return CUSSDService::instance()->DoModal();
}

void CUSSDUIPluginImpl::Hide()
{
    USSD_LOG(" Enter");
    CUSSDService::instance()->Hide();
}

void CUSSDUIPluginImpl::FitSize(QRect &rect)
{
    USSD_LOG(" Enter");
    CUSSDService::instance()->FitSize(rect);
}

/// Intentionally returns false, so that hosts do not show the page at start-up.
bool CUSSDUIPluginImpl::IsReady()
{
    USSD_LOG(" Enter");
    return false;
}

bool CUSSDUIPluginImpl::ChangeLang(const QString &lang)
{
    USSD_LOG(" Enter");
    return !lang.isEmpty();
}

int CUSSDUIPluginImpl::Notify(unsigned int event, unsigned int param1, unsigned int param2)
{
    USSD_LOG(" Enter");
    return CUSSDService::instance()->Notify(event, param1, param2);
}
