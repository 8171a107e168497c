#include "LoadedPlugin.h"

#include <QFileInfo>
#include <QLibrary>

#include "HostState.h"
#include "INotify.h"
#include "IUIPlugin.h"
#include "IUSSD.h"
#include "PluginContract.h"
#include "PluginFiles.h"
#include "PluginFolderChoice.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

/// Returns true if the file is a library whose dependencies are available. To check this, loads and
/// unloads the file.
bool isLoadableLibrary(const QString &file)
{
    QLibrary library(file);
    const bool loadable = library.load();
    if (loadable)
        library.unload();
    return loadable;
}

} // namespace

LoadedPlugin::~LoadedPlugin()
{
    shutDown();
}

QString LoadedPlugin::installedFile()
{
    using HostCore::PluginFolderChoice;
    const QString folder = PluginFolderChoice::installed();
    QString file = PluginFiles::path(folder, PluginFiles::LIBRARY);
    if (!QFileInfo::exists(file) &&
        QFileInfo::exists(PluginFiles::path(folder, PluginFiles::CONFIGURATION)))
        return PluginFiles::path(PluginFolderChoice::shipped(), PluginFiles::LIBRARY);
    return file;
}

PluginFailure LoadedPlugin::load(const QString &file)
{
    PluginFailure result = openLibrary(file);
    if (result.step == PluginFailure::None)
        result = takeInterfaces();
    if (result.step == PluginFailure::None)
        result = startService();
    return result;
}

PluginFailure LoadedPlugin::openLibrary(const QString &file)
{
    m_loader.setFileName(file);
    if (!QFileInfo(file).isFile()) {
        PluginFailure missing = failure(PluginFailure::FileMissing);
        missing.file = file; // QPluginLoader clears the name if the file does not exist
        return missing;
    }
    if (!m_loader.load()) {
        const QString reason = m_loader.errorString();
        return failure(isLoadableLibrary(file) ? PluginFailure::WrongBuild
                                               : PluginFailure::NotALibrary,
                       reason);
    }
    m_instance = m_loader.instance();
    return m_instance ? failure(PluginFailure::None)
                      : failure(PluginFailure::NoInstance, m_loader.errorString());
}

PluginFailure LoadedPlugin::takeInterfaces()
{
    IUIPlugin *plugin = qobject_cast<IUIPlugin *>(m_instance.data());
    if (!plugin)
        return failure(PluginFailure::NoInterface,
                       QLatin1String(qobject_interface_iid<IUIPlugin *>()));
    m_notify = qobject_cast<INotify *>(m_instance.data());
    if (!m_notify)
        return failure(PluginFailure::NoInterface,
                       QLatin1String(qobject_interface_iid<INotify *>()));
    m_plugin = plugin;
    return failure(PluginFailure::None);
}

PluginFailure LoadedPlugin::startService()
{
    if (!m_plugin->Init())
        return failure(PluginFailure::InitFailed);
    return takeService();
}

PluginFailure LoadedPlugin::takeService()
{
    QObject *service = nullptr;
    if (!m_plugin->QueryInterface(PluginContract::USSD_SERVICE, &service) || !service)
        return failure(PluginFailure::NoService, QString::number(PluginContract::USSD_SERVICE));
    m_ussd = qobject_cast<IUSSD *>(service);
    return m_ussd ? failure(PluginFailure::None)
                  : failure(PluginFailure::NoInterface,
                            QLatin1String(qobject_interface_iid<IUSSD *>()));
}

PluginFailure LoadedPlugin::failure(PluginFailure::Step step, const QString &detail) const
{
    PluginFailure result;
    result.step = step;
    result.file = m_loader.fileName();
    result.detail = detail;
    return result;
}

void LoadedPlugin::notifyLanguageChange()
{
    if (m_notify)
        m_notify->Notify(PluginContract::EVENT_LANGUAGE_CHANGED, 0, 0);
}

void LoadedPlugin::notifySimChange()
{
    if (m_notify)
        m_notify->Notify(PluginContract::EVENT_CHECK_SIM, 0, 0);
}

PluginFailure LoadedPlugin::restart()
{
    m_ussd = nullptr;
    m_plugin->UnSDKRegisterEvent();
    m_plugin->OnDestroy();
    return takeService();
}

void LoadedPlugin::shutDown()
{
    if (!m_instance)
        return;
    HostCore::HostState::setShuttingDown(true);
    if (m_plugin) {
        m_plugin->UnSDKRegisterEvent();
        m_plugin->OnDestroy();
    }
    m_plugin = nullptr;
    m_notify = nullptr;
    m_ussd = nullptr;
    delete m_instance.data();
}

} // namespace Dashboard
