#include "MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTextEdit>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "CommandNotice.h"
#include "CommonUtils.h"
#include "device/DashboardSettings.h"
#include "DeviceHeader.h"
#include "DeviceMenu.h"
#include "DeviceNotice.h"
#include "HostState.h"
#include "InstallPaths.h"
#include "IUIPlugin.h"
#include "IUSSD.h"
#include "LanguageMenu.h"
#include "LanguageProblem.h"
#include "Languages.h"
#include "NetworkTextPanel.h"
#include "NoticeBar.h"
#include "OperatorNotice.h"
#include "PageArea.h"
#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/ProfileBackup.h"
#include "plugin/UserActivity.h"
#include "sim/SimWindows.h"
#include "TerminalText.h"
#include "WindowButtons.h"

namespace Dashboard
{

namespace
{

const QSize FIRST_SIZE(900, 740); // pixels
const char DETECT_PAID_TYPE[] = "USSD_DETECT_PAID_TYPE";
const char SWITCHED_ON[] = "1";
const int LONGEST_DELAY = 5000; // ms; the longest time that the user may have to wait for a frame

QDateTime ownCodesTime()
{
    return QFileInfo(ProfileBackup::ofUser().userFile()).lastModified();
}

/// Returns true if a window of this PAID_TYPE ends an open session on the device when it appears.
bool endsSession(int paidType)
{
    return paidType == PAID_TYPE_PREPAID || paidType == PAID_TYPE_POSTPAID;
}

} // namespace

MainWindow::MainWindow(LoadedPlugin *plugin, DashboardSettings *settings)
    : m_plugin(plugin), m_settings(settings), m_sim(plugin, &m_device, this),
      m_operatorCodes(&m_device, settings), m_awaitedFrame(PAID_TYPE_NONE),
      m_fileMenu(new QMenu(this)), m_quit(nullptr), m_languageMenu(new LanguageMenu(this)),
      m_deviceMenu(new DeviceMenu(this)), m_header(new DeviceHeader(this)),
      m_deviceNotice(new DeviceNotice(&m_device, this)), m_textPanel(new NetworkTextPanel(this)),
      m_demonstration(new NoticeBar("Dashboard_Demonstration", this)),
      m_problems(new NoticeBar("Dashboard_Problems", this)),
      m_operatorNotice(new OperatorNotice(&m_operatorCodes, this)),
      m_buttons(new WindowButtons(this)), m_page(new PageArea(plugin, this)),
      m_commandNotice(new CommandNotice(&m_device, this)), m_source(new QLabel(this))
{
    HostCore::HostState::setMainWindow(this);
    setObjectName(QLatin1String("Dashboard_MainWindow"));
    makeMenus();
    makeCentre();
    m_source->setObjectName(QLatin1String("Dashboard_Source"));
    m_source->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_source, 1);
    followSim();
    followNetworkTexts();
    followOperator();
    retranslate();
    restorePlace();
}

MainWindow::~MainWindow() = default;

void MainWindow::followSim()
{
    m_frameDelay.setParent(this);
    m_frameDelay.setObjectName(QLatin1String("Dashboard_FrameDelay"));
    m_frameDelay.setSingleShot(true);
    connect(&m_frameDelay, SIGNAL(timeout()), this, SLOT(openAwaitedFrame()));
    connect(&m_device, SIGNAL(changed()), this, SLOT(showDevice()));
    connect(&m_sim, SIGNAL(windowsOffered(int)), this, SLOT(offerWindows(int)));
    connect(&m_sim, SIGNAL(paidTypeChanged()), this, SLOT(showPaidType()));
    connect(&m_sim, SIGNAL(frameClosed()), this, SIGNAL(frameClosed()));
    connect(&m_sim, &SimFollower::commandEnded, m_commandNotice, &CommandNotice::look);
    m_isDetectionOn =
        (m_settings && m_settings->detectsPaidType()) || qgetenv(DETECT_PAID_TYPE) == SWITCHED_ON;
    m_deviceMenu->setDetection(m_isDetectionOn);
    m_sim.setDetectionRule([this] { return mayDetectPaidType(); });
    connect(m_deviceMenu, &DeviceMenu::detectionToggled, this, &MainWindow::rememberDetection);
}

/// Returns true if the prepaid/postpaid query may be sent. A modem sends only a code of the SIM's
/// operator, because the same code may buy something in another network.
bool MainWindow::mayDetectPaidType() const
{
    if (m_device.status().isSimulated)
        return true;
    return m_isDetectionOn && m_operatorCodes.areOfOperator() && !m_isRestartDue;
}

void MainWindow::rememberDetection(bool isOn)
{
    m_isDetectionOn = isOn;
    if (m_settings)
        m_settings->setDetectsPaidType(isOn);
    m_sim.ask();
}

void MainWindow::followNetworkTexts()
{
    connect(&m_networkTexts, SIGNAL(textReceived(QString, QDateTime, bool)), this,
            SLOT(showNetworkText(QString, QDateTime, bool)));
    connect(&m_sim, SIGNAL(commandEnded()), m_textPanel, SLOT(endQuestion()));
    connect(&m_device, SIGNAL(lost()), m_textPanel, SLOT(endQuestion()));
    m_networkTexts.start();
}

void MainWindow::followOperator()
{
    connect(m_deviceMenu, SIGNAL(operatorRequested()), m_operatorNotice, SLOT(choose()));
    connect(&m_operatorCodes, SIGNAL(folderChanged()), this, SLOT(beginAnew()));
    connect(&m_sim, SIGNAL(commandEnded()), this, SLOT(beginAnewIfDue()));
    connect(&m_sim, SIGNAL(frameClosed()), this, SLOT(beginAnewIfDue()));
    connect(&m_sim, SIGNAL(frameClosed()), this, SLOT(showFirstOwnCodes()));
}

/// Queues the restart, because the plug-in may still be handling the event that caused it.
void MainWindow::beginAnew()
{
    m_isRestartDue = true;
    QMetaObject::invokeMethod(this, "beginAnewIfDue", Qt::QueuedConnection);
}

/// Restarts the plug-in, but not while the user is busy, because the restart deletes the plug-in's
/// windows.
void MainWindow::beginAnewIfDue()
{
    if (m_isRestartDue && m_plugin->isUsable() && !UserActivity::isBusy())
        restartPlugin();
}

/// Restarts the plug-in if the user has saved codes in the editor. The plug-in itself creates no
/// preset buttons later if there were none at first.
void MainWindow::showFirstOwnCodes()
{
    const bool isWithoutPresets =
        m_operatorCodes.areAbsent() && !GeneralWindow(page()).hasPresets();
    if (isWithoutPresets && ownCodesTime() != m_ownCodesTime)
        beginAnew();
}

void MainWindow::makeMenus()
{
    m_quit = m_fileMenu->addAction(QString(), this, SLOT(close()));
    m_quit->setShortcut(QKeySequence::Quit);
    menuBar()->addMenu(m_fileMenu);
    menuBar()->addMenu(m_deviceMenu);
    menuBar()->addMenu(m_languageMenu);
    connect(m_languageMenu, SIGNAL(chosen(QString)), this, SLOT(setLanguage(QString)));
    connect(m_deviceMenu, SIGNAL(chosen(QString)), this, SLOT(chooseDevice(QString)));
    connect(m_deviceMenu, SIGNAL(openRequested()), this, SLOT(openScenario()));
}

void MainWindow::makeCentre()
{
    QWidget *centre = new QWidget(this);
    QVBoxLayout *column = new QVBoxLayout(centre);
    m_demonstration->setCompact();
    m_demonstration->setAutoFillBackground(true);
    m_demonstration->setBackgroundRole(QPalette::ToolTipBase);
    m_demonstration->setForegroundRole(QPalette::ToolTipText);
    column->addWidget(m_demonstration);
    column->addWidget(m_header);
    column->addWidget(m_problems);
    column->addWidget(m_deviceNotice);
    column->addWidget(m_operatorNotice);
    column->addWidget(m_buttons);
    column->addWidget(m_textPanel);
    column->addWidget(m_page, 1);
    column->addWidget(m_commandNotice);
    setCentralWidget(centre);
    m_buttons->setEnabled(false); // disabled until the plug-in is loaded
    connect(m_buttons, SIGNAL(pageToggled(bool)), this, SLOT(showPage(bool)));
    connect(m_buttons, SIGNAL(frameRequested(int)), this, SLOT(openFrame(int)));
}

void MainWindow::restorePlace()
{
    if (m_settings && restoreGeometry(m_settings->geometry()))
        return;
    resize(FIRST_SIZE.boundedTo(QApplication::desktop()->availableGeometry(this).size()));
    CommonUtils::MoveCentre(this);
}

QWidget *MainWindow::page() const
{
    return m_page->canvas();
}

PluginFailure MainWindow::loadPlugin()
{
    m_operatorCodes.look();
    m_isRestartDue = false;
    return startWith(m_plugin->load(LoadedPlugin::installedFile()));
}

PluginFailure MainWindow::restartPlugin()
{
    m_isRestartDue = false;
    m_windows = 0; // the restart has deleted the page
    return startWith(m_plugin->restart());
}

PluginFailure MainWindow::startWith(const PluginFailure &failure)
{
    m_ownCodesTime = ownCodesTime();
    m_buttons->setEnabled(m_plugin->isUsable());
    m_commandNotice->forget();
    if (m_plugin->isUsable())
        m_sim.start();
    else
        m_page->showText(failure.text());
    return failure;
}

void MainWindow::offerWindows(int windows)
{
    if (m_operatorCodes.areAbsent())
        windows &= SIM_WINDOW_GENERAL; // the configuration has no services
    const int changed = m_windows ^ windows;
    m_windows = windows;
    m_awaitedFrame = PAID_TYPE_NONE;
    m_buttons->offer(windows);
    if (changed & SIM_WINDOW_GENERAL)
        showPage(windows & SIM_WINDOW_GENERAL);
    m_page->showText(windows ? QString() : dashboardText("WINDOWS_NONE"));
}

void MainWindow::showPage(bool shown)
{
    if (shown)
        m_page->showPage();
    else
        m_page->hidePage();
    m_buttons->setPageShown(shown);
    const GeneralWindow general(page());
    // The host must handle the close button of an embedded window, because the plug-in does not
    // handle it.
    if (QPushButton *close = general.closeButton())
        connect(close, SIGNAL(clicked()), this, SLOT(hidePage()), Qt::UniqueConnection);
    followCommands(general);
}

/// Follows the transcript, because a command that is rejected at once does not disable the entry
/// field.
void MainWindow::followCommands(const GeneralWindow &general)
{
    general.hideUnusedPresets();
    if (QTextEdit *history = general.history())
        connect(history, &QTextEdit::textChanged, m_commandNotice, &CommandNotice::look,
                Qt::UniqueConnection);
}

void MainWindow::hidePage()
{
    showPage(false);
}

void MainWindow::openFrame(int paidType)
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

void MainWindow::openAwaitedFrame()
{
    m_frameDelay.stop();
    const int paidType = m_awaitedFrame;
    m_awaitedFrame = PAID_TYPE_NONE;
    if (paidType != PAID_TYPE_NONE && m_plugin->isUsable())
        openFrameNow(paidType);
}

/// Shows the general window, whose input field accepts the answer. This does not end the session. A
/// window that is already visible is left unchanged, so that the text that the user is typing is
/// kept.
void MainWindow::showNetworkText(const QString &text, const QDateTime &receivedAt,
                                 bool waitsForAnswer)
{
    m_textPanel->add(text, receivedAt, waitsForAnswer);
    if (!waitsForAnswer)
        return;
    m_sim.questionCame();
    const QLineEdit *entry = GeneralWindow(page()).commandEdit();
    if (m_plugin->isUsable() && !(entry && entry->isVisible()))
        showPage(true);
}

void MainWindow::openFrameNow(int paidType)
{
    if (paidType != PAID_TYPE_GENERAL) {
        m_plugin->ussd()->DoPrePostPaidModal(static_cast<PAID_TYPE>(paidType));
        return;
    }
    m_plugin->plugin()->DoModal();
    followCommands(GeneralWindow::framed());
}

void MainWindow::setLanguage(const QString &code)
{
    if (!HostCore::Languages::setCurrent(code)) {
        showProblem(dashboardText(languageProblem(code)).arg(HostCore::Languages::file(code)));
        m_languageMenu->retranslate(); // resets the check mark to the current language
        return;
    }
    if (m_settings)
        m_settings->setLanguage(code);
    m_plugin->notifyLanguageChange();
    retranslate();
}

void MainWindow::retranslate()
{
    m_fileMenu->setTitle(dashboardText("MENU_FILE"));
    m_quit->setText(dashboardText("ACTION_QUIT"));
    m_languageMenu->retranslate();
    m_textPanel->retranslate();
    m_commandNotice->update();
    m_operatorNotice->retranslate();
    m_buttons->retranslate();
    if (m_plugin->isUsable() && !m_windows)
        m_page->showText(dashboardText("WINDOWS_NONE"));
    showDevice();
}

void MainWindow::showPaidType()
{
    m_header->showPaidType(m_sim.paidTypeText());
    if (!m_sim.isAsking())
        openAwaitedFrame();
}

void MainWindow::showDevice()
{
    const bool isDemonstration = m_device.status().isSimulated;
    setWindowTitle(dashboardText(isDemonstration ? "APP_TITLE_DEMONSTRATION" : "APP_TITLE"));
    m_demonstration->setText(isDemonstration ? dashboardText("DEMONSTRATION_NOTE") : QString());
    m_deviceMenu->offer(m_deviceMenu->choice(), m_device.modems());
    m_deviceNotice->update();
    m_header->showStatus(m_device.status());
    m_header->showPaidType(m_sim.paidTypeText());
    m_source->setText(m_device.status().sourceText());
    m_source->setAccessibleName(dashboardText("NAME_SOURCE"));
}

bool MainWindow::useScenario(const QString &file)
{
    return useDevice(DeviceChoice::simulated(file));
}

bool MainWindow::useDevice(const DeviceChoice &choice)
{
    const QString error = choice.use();
    if (!error.isEmpty()) {
        setDevice(m_deviceMenu->choice());
        showScenarioError(error);
        return false;
    }
    setDevice(choice);
    return true;
}

void MainWindow::setDevice(const DeviceChoice &choice)
{
    m_deviceMenu->offer(choice, m_device.modems());
    m_commandNotice->forget();
    m_device.refresh();
}

void MainWindow::showProblem(const QString &text)
{
    const QString before = m_problems->text();
    if (before.contains(text))
        return;
    HostCore::printErrorLine(text);
    m_problems->setText(before.isEmpty() ? text : before + QLatin1Char('\n') + text);
}

void MainWindow::showScenarioError(const QString &error)
{
    CommonUtils::ShowMessage(QMessageBox::Warning, this, dashboardText("SCENARIO_UNUSABLE"), error,
                             QLatin1String("IDS_OK"));
}

void MainWindow::chooseDevice(const QString &word)
{
    const DeviceChoice choice = DeviceChoice::fromWord(word);
    if (useDevice(choice) && m_settings)
        m_settings->setDevice(choice);
}

void MainWindow::openScenario()
{
    const QString filter = dashboardText("SCENARIO_FILTER") + QLatin1String(" (*.scenario);;") +
                           dashboardText("ALL_FILES") + QLatin1String(" (*)");
    const QString file = QFileDialog::getOpenFileName(this, dashboardText("SCENARIO_CHOOSE"),
                                                      HostCore::InstallPaths::scenarios(), filter);
    if (!file.isEmpty())
        chooseDevice(DeviceChoice::simulated(file).word());
}

void MainWindow::quit()
{
    close();
    QCoreApplication::quit();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_settings)
        m_settings->setGeometry(saveGeometry());
    QMainWindow::closeEvent(event);
}

} // namespace Dashboard
