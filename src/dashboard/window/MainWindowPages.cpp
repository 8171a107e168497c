/* Implements the pages of MainWindow. Except for the Home page, a page is constructed when it is
   first needed, because most of the start time would otherwise be spent on hidden pages. */
#include <QShortcut>
#include <QStackedWidget>

#include "AppMenu.h"
#include "CodesSetup.h"
#include "DeviceMenu.h"
#include "Header.h"
#include "HomeSetup.h"
#include "LanguageMenu.h"
#include "MainWindow.h"
#include "MessageParts.h"
#include "OperatorChooser.h"
#include "pages/CodesPage.h"
#include "pages/FirstRunPage.h"
#include "pages/HomePage.h"
#include "pages/MessagesPage.h"
#include "pages/ServicesPage.h"
#include "pages/SettingsPage.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

void MainWindow::makePages()
{
    m_home = new HomeSetup(&m_controller, this, m_stack, this);
    m_pages[int(PageId::Home)] = m_home->page();
    m_stack->addWidget(m_home->page());
}

Page *MainWindow::pageOf(PageId page)
{
    Page *&made = m_pages[int(page)];
    if (!made) {
        made = makePage(page);
        addPage(made);
        if (page == PageId::Codes)
            m_codes->catchUp();
    }
    return made;
}

Page *MainWindow::makePage(PageId page)
{
    switch (page) {
    case PageId::Codes:
        return makeCodes();
    case PageId::Services:
        return makeServices();
    case PageId::Messages:
        return makeMessages();
    case PageId::Settings:
        return makeSettings();
    case PageId::Home:
        break;
    }
    return m_home->page();
}

/// Adds a new page to the stack, and applies the current form and the state of the device.
void MainWindow::addPage(Page *page)
{
    m_stack->addWidget(page);
    page->setForm(m_form);
    showDevice();
    showServices();
}

QList<Page *> MainWindow::madePages() const
{
    QList<Page *> made;
    for (Page *page : m_pages)
        made << page;
    made << m_firstRun;
    made.removeAll(nullptr);
    return made;
}

Page *MainWindow::makeCodes()
{
    m_codes = new CodesSetup(&m_controller, this, &m_home->favourites(), m_stack, this);
    for (QShortcut *key : m_codesKeys) { // one of them may be constructing the page
        key->setEnabled(false);
        key->deleteLater();
    }
    m_codesKeys.clear();
    for (QAction *action : m_codes->page()->shortcuts())
        addAction(action);
    connect(m_codes, &CodesSetup::savedWithoutButton, this, [this](const QStringList &names) {
        m_saved = names;
        showBanners();
    });
    return m_codes->page();
}

/// Constructs the page Codes and the plug-in's general window as soon as there is a device, because
/// all codes are sent through this window. Without a device, the page is constructed when the user
/// opens it, which saves 1.6 MB.
void MainWindow::makeCodesForDevice()
{
    if (!m_codes && device().status().state != TKSV_DEVICE_ABSENT)
        pageOf(PageId::Codes);
}

Page *MainWindow::makeServices()
{
    m_servicesPage = new ServicesPage(this, m_stack);
    const auto followWindows = [this] {
        m_servicesPage->setOffered(m_controller.windows() & SIM_WINDOW_SERVICES);
    };
    connect(&m_controller, &AppController::windowsOffered, m_servicesPage, followWindows);
    followWindows();
    return m_servicesPage;
}

Page *MainWindow::makeMessages()
{
    return new MessagesPage(&m_messages->store(), &m_controller.monitor(), m_stack);
}

Page *MainWindow::makeSettings()
{
    deviceMenu()->fill(); // the button that opens the menu needs the size of the menu
    m_settingsPage = new SettingsPage(
        {m_settings, &device(), &operatorCodes(), deviceMenu(), m_menu->languageMenu()}, m_stack);
    followSettings();
    return m_settingsPage;
}

void MainWindow::makeFirstRun()
{
    m_firstRun =
        new FirstRunPage(m_settings, &device(), &operatorCodes(), m_menu->languageMenu(), m_stack);
    connect(m_firstRun, &FirstRunPage::finished, this, &MainWindow::showFirstRun);
    connect(m_firstRun, &FirstRunPage::chosen, this, &MainWindow::perform);
    connect(m_firstRun, &FirstRunPage::providerChosen, m_chooser, &OperatorChooser::take);
    connect(m_firstRun, &FirstRunPage::declined, m_chooser, &OperatorChooser::decline);
    addPage(m_firstRun);
}

void MainWindow::followSettings()
{
    m_settingsPage->setDetection(m_controller.isDetectionOn());
    connect(m_settingsPage, &SettingsPage::detectionChosen, &m_controller,
            &AppController::setDetection);
    connect(m_settingsPage, &SettingsPage::operatorRequested, m_chooser, &OperatorChooser::choose);
    connect(m_settingsPage, &SettingsPage::hidingChanged, m_header, &Header::setHidesNumber);
    connect(m_settingsPage, &SettingsPage::changed, m_home, &HomeSetup::followSim);
    connect(m_settingsPage, &SettingsPage::keepingChanged, m_home, &HomeSetup::followSim);
    connect(m_settingsPage, &SettingsPage::keepingChanged, this, [this] {
        if (m_codes)
            m_codes->followSettings();
    });
    connect(m_settingsPage, &SettingsPage::keepingChanged, &m_messages->center(),
            &MessageCenter::look);
    connect(m_settingsPage, &SettingsPage::deleteAllRequested, this, &MainWindow::deleteAll);
    connect(m_chooser, &OperatorChooser::changed, m_settingsPage, &SettingsPage::retranslate);
}

CodesSetup &MainWindow::codes()
{
    pageOf(PageId::Codes);
    return *m_codes;
}

CodesPage *MainWindow::codesPage()
{
    return codes().page();
}

MessagesPage *MainWindow::messagesPage()
{
    return static_cast<MessagesPage *>(pageOf(PageId::Messages));
}

} // namespace Dashboard
