#ifndef USSDUIPLUGINIMPL_H
#define USSDUIPLUGINIMPL_H

#include <QObject>

#include "INotify.h"
#include "IUIPlugin.h"
#include "QtCompat.h"

/**
 * The root object of the plug-in, which the host loads. Each function either returns a constant or
 * calls the service. All functions must be called from the GUI thread. OnDestroy() and
 * UnSDKRegisterEvent() may be called repeatedly and in any order.
 */
class CUSSDUIPluginImpl : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin IUIPlugin INotify)
    Q_PLUGIN_METADATA(IID "com.zelvor.portalcompass.plugin.IUIPlugin")
public:
    CUSSDUIPluginImpl();
    ~CUSSDUIPluginImpl() override;

    void Release() override;
    int GetLastError() override;

    void OnDestroy() override;
    void UnSDKRegisterEvent() override;

    bool Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;
    bool QueryInterface(int id, QObject **out) override;

    int ShowWindow(QWidget *parent, QRect &rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect &rect) override;
    bool IsReady() override;
    bool ChangeLang(const QString &lang) override;

    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override;

private:
    QObject *m_pService; // the service that QueryInterface() returns
};

#endif
