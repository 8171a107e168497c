#include <QAction>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "account/Favourites.h"
#include "base/DashboardText.h"
#include "device/DashboardSettings.h"
#include "device/Scenarios.h"
#include "ExtendDialog.h"
#include "HostState.h"
#include "Languages.h"
#include "pages/FavouriteGrid.h"
#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"
#include "window/AppController.h"
#include "window/Banners.h"
#include "window/DeviceMenu.h"
#include "window/MainWindow.h"

using namespace Dashboard;

namespace
{

QString textOf(const QMessageBox *box)
{
    const QPlainTextEdit *view = box->findChild<QPlainTextEdit *>();
    return view ? view->toPlainText() : box->text();
}

} // namespace

class MainWindowTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theDeviceAndTheSourceAreShown();
    void theGeneralWindowIsInThePage();
    void thePageFollowsTheWindowsSize();
    void thePageCanBeHiddenAndShownAgain();
    void aCommandOfThePageIsAnswered();
    void theNumbersOfTheOperatorsCodesAreHidden();
    void aChainOfTheFirstPageIsRun();
    void theFrameOpensOverTheWindow();
    void theActionsWaitForThePlugin();
    void aMissingPluginIsSaidInThePage();
    void aChosenLanguageReachesEverything();
    void aChosenLanguageIsRemembered();
    void aLanguageWithoutItsFileIsSaid();
    void arabicTurnsTheWindow();
    void anotherNetworkIsChosenFromTheMenu();
    void aBadScenarioIsSaidInWordsAndTheOldOneStays();
    void everyControlHasAName();

private:
    QAction *networkAction(const QString &text) const;
    QAction *action(const char *name) const
    {
        return m_window->findChild<QAction *>(QLatin1String(name));
    }
    QString source() const
    {
        return m_window->findChild<QWidget *>(QLatin1String("Dashboard_DeviceLine"))->toolTip();
    }
    QPushButton *button(const char *name) const;
    GeneralWindow page() const { return GeneralWindow(m_window->page()); }

    QScopedPointer<DashboardSettings> m_settings;
    QScopedPointer<LoadedPlugin> m_plugin;
    QScopedPointer<MainWindow> m_window;
};

void MainWindowTest::setUp()
{
    QFile::remove(DashboardSettings().file());
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QVERIFY(Scenarios::use(QString()).isEmpty());
    m_settings.reset(new DashboardSettings);
    m_settings->setFirstRunDone(true);
    m_plugin.reset(new LoadedPlugin);
    m_window.reset(new MainWindow(m_plugin.data(), m_settings.data()));
    m_window->showPage(PageId::Codes);
    m_window->show();
    const PluginFailure failure = m_window->loadPlugin();
    QVERIFY2(m_plugin->isUsable(), qPrintable(failure.text()));
}

void MainWindowTest::tearDown()
{
    m_plugin.reset();
    m_window.reset();
    m_settings.reset();
    HostCore::HostState::setShuttingDown(false);
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
}

QAction *MainWindowTest::networkAction(const QString &text) const
{
    m_window->deviceMenu()->fill();
    for (const QAction *menu : m_window->menuBar()->actions()) {
        for (QAction *action : menu->menu()->actions()) {
            if (action->text() == text)
                return action;
        }
    }
    return nullptr;
}

QPushButton *MainWindowTest::button(const char *name) const
{
    return m_window->findChild<QPushButton *>(QLatin1String(name));
}

void MainWindowTest::theDeviceAndTheSourceAreShown()
{
    QCOMPARE(m_window->findChild<QLabel *>(QLatin1String("Dashboard_Operator"))->text(),
             QLatin1String("Test & Mobile"));
    QCOMPARE(source(), QLatin1String("Demonstration: invented network (quick.scenario)"));
}

void MainWindowTest::theGeneralWindowIsInThePage()
{
    QVERIFY(page().isComplete());
    QVERIFY(page().commandEdit()->isVisible());
    QVERIFY(button("Dashboard_NavCodes")->isChecked());
}

void MainWindowTest::thePageFollowsTheWindowsSize()
{
    const QWidget *dialog = page().commandEdit()->parentWidget();
    while (dialog->parentWidget() != m_window->page())
        dialog = dialog->parentWidget();
    for (const QSize &size : {QSize(1100, 900), QSize(950, 750)}) {
        m_window->resize(size);
        // The outer spacers of the plug-in's page are clipped.
        QTRY_COMPARE(dialog->geometry(), m_window->page()->rect().marginsAdded({46, 4, 46, 4}));
    }
    m_window->resize(300, 200); // smaller than the page, so a scroll area is needed
    QTRY_VERIFY(dialog->height() >= dialog->minimumSizeHint().height());
}

void MainWindowTest::thePageCanBeHiddenAndShownAgain()
{
    QTest::mouseClick(button("Dashboard_NavHome"), Qt::LeftButton);
    QVERIFY(!page().commandEdit()->isVisible());
    QTest::mouseClick(button("Dashboard_NavCodes"), Qt::LeftButton);
    QVERIFY(page().commandEdit()->isVisible());
}

void MainWindowTest::aCommandOfThePageIsAnswered()
{
    QVERIFY(page().send(QLatin1String("*100#")));
    QVERIFY(page().isWaiting());
    QVERIFY(!page().send(QLatin1String("*100#")));
    QTRY_VERIFY(!page().isWaiting());
    QCOMPARE(page().lastReceived(), QLatin1String("Your balance is 7.00 EUR."));
}

void MainWindowTest::theNumbersOfTheOperatorsCodesAreHidden()
{
    const QStringList templates = m_window->controller().monitor().templates();
    QVERIFY(templates.contains(QLatin1String("*140*%s#"))); // from a profile
    QVERIFY(templates.contains(QLatin1String("*101*%s#"))); // from the account window
    QVERIFY2(templates.contains(QLatin1String("*106*%s#")), // from a service
             qPrintable(templates.join(QLatin1Char(' '))));
    QVERIFY(!templates.contains(QLatin1String("WEATHER %s"))); // a short message, not a code
    QVERIFY(templates.contains(QLatin1String("*100#")));
}

void MainWindowTest::aChainOfTheFirstPageIsRun()
{
    QVERIFY(QDir().mkpath(QFileInfo(Favourites::userFile()).path()));
    QFile file(Favourites::userFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "{\"version\":1,\"networks\":{\"demonstration\":{\"chains\":[{\"name\":\"Way\",\"code\":"
        "\"*123#\",\"steps\":[{\"key\":\"2\",\"text\":\"Second\"}]}]}}}");
    file.close();
    m_window->showPage(PageId::Home);
    QList<FavouriteButton *> chains;
    QTRY_VERIFY(!m_window->findChildren<FavouriteButton *>().isEmpty());
    for (FavouriteButton *button : m_window->findChildren<FavouriteButton *>()) {
        if (button->accessibleName() == QLatin1String("Way"))
            chains << button;
    }
    QCOMPARE(chains.size(), 1);
    chains.first()->click();
    QVERIFY(button("Dashboard_NavCodes")->isChecked());
    const CommandMonitor &monitor = m_window->controller().monitor();
    QTRY_VERIFY(monitor.state().menuText.contains(QLatin1String("Deeper")));
    QVERIFY(page().transcript().contains(QLatin1String("Sent: 2")));
    QVERIFY(file.remove());
}

void MainWindowTest::theFrameOpensOverTheWindow()
{
    action("Dashboard_ActionGeneral")->trigger();
    const GeneralWindow framed = GeneralWindow::framed();
    QVERIFY(framed.isComplete());
    const QWidget *frame = framed.commandEdit()->window();
    QCOMPARE(frame->parentWidget(), m_window.data());
    QVERIFY(frame != m_window.data());
    QVERIFY(framed.send(QLatin1String("*198#")));
    QTRY_VERIFY(!framed.isWaiting());
    QVERIFY(!framed.lastReceived().isEmpty());
    QVERIFY(framed.closeButton());
    QTest::mouseClick(framed.closeButton(), Qt::LeftButton);
    QTRY_VERIFY(!GeneralWindow::framed().isComplete());
}

void MainWindowTest::theActionsWaitForThePlugin()
{
    LoadedPlugin none;
    const MainWindow window(&none, nullptr);
    const QAction *frame = window.findChild<QAction *>(QLatin1String("Dashboard_ActionGeneral"));
    QVERIFY(!frame->isVisible());
    QVERIFY(action("Dashboard_ActionGeneral")->isVisible());
}

void MainWindowTest::aMissingPluginIsSaidInThePage()
{
    qputenv("USSD_PLUGIN_LIBRARY_PATH", folder().toLocal8Bit());
    LoadedPlugin none;
    MainWindow window(&none, nullptr);
    window.showPage(PageId::Codes);
    window.show();
    QCOMPARE(int(window.loadPlugin().step), int(PluginFailure::FileMissing));
    const QLabel *text = window.page()->findChild<QLabel *>();
    QVERIFY(text->isVisible());
    QVERIFY(text->text().contains(folder()));
    window.openFrame(0);
}

void MainWindowTest::aChosenLanguageReachesEverything()
{
    const QString send = page().sendButton()->text();
    QAction *german = networkAction(QLatin1String("Deutsch"));
    QVERIFY(german);
    german->trigger();
    QCOMPARE(m_window->windowTitle(), QString::fromUtf8("Vorführung – USSD-Dashboard"));
    QVERIFY(page().sendButton()->text() != send);
    QVERIFY(action("Dashboard_ActionGeneral")->text().contains(QLatin1String("Fenster")));
    QCOMPARE(button("Dashboard_NavServices")->text(), QLatin1String("Dienste"));
    QVERIFY(networkAction(dashboardText("NETWORK_DEFAULT")));
}

void MainWindowTest::aChosenLanguageIsRemembered()
{
    m_window->setLanguage(QLatin1String("fr"));
    m_window->setLanguage(QLatin1String("xx"));
    QCOMPARE(m_settings->language(), QLatin1String("fr"));
    QCOMPARE(HostCore::Languages::current(), QLatin1String("fr"));
}

void MainWindowTest::aLanguageWithoutItsFileIsSaid()
{
    QAction *german = networkAction(QLatin1String("Deutsch"));
    QVERIFY(german);
    german->setData(QLatin1String("xx")); // a language without a language file
    german->trigger();
    const Banners *banners = m_window->findChild<Banners *>();
    QCOMPARE(banners->banner(Banners::Problem).text,
             dashboardText("LANGUAGE_MISSING").arg(HostCore::Languages::file(QLatin1String("xx"))));
    QVERIFY(networkAction(QLatin1String("English"))->isChecked());
}

void MainWindowTest::arabicTurnsTheWindow()
{
    const QWidget *first = m_window->findChild<QWidget *>(QLatin1String("Dashboard_Operator"));
    const QWidget *second = button("Dashboard_Menu");
    QTRY_VERIFY(first->x() < second->x());
    m_window->setLanguage(QLatin1String("ar"));
    QTRY_VERIFY(first->x() > second->x());
}

void MainWindowTest::anotherNetworkIsChosenFromTheMenu()
{
    QVERIFY(networkAction(dashboardText("NETWORK_AUTOMATIC"))->isChecked());
    QAction *postpaid = networkAction(QLatin1String("Demonstration: postpaid"));
    QVERIFY(postpaid);
    postpaid->trigger();
    QTRY_VERIFY(source().contains(QLatin1String("postpaid.scenario")));
    QVERIFY(m_settings->device().word().startsWith(QLatin1String("simulated:/")));
    QVERIFY(m_settings->device().name.endsWith(QLatin1String("/postpaid.scenario")));
    QVERIFY(networkAction(QLatin1String("Demonstration: postpaid"))->isChecked());
}

void MainWindowTest::aBadScenarioIsSaidInWordsAndTheOldOneStays()
{
    const QString file = writeFile(QLatin1String("bad.scenario"), "[Network]\nOperator=\n");
    QString boxText;
    QTimer::singleShot(0, this, [&] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        boxText = textOf(box);
        QTest::keyClick(box, Qt::Key_Escape);
    });
    QVERIFY(!m_window->useScenario(file));
    QVERIFY2(boxText.contains(QLatin1String("bad.scenario:")), qPrintable(boxText));
    QVERIFY(networkAction(dashboardText("NETWORK_AUTOMATIC"))->isChecked());
    theDeviceAndTheSourceAreShown();
    QVERIFY(m_settings->device() == DeviceChoice::automatic());
}

void MainWindowTest::everyControlHasAName()
{
    for (const QAbstractButton *button : m_window->findChildren<QAbstractButton *>()) {
        if (button->objectName().startsWith(QLatin1String("Dashboard_")) && button->isVisible())
            QVERIFY2(!button->accessibleName().isEmpty() || !button->text().isEmpty(),
                     qPrintable(button->objectName()));
    }
    const QLabel *name = m_window->findChild<QLabel *>(QLatin1String("Dashboard_Operator"));
    QCOMPARE(name->accessibleName(), QLatin1String("Operator: Test & Mobile"));
}

USSD_TEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
