/* Implements the layout of MainWindow. */
#include <QApplication>
#include <QGridLayout>
#include <QScreen>
#include <QStackedWidget>

#include "AppMenu.h"
#include "Banners.h"
#include "CodesSetup.h"
#include "CommonUtils.h"
#include "device/DashboardSettings.h"
#include "DeviceMenu.h"
#include "ExtendDialog.h"
#include "Header.h"
#include "HomeSetup.h"
#include "LanguageMenu.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "MainWindow.h"
#include "MessageParts.h"
#include "Navigation.h"
#include "OperatorChooser.h"
#include "pages/CodesPage.h"
#include "pages/FirstRunPage.h"
#include "pages/HomePage.h"
#include "pages/MessagesPage.h"
#include "pages/ServicesPage.h"
#include "pages/SettingsPage.h"
#include "Scrim.h"

namespace Dashboard
{

namespace
{

const QSize FIRST_SIZE(1120, 720); // pixels
const QSize SMALLEST_SIZE(360, 560);
const QSize DECORATION(8, 40); // room for the borders and the title bar of the desktop
const int WIDE_FROM = 66;      // em
const int MEDIUM_FROM = 46;

enum Row { HeaderRow, BannerRow, PageRow, BarRow, Rows };

Form formOf(int width)
{
    const int em = Look::instance().em();
    if (width >= WIDE_FROM * em)
        return Form::Wide;
    return width >= MEDIUM_FROM * em ? Form::Medium : Form::Narrow;
}

/// Returns the size, bounded by the size of the screen. With a text size of 200 %, many screens are
/// smaller than the minimum size of the window.
QSize onScreen(const QSize &size)
{
    return size.boundedTo(QGuiApplication::primaryScreen()->availableSize() - DECORATION);
}

/// Invalidates the size hints of all layouts. For hidden pages, Qt keeps the old size hints, which
/// would prevent the window from becoming smaller.
void forgetSizes(QWidget *root)
{
    for (QLayout *layout : root->findChildren<QLayout *>()) {
        layout->invalidate();
        layout->parentWidget()->updateGeometry();
    }
}

bool isFrameOpen()
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<const ExtendDialog *>(window))
            return true;
    }
    return false;
}

} // namespace

void MainWindow::makeCentre()
{
    m_grid = new QGridLayout(m_root);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(0);
    m_grid->setRowStretch(PageRow, 1);
    m_grid->setColumnStretch(1, 1);
    setCentralWidget(m_root);
    setMinimumSize(onScreen(SMALLEST_SIZE));
    connect(m_navigation, &Navigation::chosen, this, [this](PageId page) { showPage(page); });
    connect(m_header, &Header::messagesRequested, this, [this] { showPage(PageId::Messages); });
    connect(m_header, &Header::menuRequested, this, &MainWindow::showMenu);
    connect(&Look::instance(), &Look::changed, this, &MainWindow::updateForm);
    if (m_settings)
        m_header->setHidesNumber(m_settings->hidesSimNumber());
    applyForm();
}

void MainWindow::placeParts()
{
    const bool isNarrow = m_form == Form::Narrow;
    const QList<QWidget *> column = {m_header, m_banners, m_stack};
    m_grid->removeWidget(m_navigation);
    if (isNarrow)
        m_grid->addWidget(m_navigation, BarRow, 1);
    else
        m_grid->addWidget(m_navigation, 0, 0, Rows, 1);
    for (int row = HeaderRow; row <= PageRow; ++row) {
        m_grid->removeWidget(column.at(row));
        m_grid->addWidget(column.at(row), row, 1);
    }
}

void MainWindow::applyForm()
{
    placeParts();
    m_navigation->setForm(m_form);
    m_header->setForm(m_form);
    m_banners->setForm(m_form);
    for (Page *page : madePages())
        page->setForm(m_form);
    forgetSizes(m_root);
}

// Updates the form, unless a window of the plug-in is open in a separate frame, because the
// position of the frame depends on the layout of the window.
void MainWindow::updateForm()
{
    const Form form = formOf(width());
    if (form == m_form || isFrameOpen())
        return;
    m_form = form;
    applyForm();
    showDevice();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    updateForm();
}

void MainWindow::restorePlace()
{
    if (m_settings && restoreGeometry(m_settings->geometry()))
        return;
    resize(FIRST_SIZE.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    CommonUtils::MoveCentre(this);
}

void MainWindow::showPage(PageId page)
{
    m_navigation->setCurrent(page);
    if (!isFirstRun())
        m_stack->setCurrentWidget(pageOf(page));
}

PageId MainWindow::currentPage() const
{
    return m_navigation->current();
}

bool MainWindow::isFirstRun() const
{
    return m_firstRun && m_stack->currentWidget() == m_firstRun;
}

void MainWindow::showFirstRun()
{
    const bool isDue = isFirstRunDue(m_settings, device(), operatorCodes());
    if (isDue && !m_firstRun)
        makeFirstRun();
    setShown(m_navigation, !isDue);
    setShown(m_header, !isDue);
    m_banners->setSuppressed(isDue);
    m_stack->setCurrentWidget(isDue ? m_firstRun : pageOf(currentPage()));
}

} // namespace Dashboard
