#include "SoakHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

#include "ExtendDialog.h"
#include "HostState.h"
#include "Languages.h"
#include "plugin/GeneralWindow.h"
#include "PluginContract.h"
#include "requests/ReplyTimer.h"
#include "requests/USSDLogic.h"
#include "SoakClock.h"
#include "tksv_device.h"
#include "windows/USSDService.h"

using namespace Dashboard;

namespace
{

const int PULSE = 5;            // milliseconds of real time
const int STEP = 1000;          // simulated milliseconds per pulse
const int LONGEST_REPLY = 5000; // milliseconds; the longest delay in the scenarios
const int REPLY_LIMIT = 31000;  // milliseconds; slightly longer than the plug-in waits
// The time limit for a reply is in simulated milliseconds. The time limit for disarming the
// previous time-out is in real milliseconds, so it is short.
const ReplyTimes TIMES = {30000, 20};
const int RESTART_EVERY = 16; // number of rounds between restarts
const QSize PAGE_SIZE(800, 600);
const char *const NETWORKS[] = {"prepaid", "contract", "restless"};
const int NETWORK_COUNT = 3;
const char *const CODES[] = {"*100#", "*102#", "*110#", "*198#", "*123#", "2"};
const int CODE_COUNT = 6;
const PAID_TYPE FRAMES[] = {PAID_TYPE_GENERAL, PAID_TYPE_PREPAID, PAID_TYPE_POSTPAID,
                            PAID_TYPE_USSD_SMS};

ReplyTimer *replyTimer()
{
    return USSDLogic::GetUSSDLogicInstance()->findChild<ReplyTimer *>();
}

bool isAwaited()
{
    const ReplyTimer *timer = replyTimer();
    return timer && timer->isArmed();
}

void handleEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget *openFrameWidget()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<ExtendDialog *>(widget))
            return widget;
    }
    return nullptr;
}

QWidget *openEditorWidget()
{
    QWidget *modal = QApplication::activeModalWidget();
    const QString table = QLatin1String("USSDUIPlugin_ProfileTable");
    return modal && modal->findChild<QTableWidget *>(table) ? modal : nullptr;
}

bool isDeviceReady()
{
    TKSV_DeviceInfo info;
    return TKSV_Device_GetInfo(&info) == 0 && info.state == TKSV_DEVICE_REGISTERED;
}

} // namespace

SoakHost::SoakHost(const SoakLoad &load) : m_load(load), m_isReady(layOutFiles())
{
    qputenv("TKSV_USER_DATA", QFile::encodeName(m_folder.filePath(QLatin1String("user"))));
    m_container.add(QLatin1String(NotificationService::CLSID), &m_notifications);
    HostCore::HostState::setMainWindow(&m_window);
    m_window.resize(PAGE_SIZE);
    m_window.show();
    connect(&m_pulse, &QTimer::timeout, this, &SoakHost::pulse);
    m_pulse.start(PULSE);
    useNetwork(0);
    startPlugin();
}

SoakHost::~SoakHost()
{
    stopPlugin();
    HostCore::HostState::setMainWindow(nullptr);
}

int SoakHost::cycle()
{
    return int(HostCore::Languages::codes().size()) * NETWORK_COUNT;
}

/// Copies the shipped files to a temporary folder. Returns false on failure.
bool SoakHost::layOutFiles()
{
    const QString place = m_folder.filePath(QLatin1String("plugins/USSDUIPlugin"));
    qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(m_folder.path()));
    bool made = QDir().mkpath(place) && QDir(m_folder.path()).mkdir(QLatin1String("user"));
    for (const char *name : {"/USSDPluginConfig.xml", "/ussdsysprofile.xml"})
        made = made && QFile::copy(QLatin1String(SHIPPED_DATA_DIR) + QLatin1String(name),
                                   place + QLatin1String(name));
    return made;
}

void SoakHost::startPlugin()
{
    CUSSDService::instance();
    USSDLogic::setReplyTimes(TIMES);
    connect(USSDLogic::GetUSSDLogicInstance(), SIGNAL(responseReceived(int, QString)), this,
            SLOT(countAnswer()));
}

void SoakHost::stopPlugin()
{
    CUSSDService::instance()->unSDKRegisterEvent();
    CUSSDService::Destroy();
    handleEvents();
}

void SoakHost::round(int number)
{
    speak(number);
    useNetwork(number);
    usePage();
    for (const PAID_TYPE type : FRAMES)
        openFrame(type);
    runPipeline();
    loseDevice();
    if (number % RESTART_EVERY == 0) {
        stopPlugin();
        startPlugin();
    }
    settle();
}

void SoakHost::speak(int number)
{
    const QStringList codes = HostCore::Languages::codes();
    if (!HostCore::Languages::setCurrent(codes.at(number % int(codes.size()))))
        trouble(QLatin1String("a language cannot be used"));
    CUSSDService::instance()->Notify(PluginContract::EVENT_LANGUAGE_CHANGED, 0, 0);
}

/// Switches to another SIM card and network, as if the modem had been replaced.
void SoakHost::useNetwork(int number)
{
    const QString file = QLatin1String(SOAK_SCENARIOS "/") +
                         QLatin1String(NETWORKS[number % NETWORK_COUNT]) +
                         QLatin1String(".scenario");
    char message[1024] = "";
    if (TKSV_Device_UseScenario(QFile::encodeName(file).constData(), message, sizeof message) != 0)
        trouble(QString::fromUtf8(message));
    if (number > 0)
        CUSSDService::instance()->Notify(PluginContract::EVENT_CHECK_SIM, 0, 0);
}

/// Embeds the general window in the host's window and sends several codes.
void SoakHost::usePage()
{
    QRect place(QPoint(), PAGE_SIZE);
    CUSSDService::instance()->showWindow(&m_window, place, PAID_TYPE_GENERAL);
    ++m_openings;
    const GeneralWindow page(&m_window);
    for (int i = 0; i < m_load.pageCommands; ++i) {
        if (!page.send(QLatin1String(CODES[i % CODE_COUNT])))
            return trouble(QLatin1String("the general window does not take a code"));
        ++m_commands;
        SoakClock::advance(LONGEST_REPLY);
        while (page.isWaiting())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    openEditor(&m_window);
    page.clearButton()->click();
    CUSSDService::instance()->Hide();
}

/// Opens the editor and waits until pulse() has closed it.
void SoakHost::openEditor(QWidget *page)
{
    ++m_openings;
    page->findChild<QPushButton *>(QLatin1String("USSDUIPlugin_AdvancedDialog_EditButton"))
        ->click();
}

void SoakHost::openFrame(PAID_TYPE type)
{
    if (CUSSDService::instance()->doModal(type) != 1)
        trouble(QLatin1String("a window does not open"));
    ++m_openings;
    handleEvents();
    waitUntilIdle(); // opening the window may have sent a command
    QWidget *frame = openFrameWidget();
    if (!frame)
        return trouble(QLatin1String("a frame is not to be seen"));
    frame->close();
    handleEvents();
    if (openFrameWidget())
        trouble(QLatin1String("a frame stays open"));
}

bool SoakHost::hand(const char *code)
{
    USSDCmdOrResp command;
    command.component = COMPONENT_MSISDN;
    command.command = QLatin1String(code);
    int status = 0;
    ++m_commands;
    return USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(command, &status) == 0;
}

void SoakHost::sendAndWait(const char *code)
{
    const qint64 before = m_answers;
    if (!hand(code))
        trouble(QLatin1String("the pipeline does not take a code"));
    waitForAnswer(before);
    if (m_answers != before + 1)
        trouble(QString::fromLatin1("%1 answers to one code").arg(m_answers - before));
}

void SoakHost::runPipeline()
{
    for (int i = 0; i < m_load.pipelineCommands; ++i)
        sendAndWait(CODES[i % CODE_COUNT]);
    const qint64 before = m_answers;
    for (int i = 0; i < m_load.queuedCommands; ++i)
        hand(CODES[i % CODE_COUNT]);
    waitForAnswer(before + m_load.queuedCommands - 1);
    letTimeRunOut();
}

/// Sends a code to which the network never replies.
void SoakHost::letTimeRunOut()
{
    waitUntilIdle(); // the code must not wait in the queue
    const qint64 before = m_answers;
    hand("*199#");
    passReplyLimit();
    waitForAnswer(before);
}

void SoakHost::passReplyLimit()
{
    SoakClock::advance(REPLY_LIMIT);
    replyTimer()->catchUp();
}

/// Removes the device while a command is pending, and adds it again. The command's timer keeps
/// running, but it has no effect when it fires.
void SoakHost::loseDevice()
{
    sendAndWait("*194#");
    passReplyLimit();
    while (!isDeviceReady())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Makes all pending replies due, and waits until more than `before` commands have an outcome. The
/// replies to commands that are sent meanwhile become due when pulse() advances the clock.
void SoakHost::waitForAnswer(qint64 before)
{
    SoakClock::advance(LONGEST_REPLY);
    while (m_answers <= before)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Waits until no answer is pending in two consecutive pulses. A single pulse is not sufficient,
/// because no answer is pending for a moment before the next queued command is sent.
void SoakHost::waitUntilIdle()
{
    SoakClock::advance(LONGEST_REPLY);
    m_quietPulses = 0;
    while (m_quietPulses < 2)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Brings the process into an idle state, so that its memory and resources can be compared.
void SoakHost::settle()
{
    waitUntilIdle();
    handleEvents();
}

void SoakHost::countAnswer()
{
    ++m_answers;
}

/// Advances the clock, and closes dialogs as a user would.
void SoakHost::pulse()
{
    m_quietPulses = isAwaited() ? 0 : m_quietPulses + 1;
    SoakClock::advance(STEP);
    if (QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
        box->buttons().first()->click();
    else if (QWidget *editor = openEditorWidget())
        editor->close();
}

void SoakHost::trouble(const QString &text)
{
    if (!m_troubles.contains(text))
        m_troubles << text;
}
