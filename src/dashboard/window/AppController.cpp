#include "AppController.h"

#include "base/DashboardText.h"
#include "device/DashboardSettings.h"
#include "IUIPlugin.h"
#include "IUSSD.h"
#include "LanguageProblem.h"
#include "Languages.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/TranscriptColors.h"
#include "plugin/UserActivity.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

namespace
{

const char DETECT_PAID_TYPE[] = "USSD_DETECT_PAID_TYPE";
const char SWITCHED_ON[] = "1";
const int LONGEST_DELAY = 5000; // ms; the maximum time for which opening a frame is delayed

/// Returns true if opening a window of this PAID_TYPE ends an open session on the device.
bool endsSession(int paidType)
{
    return paidType == PAID_TYPE_PREPAID || paidType == PAID_TYPE_POSTPAID;
}

} // namespace

AppController::AppController(LoadedPlugin *plugin, DashboardSettings *settings, QObject *parent)
    : QObject(parent), m_plugin(plugin), m_settings(settings), m_modes(&m_device, settings),
      m_sim(plugin, &m_device, this), m_operatorCodes(&m_device, settings),
      m_monitor([this] { return pageWindow(); }, &m_device, m_sim.replies()),
      m_awaitedFrame(PAID_TYPE_NONE)
{
    m_frameDelay.setParent(this);
    m_frameDelay.setObjectName(QLatin1String("Dashboard_FrameDelay"));
    m_frameDelay.setSingleShot(true);
    connect(&m_frameDelay, &QTimer::timeout, this, &AppController::openAwaitedFrame);
    connect(&m_networkTexts, &NetworkTextWatcher::textReceived, this, &AppController::onText);
    connect(&m_modes, &ModeChoice::failed, this,
            [this] { emit problem(dashboardText("MODES_NOT_CHANGED")); });
    followSim();
    followOperator();
}

void AppController::followSim()
{
    connect(&m_sim, &SimFollower::windowsOffered, this, &AppController::offerWindows);
    connect(&m_sim, &SimFollower::paidTypeChanged, this, &AppController::onPaidTypeChanged);
    connect(&m_sim, &SimFollower::frameClosed, this, &AppController::frameClosed);
    connect(&m_sim, &SimFollower::commandEnded, this, &AppController::commandEnded);
    m_isDetectionOn =
        (m_settings && m_settings->detectsPaidType()) || qgetenv(DETECT_PAID_TYPE) == SWITCHED_ON;
    m_sim.setDetectionRule([this] { return mayDetectPaidType(); });
}

void AppController::followOperator()
{
    connect(&m_operatorCodes, &OperatorCodes::folderChanged, this, &AppController::beginAnew);
    connect(&m_sim, &SimFollower::commandEnded, this, &AppController::beginAnewIfDue);
    connect(&m_sim, &SimFollower::frameClosed, this, &AppController::beginAnewIfDue);
}

void AppController::start()
{
    m_networkTexts.start();
}

GeneralWindow AppController::pageWindow() const
{
    return m_pageWindow ? m_pageWindow() : GeneralWindow();
}

/// Returns true if the prepaid/postpaid query may be sent. With a modem, the code must belong to
/// the SIM's operator, because the same code could trigger a purchase in another network.
bool AppController::mayDetectPaidType() const
{
    if (m_device.status().isSimulated)
        return true;
    return m_isDetectionOn && m_operatorCodes.areOfOperator() && !m_isRestartDue;
}

void AppController::setDetection(bool isOn)
{
    m_isDetectionOn = isOn;
    if (m_settings)
        m_settings->setDetectsPaidType(isOn);
    m_sim.ask();
}

/// Queues the restart, because the plug-in may still be handling the event that caused it.
void AppController::beginAnew()
{
    m_isRestartDue = true;
    QMetaObject::invokeMethod(this, "beginAnewIfDue", Qt::QueuedConnection);
}

/// Restarts the plug-in if necessary. Does nothing while the user is busy, because the restart
/// deletes the plug-in's windows.
void AppController::beginAnewIfDue()
{
    if (m_isRestartDue && m_plugin->isUsable() && !UserActivity::isBusy())
        restartPlugin();
}

PluginFailure AppController::loadPlugin()
{
    m_operatorCodes.look();
    m_isRestartDue = false;
    return startWith(m_plugin->load(LoadedPlugin::installedFile()), &SimFollower::start);
}

PluginFailure AppController::restartPlugin()
{
    m_isRestartDue = false;
    m_windows = 0; // the restart deletes the plug-in's windows
    return startWith(m_plugin->restart(), &SimFollower::start);
}

bool AppController::renewOwnCodes()
{
    const bool isBusy = UserActivity::isBusy() || m_sim.isAsking() || m_monitor.hasTypedText();
    if (isBusy || m_isRestartDue || !m_plugin->isUsable())
        return false;
    m_windows = 0;
    startWith(m_plugin->restart(), &SimFollower::resume);
    return true;
}

/// `start` makes the follower observe the SIM after the start of the plug-in.
PluginFailure AppController::startWith(const PluginFailure &failure, void (SimFollower::*start)())
{
    m_started = failure;
    m_monitor.forget();
    warnAboutPaleTranscript();
    emit pluginStarted(failure);
    if (m_plugin->isUsable())
        (m_sim.*start)();
    return failure;
}

void AppController::offerWindows(int windows)
{
    if (m_operatorCodes.areAbsent())
        windows &= SIM_WINDOW_GENERAL; // the configuration does not contain services
    m_windows = windows;
    m_awaitedFrame = PAID_TYPE_NONE;
    emit windowsOffered();
}

void AppController::onPaidTypeChanged()
{
    m_monitor.setQuerying(m_sim.isAsking());
    emit paidTypeChanged();
    if (!m_sim.isAsking())
        openAwaitedFrame();
}

void AppController::openFrame(int paidType)
{
    if (!m_plugin->isUsable())
        return;
    if (endsSession(paidType) && m_sim.isAsking()) {
        m_awaitedFrame = paidType;
        m_frameDelay.start(LONGEST_DELAY);
        return;
    }
    openFrameNow(paidType);
}

void AppController::openAwaitedFrame()
{
    m_frameDelay.stop();
    const int paidType = m_awaitedFrame;
    m_awaitedFrame = PAID_TYPE_NONE;
    if (paidType != PAID_TYPE_NONE && m_plugin->isUsable())
        openFrameNow(paidType);
}

void AppController::openFrameNow(int paidType)
{
    if (paidType == PAID_TYPE_GENERAL)
        m_plugin->plugin()->DoModal();
    else
        m_plugin->ussd()->DoPrePostPaidModal(static_cast<PAID_TYPE>(paidType));
    emit frameOpened();
}

void AppController::onText(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer)
{
    if (waitsForAnswer)
        m_sim.questionCame();
    emit textReceived(text, receivedAt, waitsForAnswer);
}

bool AppController::setLanguage(const QString &code)
{
    if (!HostCore::Languages::setCurrent(code)) {
        emit problem(dashboardText(languageProblem(code)).arg(HostCore::Languages::file(code)));
        return false;
    }
    if (m_settings)
        m_settings->setLanguage(code);
    m_plugin->notifyLanguageChange();
    m_monitor.retranslate();
    emit languageChanged();
    return true;
}

QString AppController::useDevice(const DeviceChoice &choice)
{
    QString error = choice.use();
    setDevice(error.isEmpty() ? choice : m_choice);
    return error;
}

QString AppController::chooseDevice(const DeviceChoice &choice)
{
    QString error = useDevice(choice);
    if (error.isEmpty() && m_settings)
        m_settings->setDevice(choice);
    return error;
}

void AppController::setDevice(const DeviceChoice &choice)
{
    m_choice = choice;
    m_monitor.forget();
    emit deviceChosen();
    m_device.refresh();
}

} // namespace Dashboard
