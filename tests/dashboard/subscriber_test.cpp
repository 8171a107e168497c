#include <QDateTime>
#include <QRegularExpression>

#include "base/DashboardText.h"
#include "look/Controls.h"
#include "pages/StateStrip.h"
#include "SimTest.h"
#include "tksv_device.h"
#include "window/HomeSetup.h"

using namespace Dashboard;

namespace
{

const char IMSI[] = "001010000000001";
const char BALANCE[] = "[*100#]\nReply=Your balance is 12.50 EUR.";
const qint64 HOUR = 3600;
const char BALANCE_AND_MENU[] = "[*100#]\nReply=Your balance is 12.50 EUR.\n"
                                "[*123#]\nReply=1 One\\n2 Two\n[*123#/1]\nReply=One";

TKSV_ModesInfo modes()
{
    TKSV_ModesInfo info = {};
    TKSV_Device_GetModes(&info);
    return info;
}

} // namespace

/**
 * Tests what the complete dashboard does for a subscriber on a simulated network: the daily balance
 * and the help for modems on 4G.
 */
class SubscriberTest : public SimTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theBalanceIsNotAskedUnlessSwitchedOn();
    void theBalanceIsAskedOnceADay();
    void aRestartDoesNotAskAgain();
    void theBalanceIsNotAskedAbroadOrWhileBlocked_data();
    void theBalanceIsNotAskedAbroadOrWhileBlocked();
    void theBalanceIsNotAskedWhileTheUserTypes();
    void aPackBoughtMarksTheBalance();
    void aCodeWithoutAReplyMarksTheBalance();
    void theFocusStaysWhileTheBalanceIsAsked_data();
    void theFocusStaysWhileTheBalanceIsAsked();
    void servicesThatAreNotOfferedAreNotListed();
    void olderNetworksAreAllowedAndTakenBack();

private:
    void open();
    void switchOn();
    int asked() const;
    bool look(int hours);
    QString ask(const char *code);
    QPushButton *shownButton(const char *name) const;

    QScopedPointer<DashboardSettings> m_settings;
    QDateTime m_time;
};

void SubscriberTest::setUp()
{
    SimTest::setUp();
    QFile::remove(DashboardSettings().file());
    m_time = QDateTime::currentDateTime();
}

void SubscriberTest::tearDown()
{
    SimTest::tearDown();
    m_settings.reset();
}

/// Opens the dashboard, or opens it again with the stored settings.
void SubscriberTest::open()
{
    closeDashboard();
    makeLibrary();
    m_settings.reset(new DashboardSettings);
    m_settings->setFirstRunDone(true);
    openDashboard(m_settings.data());
    drainEvents();
}

/// Enables the daily balance query, as a user would.
void SubscriberTest::switchOn()
{
    window().showPage(PageId::Settings);
    window().findChild<Switch *>(QLatin1String("Dashboard_SettingsAskDaily"))->click();
    window().showPage(PageId::Codes);
    QVERIFY(m_settings->asksDaily());
    drainEvents();
}

/// Returns the number of balance codes in the transcript.
int SubscriberTest::asked() const
{
    return page().transcript().count(QLatin1String("*100#"));
}

/// Advances the clock by this number of hours and makes the dashboard check the time. Returns true
/// if the dashboard has sent a code.
bool SubscriberTest::look(int hours)
{
    m_time = m_time.addSecs(hours * HOUR);
    const int before = asked();
    DailyAsking &daily = window().findChild<HomeSetup *>()->daily();
    daily.setClock([this] { return m_time; });
    daily.look();
    drainEvents();
    return QTest::qWaitFor([this] { return !page().isWaiting(); }) && asked() > before;
}

QString SubscriberTest::ask(const char *code)
{
    const bool isAnswered =
        page().send(QLatin1String(code)) && QTest::qWaitFor([this] { return !page().isWaiting(); });
    return isAnswered ? page().lastReceived() : QLatin1String("(not sent, or still waiting)");
}

QPushButton *SubscriberTest::shownButton(const char *name) const
{
    QPushButton *found = button(name);
    return found && found->isVisible() ? found : nullptr;
}

/* ---- the daily balance ------------------------------------------------------------------- */

void SubscriberTest::theBalanceIsNotAskedUnlessSwitchedOn()
{
    useNetwork(IMSI, "", BALANCE);
    open();
    QVERIFY(!m_settings->asksDaily());
    QVERIFY(!look(0));
    QVERIFY(!look(48));
    QCOMPARE(asked(), 0);
}

void SubscriberTest::theBalanceIsAskedOnceADay()
{
    useNetwork(IMSI, "", BALANCE);
    open();
    switchOn();
    QTRY_COMPARE(page().lastReceived(), QLatin1String("Your balance is 12.50 EUR."));
    QCOMPARE(asked(), 1);
    QVERIFY(!look(0));
    QVERIFY(!look(23));
    QVERIFY(look(2));
    QVERIFY(!look(1));
    QCOMPARE(asked(), 2);
}

void SubscriberTest::aRestartDoesNotAskAgain()
{
    useNetwork(IMSI, "", BALANCE);
    open();
    switchOn();
    QTRY_COMPARE(asked(), 1);
    open();
    QVERIFY(m_settings->asksDaily());
    QVERIFY(!look(0));
    QVERIFY(!look(23));
    QCOMPARE(asked(), 0);
    QVERIFY(look(2));
}

void SubscriberTest::theBalanceIsNotAskedAbroadOrWhileBlocked_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::newRow("roaming") << QByteArray("Roaming=yes");
    QTest::newRow("searching") << QByteArray("State=searching");
    QTest::newRow("switched off") << QByteArray("State=disabled");
    QTest::newRow("locked") << QByteArray("State=sim-locked");
    QTest::newRow("no SIM") << QByteArray("State=sim-missing");
}

void SubscriberTest::theBalanceIsNotAskedAbroadOrWhileBlocked()
{
    QFETCH(QByteArray, keys);
    useNetwork(IMSI, keys.constData(), BALANCE);
    open();
    switchOn();
    QVERIFY(!look(0));
    QVERIFY(!look(48));
    QCOMPARE(asked(), 0);
    useNetwork(IMSI, "", BALANCE);
    QTRY_COMPARE(asked(), 1);
}

/// Tests that the automatic balance query does not replace what the user is typing, and does not
/// end an open menu.
void SubscriberTest::theBalanceIsNotAskedWhileTheUserTypes()
{
    useNetwork(IMSI, "", BALANCE_AND_MENU);
    open();
    page().commandEdit()->setText(QLatin1String("*12"));
    switchOn();
    QVERIFY(!look(0));
    page().commandEdit()->clear();
    QCOMPARE(ask("*123#"), QLatin1String("1 One\n2 Two"));
    QVERIFY(!look(0));
    QCOMPARE(ask("1"), QLatin1String("One"));
    look(0); // a change of the device may already have caused the query
    QCOMPARE(asked(), 1);
}

/* ---- the balance on Home ----------------------------------------------------------------- */

/// Tests that the Home page does not show the amount in the reply to another code, and does not
/// query the balance automatically.
void SubscriberTest::aPackBoughtMarksTheBalance()
{
    useNetwork(IMSI, "Balance=12.50\nCurrency=EUR",
               "[*100#]\nReply=Your balance is {balance}.\n"
               "[*124*1#]\nReply=Booked. Your balance is {balance}.\nCredit=-10.00");
    open();
    ask("*100#");
    QCOMPARE(ask("*124*1#"), QLatin1String("Booked. Your balance is 2.50 EUR."));
    window().showPage(PageId::Home);
    drainEvents();
    const QLabel *amount = window().findChild<QLabel *>(QLatin1String("Dashboard_BalanceAmount"));
    const QWidget *note = window().findChild<QWidget *>(QLatin1String("Dashboard_BalanceOutdated"));
    QTRY_VERIFY(note->isVisible());
    QVERIFY(amount->text().contains(QLatin1String("12.50")));
    shownButton("Dashboard_AskButton")->click();
    QTRY_VERIFY(amount->text().contains(QLatin1String("2.50")) &&
                !amount->text().contains(QLatin1String("12.50")));
    QVERIFY(!note->isVisible());
    QCOMPARE(asked(), 2);
}

/// Tests that a code that timed out marks the balance, because the network may have executed it. A
/// refused code does not.
void SubscriberTest::aCodeWithoutAReplyMarksTheBalance()
{
    useNetwork(IMSI, "",
               "[*100#]\nReply=Your balance is 12.50 EUR.\n[*124*1#]\nOutcome=silence\n"
               "[*124*2#]\nOutcome=refuse");
    open();
    ask("*100#");
    ask("*124*2#");
    AccountStore &store = window().findChild<HomeSetup *>()->store();
    drainEvents();
    QVERIFY(!store.newestBalance().isNull());
    QVERIFY(!store.isOutdated());
    ask("*124*1#");
    QTRY_VERIFY(store.isOutdated());
}

void SubscriberTest::theFocusStaysWhileTheBalanceIsAsked_data()
{
    QTest::addColumn<QString>("button");
    for (const char *name : {"Dashboard_AskButton", "Dashboard_TopUpButton"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

/// Tests that a button that is disabled during the query gets the focus back.
void SubscriberTest::theFocusStaysWhileTheBalanceIsAsked()
{
    QFETCH(QString, button);
    useNetwork(IMSI, "", BALANCE);
    open();
    ask("*100#");
    window().showPage(PageId::Home);
    drainEvents();
    QPushButton *focused = shownButton(button.toLatin1().constData());
    QVERIFY(focused);
    focused->setFocus();
    QTest::keyClick(&window(), Qt::Key_F5);
    QTRY_VERIFY(page().isWaiting());
    drainEvents();
    QCOMPARE(window().focusWidget(), shownButton("Dashboard_AskButton"));
    QTRY_VERIFY(!page().isWaiting());
    QTRY_COMPARE(window().focusWidget(), focused);
    QCOMPARE(asked(), 2);
}

void SubscriberTest::servicesThatAreNotOfferedAreNotListed()
{
    QVERIFY(configure("imsi=\"00102\"", "/Commonpaid", ""));
    useNetwork(IMSI, "", BALANCE);
    openDashboard();
    window().showPage(PageId::Services);
    const QWidget *none = window().findChild<QWidget *>(QLatin1String("Dashboard_ServicesNone"));
    const auto cards = [this] {
        return window()
            .findChildren<QWidget *>(QRegularExpression(QLatin1String("^Dashboard_Service_")))
            .size();
    };
    QVERIFY(cards() > 0);
    QVERIFY(!none->isVisible());
    useNetwork("001020000000001", "", BALANCE);
    QTRY_COMPARE(cards(), 0);
    QVERIFY(none->isVisible());
}

/* ---- modems on 4G ------------------------------------------------------------------------ */

void SubscriberTest::olderNetworksAreAllowedAndTakenBack()
{
    useNetwork(IMSI, "Modes=4G", BALANCE);
    open();
    QVERIFY(!ask("*100#").contains(QLatin1String("12.50")));
    const StateStrip *strip = window().findChild<StateStrip *>();
    QTRY_COMPARE(strip->text(), dashboardText("FAILURE_ON_LTE"));
    QTRY_VERIFY(shownButton("Dashboard_AllowOlder"));
    QCOMPARE(modes().current.allowed, unsigned(TKSV_MODE_4G)); // not changed yet
    shownButton("Dashboard_AllowOlder")->click();
    QTRY_COMPARE(modes().current.allowed, unsigned(TKSV_MODE_2G | TKSV_MODE_3G | TKSV_MODE_4G));
    QCOMPARE(ask("*100#"), QLatin1String("Your balance is 12.50 EUR."));

    QTRY_VERIFY(shownButton("Dashboard_Only4G"));
    QVERIFY(!shownButton("Dashboard_AllowOlder"));
    shownButton("Dashboard_Only4G")->click();
    QTRY_COMPARE(modes().current.allowed, unsigned(TKSV_MODE_4G));
    QTRY_VERIFY(!shownButton("Dashboard_Only4G"));
    ask("*100#");
    QTRY_COMPARE(strip->text(), dashboardText("FAILURE_ON_LTE"));
}

USSD_TEST_MAIN(SubscriberTest)
#include "subscriber_test.moc"
