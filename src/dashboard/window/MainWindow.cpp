#include "MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QStackedWidget>
#include <QWindow>

#include "AccessibleRoles.h"
#include "account/AccountWords.h"
#include "AppMenu.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "CodesSetup.h"
#include "device/DashboardSettings.h"
#include "device/Situation.h"
#include "DeviceLine.h"
#include "DeviceMenu.h"
#include "ExtendDialog.h"
#include "Header.h"
#include "HomeSetup.h"
#include "HostState.h"
#include "LanguageMenu.h"
#include "look/Look.h"
#include "MessageParts.h"
#include "Navigation.h"
#include "OperatorChooser.h"
#include "pages/CodesPage.h"
#include "pages/FirstRunPage.h"
#include "pages/GeneralArea.h"
#include "pages/HomePage.h"
#include "pages/MessagesPage.h"
#include "pages/ServicesPage.h"
#include "pages/SettingsPage.h"
#include "plugin/EditorHints.h"
#include "plugin/LoadedPlugin.h"
#include "ProfileKeeper.h"
#include "RemedyRunner.h"
#include "Scrim.h"
#include "TerminalText.h"

namespace Dashboard
{

namespace
{

bool isFrame(const QObject *object)
{
    return qobject_cast<const ExtendDialog *>(object);
}

/// Returns true if the window must be closed before the main window can be used.
bool isModalDialog(const QObject *object)
{
    const QDialog *dialog = qobject_cast<const QDialog *>(object);
    return dialog && (isFrame(dialog) || dialog->isModal());
}

bool hasOtherDialog(const QObject *dialog)
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window != dialog && window->isVisible() && isModalDialog(window))
            return true;
    }
    return false;
}

/// Returns true if the operator is known in a situation of this kind.
bool hasOperator(Situation::Kind kind)
{
    return kind == Situation::Kind::Ready || kind == Situation::Kind::CodesUnknown ||
           kind == Situation::Kind::WaitsForTurn || kind == Situation::Kind::ForeignSession;
}

bool isAbsent(Situation::Kind kind)
{
    return kind == Situation::Kind::NoModem || kind == Situation::Kind::LookingForModem ||
           kind == Situation::Kind::ModemRemoved;
}

// Installs the accessible roles first. A screen reader may query the role of a widget while the
// widget is being constructed, and the role does not change afterwards.
QWidget *makeRoot(QWidget *window)
{
    installAccessibleRoles();
    return new QWidget(window);
}

} // namespace

MainWindow::MainWindow(LoadedPlugin *plugin, DashboardSettings *settings)
    : m_plugin(plugin), m_settings(settings), m_controller(plugin, settings, this),
      m_chooser(new OperatorChooser(&operatorCodes(), this)),
      m_remedies(new RemedyRunner(&m_controller, this)),
      m_messages(new MessageParts(&m_controller, this)), m_menu(new AppMenu(this)),
      m_root(makeRoot(this)), m_navigation(new Navigation(m_root)), m_header(new Header(m_root)),
      m_banners(new Banners(m_root)), m_stack(new QStackedWidget(m_root)),
      m_scrim(new Scrim(m_root))
{
    HostCore::HostState::setMainWindow(this);
    setObjectName(QLatin1String("Dashboard_MainWindow"));
    // The box styles must be set before the pages are constructed. Otherwise, Qt would apply the
    // style sheet to all widgets of the pages again.
    setBox(m_root, "root");
    setBox(m_stack, "page");
    makePages();
    makeCentre();
    makeMenu();
    makeShortcuts();
    makeRegions();
    m_controller.setPageWindow([this] { return GeneralWindow(m_codes ? page() : nullptr); });
    followController();
    followBanners();
    followRemedies();
    followMessages();
    QCoreApplication::instance()->installEventFilter(this);
    retranslate();
    restorePlace();
}

MainWindow::~MainWindow() = default;

void MainWindow::followController()
{
    connect(&device(), &DeviceWatcher::changed, this, &MainWindow::showDevice);
    connect(&m_controller, &AppController::deviceChosen, this, &MainWindow::showDevice);
    connect(&m_controller, &AppController::windowsOffered, this, [this] {
        m_menu->offer(m_controller.windows());
        makeCodesForDevice(); // before the next code is sent
    });
    connect(&m_controller.monitor(), &CommandMonitor::changed, this, &MainWindow::showServices);
    connect(&m_controller, &AppController::paidTypeChanged, this, &MainWindow::showDevice);
    connect(&m_controller, &AppController::frameClosed, this, &MainWindow::frameClosed);
    connect(&m_controller, &AppController::languageChanged, this, &MainWindow::retranslate);
    connect(&m_controller, &AppController::problem, this, &MainWindow::showProblem);
}

void MainWindow::followBanners()
{
    connect(m_banners, &Banners::actionRequested, this, &MainWindow::onBannerAction);
    connect(m_banners, &Banners::closeRequested, this, &MainWindow::onBannerClosed);
    connect(m_chooser, &OperatorChooser::problem, this, &MainWindow::showProblem);
    connect(m_chooser, &OperatorChooser::changed, this, &MainWindow::showDevice);
    connect(m_chooser, &OperatorChooser::remedyRequested, this, &MainWindow::perform);
}

void MainWindow::followRemedies()
{
    connect(m_remedies, &RemedyRunner::modemMenuRequested, this, &MainWindow::showModemMenu);
    connect(m_remedies, &RemedyRunner::operatorRequested, m_chooser, &OperatorChooser::choose);
    connect(m_remedies, &RemedyRunner::deviceFailed, this, &MainWindow::showScenarioError);
    connect(m_remedies, &RemedyRunner::typingRequested, this, [this] {
        showPage(PageId::Codes);
        focusPage();
    });
}

void MainWindow::followMessages()
{
    MessageStore *store = &m_messages->store();
    connect(store, &MessageStore::unreadCountChanged, m_navigation, &Navigation::setUnread);
    connect(store, &MessageStore::unreadCountChanged, m_header, &Header::setUnread);
    connect(&m_messages->notifier(), &DesktopNotifier::activated, this,
            [this](DesktopNote::Kind kind, qint64 id) {
                if (kind == DesktopNote::Kind::Message)
                    openMessage(id);
            });
    connect(&m_messages->notifier(), &DesktopNotifier::attention, this,
            [this] { QApplication::alert(this); });
    connect(store, &MessageStore::unreadCountChanged, this, &MainWindow::showNewestMessage);
    connect(store, &MessageStore::added, this, &MainWindow::showNewestMessage);
    connect(store, &MessageStore::changed, this, &MainWindow::showNewestMessage);
    connect(store, &MessageStore::reset, this, &MainWindow::showNewestMessage);
    connect(m_home->page(), &HomePage::messageChosen, this, &MainWindow::openMessage);
    connect(&m_home->recorder(), &AccountRecorder::lowBalance, &m_messages->center(),
            &MessageCenter::notifyLowBalance);
    m_controller.start();
}

/// Shows the newest message on the Home page if it is unread or requires an answer.
void MainWindow::showNewestMessage()
{
    MessageStore &store = m_messages->store();
    const Message newest = store.newest();
    HomeMessage shown;
    shown.waitsForAnswer = !newest.isNull() && newest.id == store.waiting();
    if (shown.waitsForAnswer || newest.isUnread) {
        shown.id = newest.id;
        shown.title = newest.text.section(QLatin1Char('\n'), 0, 0);
        shown.note = whenText(newest.receivedAt, QDateTime::currentDateTime());
        if (shown.waitsForAnswer)
            shown.note += QString::fromUtf8(" · ") + dashboardText("MESSAGE_WAITS");
    }
    m_home->page()->setMessage(shown);
}

/// Opens the message on the Messages page.
void MainWindow::openMessage(qint64 id)
{
    raiseAgain();
    showPage(PageId::Messages);
    messagesPage()->open(id);
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_messages->center().onInFront();
}

void MainWindow::setProfiles(ProfileKeeper *profiles)
{
    m_profiles = profiles;
    connect(profiles, &ProfileKeeper::offerChanged, this, &MainWindow::showBanners);
    connect(profiles, &ProfileKeeper::problem, this, &MainWindow::showProblem);
    connect(profiles, &ProfileKeeper::restored, &m_controller, &AppController::beginAnew);
    connect(this, &MainWindow::frameClosed, profiles, &ProfileKeeper::refresh);
}

QWidget *MainWindow::page()
{
    return codesPage()->area()->canvas();
}

DeviceMenu *MainWindow::deviceMenu() const
{
    return m_menu->deviceMenu();
}

PluginFailure MainWindow::loadPlugin()
{
    makeCodesForDevice();
    return m_controller.loadPlugin();
}

PluginFailure MainWindow::restartPlugin()
{
    return m_controller.restartPlugin();
}

void MainWindow::setLanguage(const QString &code)
{
    if (!m_controller.setLanguage(code))
        m_menu->languageMenu()->retranslate(); // restores the check mark of the current language
}

void MainWindow::retranslate()
{
    m_header->retranslate();
    m_navigation->retranslate();
    m_menu->retranslate();
    m_chooser->retranslate();
    m_remedies->retranslate();
    m_messages->retranslate();
    for (Page *page : madePages())
        page->retranslate();
    if (m_codes)
        m_codes->retranslate();
    showNewestMessage();
    showDevice();
}

Situation MainWindow::situation() const
{
    const DeviceChoice &choice = m_controller.choice();
    QString chosenModem;
    for (const Modem &modem : m_controller.device().modems()) {
        if (choice.kind == DeviceChoice::Modem && modem.equipmentId == choice.name)
            chosenModem = modemTitle(modem, m_controller.device().modems());
    }
    const bool areCodesKnown = !m_controller.operatorCodes().areAbsent();
    return situationOf(m_controller.device().status(), areCodesKnown, chosenModem);
}

void MainWindow::showDevice()
{
    const bool isDemonstration = device().status().isSimulated;
    const Situation now = situation();
    setWindowTitle(dashboardText(isDemonstration ? "APP_TITLE_DEMONSTRATION" : "APP_TITLE"));
    deviceMenu()->offer(m_controller.choice(), device().modems());
    showHeader(now);
    showDeviceLine(now);
    showBanners();
    if (m_controller.started())
        makeCodesForDevice();
    showOnPages(now);
    showFirstRun();
}

void MainWindow::showOnPages(const Situation &situation)
{
    m_home->setSituation(situation);
    if (m_firstRun)
        m_firstRun->showSituation(situation);
    if (m_codes)
        m_codes->page()->setSituation(situation);
    if (m_settingsPage)
        m_settingsPage->setDeviceChoice(choiceText());
    if (!m_servicesPage)
        return;
    m_servicesPage->setSituation(situation);
    m_servicesPage->setOperatorName(device().status().operatorName);
}

/// Returns the text for the selected device, for example "Automatic".
QString MainWindow::choiceText() const
{
    const DeviceChoice &choice = m_controller.choice();
    if (choice.kind == DeviceChoice::Automatic)
        return dashboardText("SETTINGS_AUTOMATIC");
    if (choice.kind == DeviceChoice::Simulated)
        return dashboardText("HEADER_DEMONSTRATION");
    for (const Modem &modem : m_controller.device().modems()) {
        if (modem.equipmentId == choice.name)
            return modemTitle(modem, m_controller.device().modems());
    }
    return dashboardText("SETTINGS_CHOSEN_MODEM");
}

void MainWindow::showServices()
{
    const CommandState::Kind kind = m_controller.monitor().state().kind;
    if (m_servicesPage)
        m_servicesPage->setMenuOpen(kind == CommandState::Kind::MenuOpen);
    if (kind == CommandState::Kind::Ready || kind == CommandState::Kind::MenuEnded)
        m_messages->store().endWaiting();
}

void MainWindow::showHeader(const Situation &situation)
{
    const DeviceStatus &status = device().status();
    HeaderContent content;
    content.isDemonstration = status.isSimulated;
    content.tone = hasOperator(situation.kind) ? Tone::Ok : situation.tone;
    if (status.isSimulated)
        content.tone = Tone::Warn;
    if (hasOperator(situation.kind)) {
        content.title = status.operatorText();
        content.signalPercent = status.signalPercent;
    } else {
        content.title = situation.title;
    }
    content.chip =
        status.isSimulated ? dashboardText("HEADER_DEMONSTRATION") : sim().paidTypeText();
    content.simNumber = status.imsi;
    m_header->showContent(content);
    m_menu->setSim(m_header->simText(), !m_header->hasRoomForSim());
}

void MainWindow::showDeviceLine(const Situation &situation)
{
    const DeviceStatus &status = device().status();
    const bool isReady = hasOperator(situation.kind);
    QString state = isReady ? dashboardText("HEADER_MODEM_READY") : situation.title;
    QString name = status.source;
    Tone tone = isReady ? Tone::Ok : situation.tone;
    if (status.isSimulated) {
        state = dashboardText("HEADER_DEMONSTRATION");
        name = dashboardText("HEADER_NO_MODEM_IN_USE");
        tone = Tone::Warn;
    } else if (isAbsent(situation.kind)) {
        name = dashboardText("HEADER_LOOKING_FOR_ONE");
        tone = situation.kind == Situation::Kind::LookingForModem ? Tone::Warn : Tone::Danger;
    }
    DeviceLine *line = m_navigation->deviceLine();
    line->showDevice(tone, state, name);
    line->setToolTip(status.sourceText());
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

void MainWindow::showProblem(const QString &text)
{
    if (m_problem.contains(text))
        return;
    HostCore::printErrorLine(text);
    m_problem = m_problem.isEmpty() ? text : m_problem + QLatin1Char(' ') + text;
    showBanners();
}

void MainWindow::showBanners()
{
    const bool isDemonstration = device().status().isSimulated;
    Banner demonstration;
    if (isDemonstration)
        demonstration = {dashboardText("HEADER_DEMONSTRATION"),
                         dashboardText("BANNER_DEMONSTRATION"), remedyText(Remedy::UseMyModem),
                         QString()};
    Banner proposal;
    if (m_chooser->isProposing())
        proposal = {dashboardText("BANNER_NO_CODES"), m_chooser->proposal(),
                    m_chooser->acceptText(), dashboardText("CODES_NOT_NOW")};
    Banner problem;
    if (!m_problem.isEmpty())
        problem = {dashboardText("BANNER_PROBLEM"), m_problem, QString(),
                   dashboardText("CODES_CLOSE")};
    Banner restore;
    if (m_profiles && !m_profiles->offer().isEmpty())
        restore = {dashboardText("BANNER_RESTORE"), m_profiles->offer(),
                   dashboardText("BANNER_RESTORE_YES"), dashboardText("BANNER_RESTORE_NO")};
    m_banners->setBanner(Banners::Saved, savedBanner());
    m_banners->setBanner(Banners::Demonstration, demonstration);
    m_banners->setBanner(Banners::Operator, proposal);
    m_banners->setBanner(Banners::Problem, problem);
    m_banners->setBanner(Banners::Restore, restore);
}

/// Returns the banner about new codes that have no button. The banner offers to show these codes in
/// the history.
Banner MainWindow::savedBanner() const
{
    if (m_saved.isEmpty())
        return Banner();
    return {
        dashboardText("BANNER_SAVED"),
        dashboardText("BANNER_SAVED_TEXT").arg(isolatedWords(m_saved.join(QLatin1String(", ")))),
        dashboardText("BANNER_SAVED_SHOW"), dashboardText("CODES_CLOSE")};
}

void MainWindow::showSavedCodes()
{
    m_saved.clear();
    showBanners();
    codes().showNewCodes();
}

void MainWindow::onBannerAction(Banners::Kind kind)
{
    if (kind == Banners::Saved)
        showSavedCodes();
    else if (kind == Banners::Demonstration)
        perform(Remedy::UseMyModem);
    else if (kind == Banners::Operator)
        m_chooser->accept();
    else if (kind == Banners::Restore && m_profiles)
        m_profiles->restore();
}

void MainWindow::onBannerClosed(Banners::Kind kind)
{
    if (kind == Banners::Saved) {
        m_saved.clear();
        showBanners();
    } else if (kind == Banners::Operator) {
        m_chooser->decline();
    } else if (kind == Banners::Problem) {
        m_problem.clear();
        showBanners();
    } else if (kind == Banners::Restore && m_profiles) {
        m_profiles->forget();
    }
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

void MainWindow::onFrame(QWidget *frame, bool isShown)
{
    if (!isShown) {
        QMetaObject::invokeMethod(
            this, [this] { updateForm(); }, Qt::QueuedConnection);
        return;
    }
    EditorHints::addTo(frame);
    // Keeps the frame above this window. Otherwise, a click could raise this window above the modal
    // frame, and this window would not react.
    frame->windowHandle()->setTransientParent(windowHandle());
}

// Dims the main window while a dialog or a window of the plug-in is open. The state of the frame is
// checked later, because it has not changed yet when the event is sent.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShown = event->type() == QEvent::Show;
    const bool isChange = isShown || event->type() == QEvent::Hide;
    if (isChange && isModalDialog(watched))
        m_scrim->setShown(isShown || hasOtherDialog(watched));
    if (isChange && isFrame(watched))
        onFrame(static_cast<QWidget *>(watched), isShown);
    return QMainWindow::eventFilter(watched, event);
}

} // namespace Dashboard
