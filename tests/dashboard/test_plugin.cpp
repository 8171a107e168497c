/*
 * A plug-in with a defect that is selected with a macro. The plug-in records each call by the host
 * in the "calls" property of the application.
 */
#include <QCoreApplication>
#include <QStringList>
#include <QVariant>

#include "CommonUtils.h"
#include "INotify.h"
#include "IUIPlugin.h"
#include "IUSSD.h"

#ifdef WITHOUT_INSTANCE
#undef Q_PLUGIN_INSTANCE
#define Q_PLUGIN_INSTANCE(IMPLEMENTATION)                                                          \
    {                                                                                              \
        return nullptr;                                                                            \
    }
#endif

#ifdef CALLS_MISSING_FUNCTION
extern "C" int functionThatNobodyHas();
extern "C" int (*missingFunction)();
int (*missingFunction)() = functionThatNobodyHas;
#endif

namespace
{

void record(const char *call)
{
    QStringList calls = qApp->property("calls").toStringList();
    calls << QLatin1String(call);
    qApp->setProperty("calls", calls);
}

} // namespace

class TestService : public QObject, public IUSSD
{
    Q_OBJECT
#ifndef OTHER_SERVICE
    Q_INTERFACES(IUSSD)
#endif
public:
    int GetPrePostInfo(bool &, bool &, int &, bool) override
    {
        return 0;
    }
    int DoPrePostPaidModal(PAID_TYPE) override
    {
        return 0;
    }
    int ShowPrePostPaidWindow(QWidget *, QRect &, PAID_TYPE) override
    {
        return 0;
    }
    bool IsImsiDynamicMatch() override
    {
        return false;
    }
    bool CheckImsiIsValid(const QString &, int &) override
    {
        return false;
    }
};

#ifdef WITHOUT_INTERFACES
class TestPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.zelvor.portalcompass.plugin.IUIPlugin")
public:
    ~TestPlugin() override { record("deleted"); }
};
#else
class TestPlugin : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.zelvor.portalcompass.plugin.IUIPlugin")
#ifdef WITHOUT_NOTIFY
    Q_INTERFACES(IUIPlugin)
#else
    Q_INTERFACES(IUIPlugin INotify)
#endif
public:
    ~TestPlugin() override
    {
        record("deleted");
    }

    void Release() override {}
    int GetLastError() override
    {
        return 0;
    }
    void OnDestroy() override
    {
        record("OnDestroy");
    }
    void UnSDKRegisterEvent() override
    {
        record(CommonUtils::IsShuttingDown() ? "UnSDKRegisterEvent, shutting down"
                                             : "UnSDKRegisterEvent");
    }
    bool Init() override
    {
        record("Init");
#ifdef REFUSES_INIT
        return false;
#else
        return true;
#endif
    }
    int GetPluginType() override
    {
        return 0;
    }
    QString GetCLSID() override
    {
        return QString();
    }
    int GetVersion() override
    {
        return 0;
    }
    QString GetPluginName() override
    {
        return QLatin1String("TestPlugin");
    }
    bool IsAllowRelease() override
    {
        return false;
    }
    bool QueryInterface(int id, QObject **out) override
    {
        record("QueryInterface");
#ifdef WITHOUT_SERVICE
        Q_UNUSED(id)
        Q_UNUSED(out)
        return false;
#elif defined(NULL_SERVICE)
        *out = nullptr;
        return id == 4097;
#else
        *out = &m_service;
        return id == 4097;
#endif
    }
    int ShowWindow(QWidget *, QRect &) override
    {
        return 0;
    }
    int DoModal() override
    {
        return 1;
    }
    void Hide() override {}
    void FitSize(QRect &) override {}
    bool IsReady() override
    {
        return false;
    }
    bool ChangeLang(const QString &) override
    {
        return true;
    }
    int Notify(unsigned int event, unsigned int, unsigned int) override
    {
        record(event == 320 ? "Notify 320" : event == 579 ? "Notify 579" : "Notify");
        return 0;
    }

private:
    TestService m_service;
};
#endif

#include "test_plugin.moc"
