/* Implements the actions of MainWindow that the user and the pages request. */
#include <QApplication>
#include <QFileDialog>
#include <QMenuBar>
#include <QShortcut>

#include "account/SimKey.h"
#include "AltKey.h"
#include "AppMenu.h"
#include "base/DashboardText.h"
#include "CodesSetup.h"
#include "CommonUtils.h"
#include "device/Situation.h"
#include "DeviceLine.h"
#include "DeviceMenu.h"
#include "ExtendDialog.h"
#include "Header.h"
#include "HomeSetup.h"
#include "InstallPaths.h"
#include "IUSSD.h"
#include "LanguageMenu.h"
#include "MainWindow.h"
#include "MessageParts.h"
#include "Navigation.h"
#include "OperatorChooser.h"
#include "pages/CodesPage.h"
#include "pages/HomePage.h"
#include "pages/MessagesPage.h"
#include "plugin/ServiceList.h"
#include "RemedyRunner.h"
#include "ShortcutPriority.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

namespace
{

const char EDIT_BUTTON[] = "USSDUIPlugin_AdvancedDialog_EditButton";
const char PIN_FIELD[] = "USSDUIPlugin_ChargeEdit";
const char NUMBER_FIELD[] = "USSDUIPlugin_AdvancedDialog_PaymentEdit";
const char STRIP[] = "Dashboard_StateStrip";

const PageId NUMBERED_PAGES[] = {PageId::Home, PageId::Codes, PageId::Services, PageId::Messages};

struct CodesKey {
    int key; // pressed together with Ctrl
    const char *action;
};

const CodesKey CODES_KEYS[] = {
    {Qt::Key_L, "Dashboard_FocusCode"},
    {Qt::Key_H, "Dashboard_OpenHistory"},
};

QWidget *inOpenFrame(const char *name)
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || !qobject_cast<const ExtendDialog *>(window))
            continue;
        if (QWidget *widget = window->findChild<QWidget *>(QLatin1String(name)))
            return widget;
    }
    return nullptr;
}

} // namespace

void MainWindow::makeMenu()
{
    m_menu->fill(menuBar());
    menuBar()->hide();
    for (QAction *action : m_menu->actions()) {
        if (action->shortcut().isEmpty())
            continue;
        addAction(
            action); // otherwise, the shortcut would be inactive, because the menu bar is hidden
        new ShortcutPriority(action->shortcut(), this);
    }
    connect(m_menu, &AppMenu::windowRequested, this, &MainWindow::openFrame);
    connect(m_menu, &AppMenu::editRequested, this, &MainWindow::editCodes);
    connect(m_menu, &AppMenu::operatorRequested, m_chooser, &OperatorChooser::choose);
    connect(m_menu, &AppMenu::settingsRequested, this, [this] { showPage(PageId::Settings); });
    connect(m_menu, &AppMenu::aboutRequested, this, &MainWindow::showAbout);
    connect(m_menu, &AppMenu::numberRequested, m_header, &Header::toggleNumber);
    connect(m_menu, &AppMenu::exportRequested, m_home, &HomeSetup::exportAccount);
    connect(m_menu, &AppMenu::quitRequested, this, &MainWindow::close);
    connect(m_menu->languageMenu(), &LanguageMenu::chosen, this, &MainWindow::setLanguage);
    connect(deviceMenu(), &DeviceMenu::chosen, this, &MainWindow::chooseDevice);
    connect(deviceMenu(), &DeviceMenu::openRequested, this, &MainWindow::openScenario);
    connect(m_navigation->deviceLine(), &QPushButton::clicked, this, &MainWindow::showModemMenu);
    const AltKey *alt = new AltKey(this);
    connect(alt, &AltKey::pressedAlone, this, &MainWindow::showMenu);
}

void MainWindow::addShortcut(const QKeySequence &key, const std::function<void()> &action)
{
    connect(new QShortcut(key, this), &QShortcut::activated, this, action);
}

/// Makes the keys that open the page Codes work before the page exists. Then, the page has its own
/// actions for these keys.
void MainWindow::makeCodesKeys()
{
    for (const CodesKey &each : CODES_KEYS) {
        QShortcut *key = new QShortcut(QKeySequence(int(Qt::CTRL) + each.key), this);
        m_codesKeys << key;
        connect(key, &QShortcut::activated, this, [this, &each] {
            codesPage()->findChild<QAction *>(QLatin1String(each.action))->trigger();
        });
    }
}

void MainWindow::makeShortcuts()
{
    makeCodesKeys();
    int key = Qt::Key_1;
    for (const PageId page : NUMBERED_PAGES) {
        addShortcut(QKeySequence(int(Qt::CTRL) + key++), [this, page] {
            showPage(page);
            focusPage();
        });
    }
    addShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_I), [this] { m_header->toggleNumber(); });
    addShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_T), [this] { topUp(); });
    addShortcut(QKeySequence(Qt::Key_F5), [this] { m_home->page()->askAgain(); });
    addShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_F), [this] { find(); });
    addShortcut(QKeySequence(Qt::Key_F10), [this] { showMenu(); });
    addShortcut(QKeySequence(Qt::Key_F6), [this] { m_regions.move(1); });
    addShortcut(QKeySequence(int(Qt::SHIFT) + Qt::Key_F6), [this] { m_regions.move(-1); });
}

/// Starts a search: on the Codes page in the transcript, on any other page in the messages.
void MainWindow::find()
{
    if (currentPage() == PageId::Codes)
        return codesPage()->find();
    showPage(PageId::Messages);
    messagesPage()->focusSearch();
}

void MainWindow::makeRegions()
{
    m_regions.add([this] { return m_header; });
    m_regions.add([this] { return m_navigation; });
    m_regions.add([this] { return m_banners; });
    m_regions.add(
        [this] { return pageOf(currentPage())->findChild<QWidget *>(QLatin1String(STRIP)); });
    m_regions.add([this]() -> QWidget * { return pageOf(currentPage()); });
}

void MainWindow::focusPage()
{
    if (QWidget *first = pageOf(currentPage())->firstFocus())
        first->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::showMenu()
{
    QWidget *button = m_header->menuButton();
    m_menu->setSim(m_header->simText(), !m_header->hasRoomForSim());
    m_menu->ensurePolished(); // applies the style sheet, which changes the size of the menu
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const QPoint below =
        isMirrored ? QPoint(0, button->height())
                   : QPoint(button->width() - m_menu->sizeHint().width(), button->height());
    m_menu->popup(button->mapToGlobal(below));
}

void MainWindow::showModemMenu()
{
    QWidget *line = m_navigation->deviceLine();
    if (!line->isVisible())
        line = m_header->menuButton();
    deviceMenu()->popup(line->mapToGlobal(QPoint()));
}

/// Deletes the data about the user that the program has stored. The key of the SIM is renewed last,
/// when all entries that use the old key have been deleted.
void MainWindow::deleteAll()
{
    codes().deleteAll();
    m_home->deleteAll();
    m_messages->store().removeAll();
    if (!m_settings)
        return; // nothing is stored
    forgetSimKeys();
    m_home->renewSimKey();
    m_messages->center().renewSimKey();
}

void MainWindow::showAbout()
{
    CommonUtils::ShowMessage(QMessageBox::Information, this, dashboardText("APP_TITLE"),
                             dashboardText("MENU_ABOUT_TEXT").arg(QLatin1String(USSD_VERSION)),
                             QLatin1String("IDS_OK"));
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

void MainWindow::raiseAgain()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    QApplication::alert(this); // for desktops that do not raise the window
}

void MainWindow::openFrame(int paidType)
{
    pageOf(PageId::Codes); // notices which codes the user saves in the frame
    m_controller.openFrame(paidType);
}

void MainWindow::sendCode(const QString &code)
{
    showPage(PageId::Codes);
    codesPage()->useCode(code);
}

void MainWindow::runChain(const QString &name)
{
    showPage(PageId::Codes);
    codesPage()->runChain(name);
}

void MainWindow::typeCode(const QString &code)
{
    showPage(PageId::Codes);
    codesPage()->typeCode(code);
}

void MainWindow::topUp()
{
    if (m_controller.windows() & (SIM_WINDOW_PREPAID | SIM_WINDOW_POSTPAID))
        return openTopUpWindow();
    showPage(PageId::Codes);
    if (QWidget *field = page()->findChild<QWidget *>(QLatin1String(NUMBER_FIELD)))
        field->setFocus(Qt::ShortcutFocusReason);
}

/// Opens the account window and moves the focus to the field for the voucher PIN.
void MainWindow::openTopUpWindow()
{
    openAccountWindow();
    if (QWidget *field = inOpenFrame(PIN_FIELD))
        field->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::openAccountWindow()
{
    const int windows = m_controller.windows();
    if (windows & SIM_WINDOW_PREPAID)
        openFrame(PAID_TYPE_PREPAID);
    else if (windows & SIM_WINDOW_POSTPAID)
        openFrame(PAID_TYPE_POSTPAID);
}

void MainWindow::openServicesWindow(int row)
{
    if (!(m_controller.windows() & SIM_WINDOW_SERVICES))
        return;
    openFrame(PAID_TYPE_USSD_SMS);
    selectServiceInFrame(row);
}

void MainWindow::editCodes()
{
    if (QPushButton *edit = page()->findChild<QPushButton *>(QLatin1String(EDIT_BUTTON)))
        edit->click();
}

void MainWindow::perform(Remedy remedy)
{
    m_remedies->perform(remedy);
}

} // namespace Dashboard
