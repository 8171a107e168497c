#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QWindow>

#include "device/DashboardSettings.h"
#include "device/Scenarios.h"
#include "HostState.h"
#include "IUSSD.h"
#include "Languages.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "pages/SettingsPage.h"
#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"
#include "window/AppMenu.h"
#include "window/Banners.h"
#include "window/Header.h"
#include "window/MainWindow.h"
#include "window/Navigation.h"
#include "window/Scrim.h"

using namespace Dashboard;

namespace
{

const PageId PAGES[] = {PageId::Home, PageId::Codes, PageId::Services, PageId::Messages,
                        PageId::Settings};
const int HEIGHT = 640; // pixels

} // namespace

/**
 * Tests how the main window arranges its pages, and its navigation, shortcut keys, banners and
 * scrim.
 */
class ShellTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theFormDependsOnTheWidthInEm_data();
    void theFormDependsOnTheWidthInEm();
    void aChangeOfFormKeepsThePagesAndTheFocus();
    void aPageIsConstructedWhenItIsNeeded();
    void aPageIsConstructedOnceBeforeThePluginIsLoaded();
    void aPageConstructedLaterIsUpToDate();
    void nothingIsCutAtAnyWidth_data();
    void nothingIsCutAtAnyWidth();
    void theSizesOfTheWindowAreBounded();
    void thePlaceIsRememberedAlsoForAMaximizedWindow();
    void theNavigationIsOneTabStopWithArrows();
    void theNavigationPrecedesTheDeviceLine();
    void theNavigationIsAListOfPageTabs();
    void unreadMessagesAreCounted();
    void keysGoToThePages_data();
    void keysGoToThePages();
    void theCodeFieldIsReachedFromEverywhere();
    void aFieldLeavesItsKeyToTheMenu();
    void controlFSearchesOnTheMessagesPageToo();
    void f6GoesThroughTheRegions();
    void f6LeavesTheStripInsideThePage();
    void f10AndAltAloneOpenTheMenu();
    void altWithAnotherKeyDoesNotOpenTheMenu();
    void theHiddenMenuBarHasTheSameActions();
    void theNumberOfTheSimIsShownForAMoment();
    void theDemonstrationCannotBeClosed();
    void aProblemIsShownInADemonstration();
    void oneBannerIsShownAtATime();
    void theWindowIsDimmedBehindAFrame();
    void theWindowIsDimmedUntilTheLastDialogIsClosed();
    void theFormWaitsForTheFrame();
    void theMessageTellsTheStrengthInWords();

private:
    template <typename T>
    T *part(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1String(name));
    }
    void resizeTo(int width);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    const QFont m_font = QApplication::font();
    QScopedPointer<DashboardSettings> m_settings;
    QScopedPointer<LoadedPlugin> m_plugin;
    QScopedPointer<MainWindow> m_window;
};

void ShellTest::setUp()
{
    QFile::remove(DashboardSettings().file());
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QVERIFY(Scenarios::use(QString()).isEmpty());
    Look::instance().setReducesMotion(true);
    Look::instance().start();
    m_settings.reset(new DashboardSettings);
    m_settings->setFirstRunDone(true);
    m_plugin.reset(new LoadedPlugin);
    m_window.reset(new MainWindow(m_plugin.data(), m_settings.data()));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
    m_window->loadPlugin();
    QVERIFY(m_plugin->isUsable());
}

void ShellTest::tearDown()
{
    m_plugin.reset();
    m_window.reset();
    m_settings.reset();
    QApplication::setFont(m_font);
    HostCore::HostState::setShuttingDown(false);
}

void ShellTest::resizeTo(int width)
{
    m_window->resize(width, HEIGHT);
    drainEvents();
}

void ShellTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget *focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : m_window.data(), key, modifiers);
    drainEvents();
}

void ShellTest::theFormDependsOnTheWidthInEm_data()
{
    QTest::addColumn<int>("em");
    QTest::addColumn<int>("form");
    QTest::newRow("wide") << 66 << int(Form::Wide);
    QTest::newRow("medium, widest") << 65 << int(Form::Medium);
    QTest::newRow("medium, narrowest") << 46 << int(Form::Medium);
    QTest::newRow("narrow") << 45 << int(Form::Narrow);
}

void ShellTest::theFormDependsOnTheWidthInEm()
{
    QFETCH(int, em);
    QFETCH(int, form);
    resizeTo(em * Look::instance().em());
    QCOMPARE(int(m_window->form()), form);
    const QWidget *navigation = part<QWidget>("Dashboard_Navigation");
    const int widths[] = {216, 72, m_window->width()};
    const int expected =
        form == int(Form::Narrow) ? widths[form] : Look::instance().px(widths[form]);
    QCOMPARE(navigation->width(), expected);
    QCOMPARE(part<QPushButton>("Dashboard_NavSettings")->isVisible(), form != int(Form::Narrow));
}

void ShellTest::aChangeOfFormKeepsThePagesAndTheFocus()
{
    m_window->showPage(PageId::Codes);
    QLineEdit *edit = GeneralWindow(m_window->page()).commandEdit();
    edit->setFocus();
    typeInto(edit, QLatin1String("*12"));
    QTRY_COMPARE(QApplication::focusWidget(), edit);
    for (const int width : {400, 800, 1120}) {
        resizeTo(width);
        QCOMPARE(GeneralWindow(m_window->page()).commandEdit(), edit);
        QCOMPARE(edit->text(), QLatin1String("*12"));
        QCOMPARE(QApplication::focusWidget(), edit);
    }
}

// Tests that a page is not constructed before it is needed. Otherwise, the hidden pages would take
// up most of the start time.
void ShellTest::aPageIsConstructedWhenItIsNeeded()
{
    for (const char *name : {"Dashboard_ServicesPage", "Dashboard_MessagesPage",
                             "Dashboard_SettingsPage", "Dashboard_FirstRunPage"})
        QVERIFY2(!part<QWidget>(name), name);
    m_window->showPage(PageId::Settings);
    QVERIFY(part<QWidget>("Dashboard_SettingsPage")->isVisible());
    QVERIFY(!part<QWidget>("Dashboard_MessagesPage"));
}

// Tests that the Settings page is constructed only once, although its construction also constructs
// the Codes page.
void ShellTest::aPageIsConstructedOnceBeforeThePluginIsLoaded()
{
    m_plugin.reset(new LoadedPlugin);
    m_window.reset(new MainWindow(m_plugin.data(), m_settings.data()));
    m_window->showPage(PageId::Settings);
    QCOMPARE(m_window->findChildren<SettingsPage *>().size(), 1);
}

// Tests that a new page has the current language, services, situation and form.
void ShellTest::aPageConstructedLaterIsUpToDate()
{
    const QString language = HostCore::Languages::current();
    m_window->setLanguage(QLatin1String("de"));
    resizeTo(360);
    m_window->showPage(PageId::Services);
    QCOMPARE(m_window->pageOf(PageId::Services)->findChild<QLabel *>()->text(),
             QLatin1String("Dienste"));
    QVERIFY(part<QWidget>("Dashboard_Service_0")->isEnabled());
    m_window->showPage(PageId::Messages);
    QCOMPARE(m_window->pageOf(PageId::Messages)->layout()->contentsMargins().left(),
             Look::instance().px(8));
    m_window->setLanguage(language);
}

void ShellTest::nothingIsCutAtAnyWidth_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &code : HostCore::Languages::codes())
        QTest::newRow(qPrintable(code)) << code;
}

// Tests that no content is wider than the window. Inside a scroll area, wide content would cause a
// horizontal scroll bar; elsewhere, Qt would make the window wider.
void ShellTest::nothingIsCutAtAnyWidth()
{
    QFETCH(QString, language);
    QFont font = QApplication::font();
    font.setPixelSize(14); // the layout is designed for this font size
    QApplication::setFont(font);
    m_window->setLanguage(language);
    for (int width = 360; width <= 1400; width += 40) {
        resizeTo(width);
        QCOMPARE(m_window->width(), width);
        for (const PageId page : PAGES) {
            m_window->showPage(page);
            drainEvents();
            const QByteArray where =
                QByteArray::number(width) + ' ' + QByteArray::number(int(page));
            // A page that was hidden is laid out only after it is shown.
            QTRY_VERIFY2(m_window->centralWidget()->minimumSizeHint().width() <= width,
                         where.constData());
            for (const QScrollArea *area : m_window->pageOf(page)->findChildren<QScrollArea *>()) {
                QVERIFY2(!area->horizontalScrollBar()->isVisible(), where.constData());
                QTRY_VERIFY2(!area->isVisible() || area->widget()->minimumSizeHint().width() <=
                                                       area->viewport()->width(),
                             where.constData());
            }
        }
    }
}

void ShellTest::theSizesOfTheWindowAreBounded()
{
    QCOMPARE(m_window->minimumSize(), QSize(360, 560));
    const QSize screen = m_window->screen()->availableSize();
    LoadedPlugin none;
    const MainWindow window(&none, nullptr);
    QCOMPARE(window.size(), QSize(1120, 720).boundedTo(screen).expandedTo(QSize(360, 560)));
}

void ShellTest::thePlaceIsRememberedAlsoForAMaximizedWindow()
{
    m_window->showMaximized();
    m_window->close();
    LoadedPlugin none;
    const MainWindow window(&none, m_settings.data());
    QVERIFY(window.windowState() & Qt::WindowMaximized);
}

void ShellTest::theNavigationIsOneTabStopWithArrows()
{
    QPushButton *home = part<QPushButton>("Dashboard_NavHome");
    home->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(int(m_window->currentPage()), int(PageId::Codes));
    QCOMPARE(QApplication::focusWidget(), part<QPushButton>("Dashboard_NavCodes"));
    press(Qt::Key_Tab);
    const QWidget *focus = QApplication::focusWidget();
    const bool isTab = focus->objectName().startsWith(QLatin1String("Dashboard_Nav"));
    QVERIFY2(!isTab, qPrintable(focus->objectName()));
}

/// Tests that the first widget to get the focus is the button of the current page.
void ShellTest::theNavigationPrecedesTheDeviceLine()
{
    QWidget *device = part<QWidget>("Dashboard_DeviceLine");
    const QWidget *navigation = m_window->findChild<Navigation *>();
    QWidget *next = m_window.data();
    do
        next = next->nextInFocusChain();
    while (!navigation->isAncestorOf(next) || !(next->focusPolicy() & Qt::TabFocus));
    QCOMPARE(next->objectName(), QLatin1String("Dashboard_NavHome"));
    QVERIFY(device->focusPolicy() & Qt::TabFocus);
}

void ShellTest::theNavigationIsAListOfPageTabs()
{
    m_window->findChild<Navigation *>()->setUnread(2);
    QPushButton *messages = part<QPushButton>("Dashboard_NavMessages");
    QAccessibleInterface *tab = QAccessible::queryAccessibleInterface(messages);
    QCOMPARE(int(tab->role()), int(QAccessible::PageTab));
    QCOMPARE(tab->text(QAccessible::Name), QLatin1String("Messages"));
    QCOMPARE(tab->text(QAccessible::Description), QLatin1String("2 unread"));
    QVERIFY(!tab->state().selected);
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(int(m_window->currentPage()), int(PageId::Messages));
    QVERIFY(tab->state().selected);
}

void ShellTest::unreadMessagesAreCounted()
{
    Navigation *navigation = m_window->findChild<Navigation *>();
    Header *header = m_window->findChild<Header *>();
    navigation->setUnread(3);
    header->setUnread(3);
    QCOMPARE(part<QPushButton>("Dashboard_NavMessages")->accessibleDescription(),
             QLatin1String("3 unread"));
    QCOMPARE(part<QPushButton>("Dashboard_Bell")->toolTip(), QLatin1String("Messages, 3 unread"));
    navigation->setUnread(0);
    QCOMPARE(part<QPushButton>("Dashboard_NavMessages")->accessibleDescription(), QString());
}

void ShellTest::keysGoToThePages_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("page");
    QTest::newRow("1") << int(Qt::Key_1) << int(PageId::Home);
    QTest::newRow("2") << int(Qt::Key_2) << int(PageId::Codes);
    QTest::newRow("3") << int(Qt::Key_3) << int(PageId::Services);
    QTest::newRow("4") << int(Qt::Key_4) << int(PageId::Messages);
    QTest::newRow("comma") << int(Qt::Key_Comma) << int(PageId::Settings);
}

void ShellTest::keysGoToThePages()
{
    QFETCH(int, key);
    QFETCH(int, page);
    m_window->showPage(page == int(PageId::Home) ? PageId::Codes : PageId::Home);
    press(Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(int(m_window->currentPage()), page);
    QVERIFY(m_window->pageOf(PageId(page))->isVisible());
}

void ShellTest::theCodeFieldIsReachedFromEverywhere()
{
    m_window->showPage(PageId::Settings);
    press(Qt::Key_L, Qt::ControlModifier);
    QTRY_COMPARE(QApplication::focusWidget(), GeneralWindow(m_window->page()).commandEdit());
    QCOMPARE(int(m_window->currentPage()), int(PageId::Codes));
}

/// Tests that a field does not override the shortcut keys of the menu. Uses a field that accepts
/// Ctrl+E, because a line edit accepts this key only on X11.
void ShellTest::aFieldLeavesItsKeyToTheMenu()
{
    struct Field : QLineEdit {
        using QLineEdit::QLineEdit;
        bool event(QEvent *event) override
        {
            const bool isTaken = event->type() == QEvent::ShortcutOverride;
            event->setAccepted(isTaken);
            return isTaken || QLineEdit::event(event);
        }
    } field(m_window->centralWidget());
    for (const bool isOfTheMenu : {false, true}) {
        QKeyEvent key(QEvent::ShortcutOverride, isOfTheMenu ? Qt::Key_E : Qt::Key_K,
                      Qt::ControlModifier);
        key.ignore();
        QCoreApplication::sendEvent(&field, &key);
        QCOMPARE(key.isAccepted(), !isOfTheMenu);
    }
}

void ShellTest::controlFSearchesOnTheMessagesPageToo()
{
    m_window->showPage(PageId::Messages);
    QLineEdit *search = part<QLineEdit>("Dashboard_MessagesSearch");
    for (const PageId page : {PageId::Settings, PageId::Messages}) {
        m_window->showPage(page);
        part<QPushButton>("Dashboard_MessagesAll")->setFocus();
        QVERIFY(!search->hasFocus());
        press(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(search->hasFocus());
    }
}

void ShellTest::f6GoesThroughTheRegions()
{
    m_window->showPage(PageId::Settings);
    const QWidget *regions[] = {
        part<QWidget>("Dashboard_Header"), part<QWidget>("Dashboard_Navigation"),
        part<QWidget>("Dashboard_Banner"), m_window->pageOf(PageId::Settings)};
    part<QPushButton>("Dashboard_Bell")->setFocus();
    for (const int next : {1, 2, 3, 0}) {
        press(Qt::Key_F6);
        QVERIFY2(regions[next]->isAncestorOf(QApplication::focusWidget()),
                 QByteArray::number(next).constData());
    }
    for (const int previous : {3, 2, 1, 0}) {
        press(Qt::Key_F6, Qt::ShiftModifier);
        QVERIFY2(regions[previous]->isAncestorOf(QApplication::focusWidget()),
                 QByteArray::number(previous).constData());
    }
}

void ShellTest::f6LeavesTheStripInsideThePage()
{
    m_window->showPage(PageId::Codes);
    QTRY_VERIFY(GeneralWindow(m_window->page()).isComplete());
    part<QPushButton>("Dashboard_HistoryButton")->setFocus();
    press(Qt::Key_F6);
    const QWidget *strip = part<QWidget>("Dashboard_StateStrip");
    const QWidget *focus = QApplication::focusWidget();
    QVERIFY(m_window->pageOf(PageId::Codes)->isAncestorOf(focus));
    QVERIFY(!strip->isAncestorOf(focus));
    press(Qt::Key_F6, Qt::ShiftModifier);
    QVERIFY(strip->isAncestorOf(QApplication::focusWidget()));
}

void ShellTest::f10AndAltAloneOpenTheMenu()
{
    QMenu *menu = m_window->appMenu();
    press(Qt::Key_F10);
    QVERIFY(menu->isVisible());
    menu->close();
    QTest::keyPress(m_window.data(), Qt::Key_Alt);
    QVERIFY(!menu->isVisible());
    QTest::keyRelease(m_window.data(), Qt::Key_Alt);
    QVERIFY(menu->isVisible());
    menu->close();
}

void ShellTest::altWithAnotherKeyDoesNotOpenTheMenu()
{
    QTest::keyPress(m_window.data(), Qt::Key_Alt);
    QTest::keyClick(m_window.data(), Qt::Key_X, Qt::AltModifier);
    QTest::keyRelease(m_window.data(), Qt::Key_Alt);
    QVERIFY(!m_window->appMenu()->isVisible());
}

void ShellTest::theHiddenMenuBarHasTheSameActions()
{
    QVERIFY(!m_window->menuBar()->isVisible());
    QList<QAction *> inBar;
    for (const QAction *title : m_window->menuBar()->actions()) {
        inBar << title->menu()->actions();
        inBar << title->menu()->menuAction();
    }
    for (QAction *action : m_window->appMenu()->actions()) {
        QVERIFY2(inBar.contains(action) || action->isSeparator(), qPrintable(action->text()));
        if (action->isVisible() && action->isEnabled() && !action->isSeparator())
            QVERIFY2(action->text().contains(QLatin1Char('&')), qPrintable(action->text()));
    }
}

void ShellTest::theNumberOfTheSimIsShownForAMoment()
{
    const QLabel *sim = part<QLabel>("Dashboard_Sim");
    const QString number = m_window->device().status().imsi;
    QVERIFY(!number.isEmpty());
    QVERIFY(!sim->text().contains(number));
    QVERIFY(sim->text().contains(number.right(4)));
    press(Qt::Key_I, Qt::ControlModifier);
    QVERIFY(sim->text().contains(number));
    QTimer *timer = part<QTimer>("Dashboard_NumberTimer");
    QCOMPARE(timer->interval(), 10000);
    timer->start(1);
    QTRY_VERIFY(!sim->text().contains(number));
    press(Qt::Key_I, Qt::ControlModifier);
    press(Qt::Key_I, Qt::ControlModifier);
    QVERIFY(!sim->text().contains(number));
}

void ShellTest::theDemonstrationCannotBeClosed()
{
    const Banners *banners = m_window->findChild<Banners *>();
    QVERIFY(banners->isVisible());
    QCOMPARE(banners->shown(), int(Banners::Demonstration));
    QVERIFY(!part<QPushButton>("Dashboard_BannerClose")->isVisible());
    QVERIFY(!part<QPushButton>("Dashboard_BannerAction")->icon().isNull());
    QVERIFY(m_window->windowTitle().contains(QLatin1String("Demonstration")));
    QVERIFY(part<Chip>("Dashboard_PaidType")->isVisible());
    QCOMPARE(part<Chip>("Dashboard_PaidType")->text(), QLatin1String("Demonstration"));
}

void ShellTest::aProblemIsShownInADemonstration()
{
    const Banners *banners = m_window->findChild<Banners *>();
    m_window->showProblem(QLatin1String("The disk is full."));
    QCOMPARE(banners->shown(), int(Banners::Problem));
    QVERIFY(m_window->windowTitle().contains(QLatin1String("Demonstration")));
    QVERIFY(part<Chip>("Dashboard_PaidType")->isVisible());
    part<QPushButton>("Dashboard_BannerClose")->click();
    QCOMPARE(banners->shown(), int(Banners::Demonstration));
}

void ShellTest::oneBannerIsShownAtATime()
{
    Banners banners;
    banners.setBanner(Banners::Demonstration,
                      {QLatin1String("d"), QString(), QString(), QString()});
    QCOMPARE(banners.shown(), int(Banners::Demonstration));
    banners.setBanner(Banners::Restore, {QLatin1String("r"), QString(), QString(), QString()});
    QCOMPARE(banners.shown(), int(Banners::Restore));
    banners.setBanner(Banners::Problem, {QLatin1String("p"), QString(), QString(), QString()});
    QCOMPARE(banners.shown(), int(Banners::Problem));
    banners.setBanner(Banners::Saved, {QLatin1String("s"), QString(), QString(), QString()});
    QCOMPARE(banners.shown(), int(Banners::Saved));
    banners.setBanner(Banners::Saved, Banner());
    QCOMPARE(banners.shown(), int(Banners::Problem));
    const QLabel *title = banners.findChild<QLabel *>(QLatin1String("Dashboard_BannerTitle"));
    QCOMPARE(title->text(), QLatin1String("p"));
}

void ShellTest::theWindowIsDimmedUntilTheLastDialogIsClosed()
{
    const Scrim *scrim = m_window->findChild<Scrim *>();
    QMessageBox first(m_window.data());
    QMessageBox second(&first);
    first.open();
    QVERIFY(scrim->isVisible());
    second.open();
    second.close();
    QVERIFY(scrim->isVisible());
    first.close();
    QTRY_VERIFY(!scrim->isVisible());
    QMessageBox beside(m_window.data());
    beside.setModal(false);
    beside.show();
    QVERIFY(!scrim->isVisible());
}

void ShellTest::theWindowIsDimmedBehindAFrame()
{
    const Scrim *scrim = m_window->findChild<Scrim *>();
    QVERIFY(!scrim->isVisible());
    m_window->openFrame(PAID_TYPE_GENERAL);
    QVERIFY(scrim->isVisible());
    QCOMPARE(scrim->geometry(), m_window->centralWidget()->rect());
    const QWidget *frame = GeneralWindow::framed().commandEdit()->window();
    QCOMPARE(frame->windowHandle()->transientParent(), m_window->windowHandle());
    GeneralWindow::framed().commandEdit()->window()->close();
    QTRY_VERIFY(!scrim->isVisible());
}

void ShellTest::theFormWaitsForTheFrame()
{
    resizeTo(70 * Look::instance().em());
    m_window->openFrame(PAID_TYPE_GENERAL);
    resizeTo(400);
    QCOMPARE(int(m_window->form()), int(Form::Wide));
    GeneralWindow::framed().commandEdit()->window()->close();
    QTRY_COMPARE(int(m_window->form()), int(Form::Narrow));
}

void ShellTest::theMessageTellsTheStrengthInWords()
{
    const QLabel *word = part<QLabel>("Dashboard_Signal");
    const QWidget *bars = part<QWidget>("Dashboard_SignalBars");
    QVERIFY(!word->text().contains(QLatin1Char('%')));
    QVERIFY(word->text().contains(QLatin1String("signal")));
    QVERIFY(word->toolTip().contains(QLatin1Char('%')));
    QVERIFY(bars->accessibleName().startsWith(word->text() + QLatin1String(", ")));
    QCOMPARE(int(QAccessible::queryAccessibleInterface(const_cast<QWidget *>(bars))->role()),
             int(QAccessible::Graphic));
}

USSD_TEST_MAIN(ShellTest)
#include "shell_test.moc"
