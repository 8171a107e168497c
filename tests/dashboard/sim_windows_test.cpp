#include <QSignalSpy>

#include "IUSSD.h"
#include "sim/SimWindows.h"
#include "SimTest.h"

using namespace Dashboard;

namespace
{

/** A USSD service that supports only one SIM card. */
class Service : public IUSSD
{
public:
    bool isMatching = true;
    int flags = 0;

    int GetPrePostInfo(bool &, bool &, int &, bool) override { return 0; }
    int DoPrePostPaidModal(PAID_TYPE) override { return 0; }
    int ShowPrePostPaidWindow(QWidget *, QRect &, PAID_TYPE) override { return 0; }
    bool IsImsiDynamicMatch() override { return isMatching; }
    bool CheckImsiIsValid(const QString &imsi, int &out) override
    {
        const bool known = imsi == QLatin1String("00101");
        out = known ? flags : 0;
        return known;
    }
};

const char ABSENT_FOR_A_MOMENT[] = "\n[*100#]\nReply=1\n[Event away]\nAfter=100\n"
                                   "DeviceEvent=6016\nAway=300\n";

} // namespace

/** Tests which windows are offered for a SIM card, and what happens when the SIM card changes. */
class SimWindowsTest : public SimTest
{
    Q_OBJECT
private slots:
    void theSetOfWindows_data();
    void theSetOfWindows();

    void aPrepaidSimHasItsWindows();
    void aPostpaidSimHasItsWindows();
    void anUnknownSimHasTheWindowsForAll();
    void withoutASimThereAreTheWindowsForAll();
    void aSimWithoutWindowsIsSaidInThePage();
    void withoutTheMatchAllWindowsAreOffered();
    void aSimWithoutTheGeneralWindowEmptiesThePage();

    void anotherSimIsOfferedItsWindowsAtOnce();
    void anotherSimClosesTheFrames_data();
    void anotherSimClosesTheFrames();
    void anotherSimWithoutTheMatchClosesNothing();
    void theSameSimClosesNothing();
    void aDeviceThatWasAwayClosesNothing();
    void aSimThatIsRemovedIsNoticed();
    void eachActionOpensItsWindow_data();
    void eachActionOpensItsWindow();

private:
    void openFrame(const char *actionName);
    QString simText();
};

void SimWindowsTest::theSetOfWindows_data()
{
    QTest::addColumn<bool>("isMatching");
    QTest::addColumn<QString>("imsi");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("windows");
    const QString known = QLatin1String("00101");
    QTest::newRow("prepaid") << true << known << 1 << 1;
    QTest::newRow("postpaid") << true << known << 2 << 2;
    QTest::newRow("common") << true << known << 4 << 4;
    QTest::newRow("advanced") << true << known << 8 << 8;
    QTest::newRow("all") << true << known << 15 << 15;
    QTest::newRow("none") << true << known << 0 << 0;
    QTest::newRow("unknown SIM") << true << QString::fromLatin1("00102") << 1 << 12;
    QTest::newRow("no SIM") << true << QString() << 1 << 12;
    QTest::newRow("not in use") << false << known << 1 << 15;
}

void SimWindowsTest::theSetOfWindows()
{
    QFETCH(bool, isMatching);
    QFETCH(QString, imsi);
    QFETCH(int, flags);
    QFETCH(int, windows);
    Service service;
    service.isMatching = isMatching;
    service.flags = flags;
    QCOMPARE(windowsForSim(&service, imsi), windows);
}

void SimWindowsTest::aPrepaidSimHasItsWindows()
{
    openDashboard();
    QCOMPARE(offered(), QLatin1String("general framed prepaid services"));
    QVERIFY(page().commandEdit()->isVisible());
}

void SimWindowsTest::aPostpaidSimHasItsWindows()
{
    useNetwork("001020000000001");
    openDashboard();
    QCOMPARE(offered(), QLatin1String("general framed postpaid services"));
}

void SimWindowsTest::anUnknownSimHasTheWindowsForAll()
{
    useNetwork("999990000000001");
    openDashboard();
    QCOMPARE(offered(), QLatin1String("general framed services"));
}

void SimWindowsTest::withoutASimThereAreTheWindowsForAll()
{
    useNetwork("001010000000007", "State=sim-missing");
    openDashboard();
    QCOMPARE(offered(), QLatin1String("general framed services"));
}

void SimWindowsTest::aSimWithoutWindowsIsSaidInThePage()
{
    QVERIFY(configure("<autoUSSD", "Prepaid/Commonpaid/Advanced", ""));
    openDashboard();
    QCOMPARE(offered(), QString());
    QVERIFY(!page().isComplete());
    const QLabel *text = window().page()->findChild<QLabel *>();
    QVERIFY(text->isVisible());
    QVERIFY2(text->text().contains(QLatin1String("No USSD window")), qPrintable(text->text()));
    window().setLanguage(QLatin1String("de"));
    QVERIFY2(text->text().contains(QLatin1String("kein USSD")), qPrintable(text->text()));
}

void SimWindowsTest::withoutTheMatchAllWindowsAreOffered()
{
    QVERIFY(configure("<autoUSSD", "valid=\"true\"", "valid=\"false\""));
    openDashboard();
    QCOMPARE(offered(), QLatin1String("general framed prepaid postpaid services"));
}

void SimWindowsTest::aSimWithoutTheGeneralWindowEmptiesThePage()
{
    QVERIFY(configure("<autoUSSD", "Postpaid/Commonpaid/Advanced", "Postpaid"));
    openDashboard();
    QVERIFY(page().commandEdit()->isVisible());
    useNetwork("001020000000001");
    QCOMPARE(offered(), QLatin1String("postpaid"));
    QVERIFY(!page().commandEdit()->isVisible());
    useNetwork("001010000000001");
    QCOMPARE(offered(), QLatin1String("general framed prepaid services"));
    QVERIFY(page().commandEdit()->isVisible());
}

void SimWindowsTest::anotherSimIsOfferedItsWindowsAtOnce()
{
    openDashboard();
    useNetwork("001020000000001");
    QCOMPARE(offered(), QLatin1String("general framed postpaid services"));
}

void SimWindowsTest::openFrame(const char *actionName)
{
    if (QAction *found = action(actionName))
        found->trigger();
    else
        window().openServicesWindow(-1);
    QTRY_VERIFY(frame());
}

QString SimWindowsTest::simText()
{
    return window().findChild<QLabel *>(QLatin1String("Dashboard_Sim"))->text();
}

void SimWindowsTest::anotherSimClosesTheFrames_data()
{
    QTest::addColumn<QByteArray>("actionName");
    QTest::newRow("general") << QByteArray("Dashboard_ActionGeneral");
    QTest::newRow("prepaid") << QByteArray("Dashboard_ActionPrepaid");
}

void SimWindowsTest::anotherSimClosesTheFrames()
{
    QFETCH(QByteArray, actionName);
    openDashboard();
    openFrame(actionName.constData());
    useNetwork("001020000000001");
    QTRY_VERIFY(!frame());
}

void SimWindowsTest::anotherSimWithoutTheMatchClosesNothing()
{
    QVERIFY(configure("<autoUSSD", "valid=\"true\"", "valid=\"false\""));
    openDashboard();
    openFrame("Dashboard_ActionGeneral");
    useNetwork("001020000000001");
    drainEvents();
    QVERIFY(frame());
}

void SimWindowsTest::theSameSimClosesNothing()
{
    openDashboard();
    openFrame("Dashboard_ActionGeneral");
    useNetwork("001010000000007", "Signal=3");
    drainEvents();
    QVERIFY(frame());
}

void SimWindowsTest::aDeviceThatWasAwayClosesNothing()
{
    useNetwork("001010000000007", "Signal=3", ABSENT_FOR_A_MOMENT);
    openDashboard();
    openFrame("Dashboard_ActionGeneral");
    QTRY_VERIFY(!simText().contains(QLatin1String("0007")));
    QVERIFY(frame());
    QCOMPARE(offered(), QLatin1String("general framed prepaid services"));
    QTRY_VERIFY(simText().contains(QLatin1String("0007")));
    QVERIFY(frame());
}

void SimWindowsTest::aSimThatIsRemovedIsNoticed()
{
    useNetwork("001010000000007", "Signal=3", "[Event out]\nAfter=100\nState=sim-missing\n");
    openDashboard();
    openFrame("Dashboard_ActionGeneral");
    QTRY_VERIFY(!frame());
    QCOMPARE(offered(), QLatin1String("general framed services"));
}

void SimWindowsTest::eachActionOpensItsWindow_data()
{
    QTest::addColumn<QByteArray>("actionName");
    QTest::addColumn<QString>("widget");
    QTest::newRow("general") << QByteArray("Dashboard_ActionGeneral")
                             << QString::fromLatin1("USSDUIPlugin_AdvancedDialog_SendButton");
    QTest::newRow("prepaid") << QByteArray("Dashboard_ActionPrepaid")
                             << QString::fromLatin1("USSDUIPlugin_Pre_PostPaid");
    QTest::newRow("postpaid") << QByteArray("Dashboard_ActionPostpaid")
                              << QString::fromLatin1("USSDUIPlugin_Pre_PostPaid");
    QTest::newRow("services") << QByteArray("no action: on the page of services")
                              << QString::fromLatin1("USSDUIPlugin_SMSDialog");
}

void SimWindowsTest::eachActionOpensItsWindow()
{
    QFETCH(QByteArray, actionName);
    QFETCH(QString, widget);
    QVERIFY(configure("<autoUSSD", "valid=\"true\"", "valid=\"false\""));
    openDashboard();
    openFrame(actionName.constData());
    QWidget *found = frame()->findChild<QWidget *>(widget);
    QVERIFY(found);
    QVERIFY(found->isVisible());
    QCOMPARE(frame()->parentWidget(), &window());
    QSignalSpy closed(&window(), SIGNAL(frameClosed()));
    frame()->close();
    QTRY_VERIFY(!frame());
    QTRY_COMPARE(closed.count(), 1);
}

USSD_TEST_MAIN(SimWindowsTest)
#include "sim_windows_test.moc"
