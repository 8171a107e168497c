#include "MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopWidget>
#include <QFileDialog>
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
#include "LanguageMenu.h"
#include "NetworkTextPanel.h"
#include "NoticeBar.h"
#include "OperatorNotice.h"
#include "PageArea.h"
#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"
#include "sim/SimWindows.h"
#include "TerminalText.h"
#include "WindowButtons.h"

namespace Dashboard
{

namespace
{

const QSize FIRST_SIZE(900, 740); // pixels
} // namespace

MainWindow::MainWindow(LoadedPlugin *plugin, DashboardSettings *settings)
    : m_plugin(plugin), m_settings(settings), m_controller(plugin, settings, this),
      m_fileMenu(new QMenu(this)), m_quit(nullptr), m_languageMenu(new LanguageMenu(this)),
      m_deviceMenu(new DeviceMenu(this)), m_header(new DeviceHeader(this)),
      m_deviceNotice(new DeviceNotice(&device(), this)), m_textPanel(new NetworkTextPanel(this)),
      m_demonstration(new NoticeBar("Dashboard_Demonstration", this)),
      m_problems(new NoticeBar("Dashboard_Problems", this)),
      m_operatorNotice(new OperatorNotice(&operatorCodes(), this)),
      m_buttons(new WindowButtons(this)), m_page(new PageArea(plugin, this)),
      m_commandNotice(new CommandNotice(&device(), this)), m_source(new QLabel(this))
{
    HostCore::HostState::setMainWindow(this);
    setObjectName(QLatin1String("Dashboard_MainWindow"));
    makeMenus();
    makeCentre();
    m_source->setObjectName(QLatin1String("Dashboard_Source"));
    m_source->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_source, 1);
    m_controller.setPageWindow([this] { return GeneralWindow(page()); });
    followController();
    followNetworkTexts();
    retranslate();
    restorePlace();
}

MainWindow::~MainWindow() = default;

void MainWindow::followController()
{
    connect(&device(), &DeviceWatcher::changed, this, &MainWindow::showDevice);
    connect(&m_controller, &AppController::deviceChosen, this, &MainWindow::onDeviceChosen);
    connect(&m_controller, &AppController::pluginStarted, this, &MainWindow::onPluginStarted);
    connect(&m_controller, &AppController::windowsOffered, this, &MainWindow::offerWindows);
    connect(&m_controller, &AppController::paidTypeChanged, this, &MainWindow::showPaidType);
    connect(&m_controller, &AppController::frameOpened, this,
            [this] { followCommands(GeneralWindow::framed()); });
    connect(&m_controller, &AppController::frameClosed, this, &MainWindow::frameClosed);
    connect(&m_controller, &AppController::commandEnded, m_commandNotice, &CommandNotice::look);
    connect(&m_controller, &AppController::languageChanged, this, &MainWindow::retranslate);
    connect(&m_controller, &AppController::problem, this, &MainWindow::showProblem);
    m_deviceMenu->setDetection(m_controller.isDetectionOn());
    connect(m_deviceMenu, &DeviceMenu::detectionToggled, &m_controller,
            &AppController::setDetection);
    connect(m_deviceMenu, SIGNAL(operatorRequested()), m_operatorNotice, SLOT(choose()));
}

void MainWindow::followNetworkTexts()
{
    connect(&m_controller, &AppController::textReceived, this, &MainWindow::showNetworkText);
    connect(&m_controller, &AppController::commandEnded, m_textPanel,
            &NetworkTextPanel::endQuestion);
    connect(&device(), &DeviceWatcher::lost, m_textPanel, &NetworkTextPanel::endQuestion);
    m_controller.start();
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
    return m_controller.loadPlugin();
}

PluginFailure MainWindow::restartPlugin()
{
    return m_controller.restartPlugin();
}

void MainWindow::onPluginStarted(const PluginFailure &failure)
{
    m_isPageOffered = false;
    m_buttons->setEnabled(m_plugin->isUsable());
    m_commandNotice->forget();
    if (!m_plugin->isUsable())
        m_page->showText(failure.text());
}

void MainWindow::offerWindows()
{
    const int windows = m_controller.windows();
    const bool isPageOffered = windows & SIM_WINDOW_GENERAL;
    m_buttons->offer(windows);
    if (isPageOffered != m_isPageOffered)
        showPage(isPageOffered);
    m_isPageOffered = isPageOffered;
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
    // The host must handle the Close button of an embedded window, because the plug-in does not.
    if (QPushButton *close = general.closeButton())
        connect(close, SIGNAL(clicked()), this, SLOT(hidePage()), Qt::UniqueConnection);
    followCommands(general);
}

/// Observes the transcript in addition to the command field, because a command that is rejected
/// immediately does not disable the field.
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
    m_controller.openFrame(paidType);
}

/// Shows the general window, in which the user can type the answer. Showing this window does not
/// end the session. A window that is already visible is left unchanged, so that the input of the
/// user is kept.
void MainWindow::showNetworkText(const QString &text, const QDateTime &receivedAt,
                                 bool waitsForAnswer)
{
    m_textPanel->add(text, receivedAt, waitsForAnswer);
    if (!waitsForAnswer)
        return;
    const QLineEdit *entry = GeneralWindow(page()).commandEdit();
    if (m_plugin->isUsable() && !(entry && entry->isVisible()))
        showPage(true);
}

void MainWindow::setLanguage(const QString &code)
{
    if (!m_controller.setLanguage(code))
        m_languageMenu->retranslate(); // resets the check mark to the current language
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
    if (m_plugin->isUsable() && !m_controller.windows())
        m_page->showText(dashboardText("WINDOWS_NONE"));
    showDevice();
}

void MainWindow::showPaidType()
{
    m_header->showPaidType(sim().paidTypeText());
}

void MainWindow::showDevice()
{
    const bool isDemonstration = device().status().isSimulated;
    setWindowTitle(dashboardText(isDemonstration ? "APP_TITLE_DEMONSTRATION" : "APP_TITLE"));
    m_demonstration->setText(isDemonstration ? dashboardText("DEMONSTRATION_NOTE") : QString());
    m_deviceMenu->offer(m_controller.choice(), device().modems());
    m_deviceNotice->update();
    m_header->showStatus(device().status());
    m_header->showPaidType(sim().paidTypeText());
    m_source->setText(device().status().sourceText());
    m_source->setAccessibleName(dashboardText("NAME_SOURCE"));
}

bool MainWindow::useScenario(const QString &file)
{
    return useDevice(m_controller.useDevice(DeviceChoice::simulated(file)));
}

bool MainWindow::useDevice(const QString &error)
{
    if (!error.isEmpty())
        showScenarioError(error);
    return error.isEmpty();
}

void MainWindow::setDevice(const DeviceChoice &choice)
{
    m_controller.setDevice(choice);
}

void MainWindow::onDeviceChosen()
{
    m_deviceMenu->offer(m_controller.choice(), device().modems());
    m_commandNotice->forget();
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
    useDevice(m_controller.chooseDevice(DeviceChoice::fromWord(word)));
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
