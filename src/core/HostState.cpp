#include "HostState.h"

#include <QPointer>
#include <QWidget>

#include <atomic>

namespace HostCore
{

namespace
{

struct State {
    QPointer<QWidget> mainWindow;
    bool miniMode = false;
    IPluginContainer *pluginContainer = nullptr;
};

State &state()
{
    static State instance;
    return instance;
}

std::atomic<bool> shuttingDownFlag(false);

} // namespace

void HostState::setMainWindow(QWidget *window)
{
    state().mainWindow = window;
}

QWidget *HostState::mainWindow()
{
    return state().mainWindow;
}

void HostState::setMiniMode(bool mini)
{
    state().miniMode = mini;
}

bool HostState::isMiniMode()
{
    return state().miniMode;
}

void HostState::setShuttingDown(bool shuttingDown)
{
    shuttingDownFlag = shuttingDown;
}

bool HostState::isShuttingDown()
{
    return shuttingDownFlag;
}

void HostState::setPluginContainer(IPluginContainer *container)
{
    state().pluginContainer = container;
}

IPluginContainer *HostState::pluginContainer()
{
    return state().pluginContainer;
}

} // namespace HostCore
