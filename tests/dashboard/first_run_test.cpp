#include <QMenu>
#include <QScrollArea>
#include <QSignalSpy>

#include <cstring>

#include "DeviceTest.h"
#include "Languages.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "pages/FirstRunPage.h"
#include "pages/OperatorOption.h"
#include "SampleOperators.h"
#include "sim/OperatorCodes.h"

using namespace Dashboard;

/** Tests the page that is shown until the user has set up the program. */
class FirstRunTest : public DeviceTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void itIsShownInsteadOfThePagesUntilItIsFinished();
    void notNowIsRemembered();
    void stepsTickThemselvesOff();
    void theFocusFollowsTheSteps();
    void ofSeveralOperatorsNobodyIsChosen();
    void theChosenOperatorIsUsed();
    void withoutOperatorsCodesIsLast();
    void aDemonstrationIsStartedOnlyByTheUser();
    void anIntegratorsCodesNeedNoFirstRun();
    void nothingIsSent();
    void theLanguageCanBeChosen();
    void theNoteHasAnIcon();
    void nothingIsCutInTheSmallestWindow_data();
    void nothingIsCutInTheSmallestWindow();

private:
    FirstRunPage *first() { return part<FirstRunPage>("Dashboard_FirstRunPage"); }
    QPushButton *use() { return part<QPushButton>("Dashboard_FirstRunUse"); }
    QList<OperatorOption *> options() { return first()->findChildren<OperatorOption *>(); }
    TKSV_DeviceInfo sim(const char *network);
};

void FirstRunTest::setUp()
{
    DeviceTest::setUp();
    settings().setFirstRunDone(false);
    OperatorPlaces places;
    places.database = writeFile(QLatin1String("operators.xml"), SAMPLE_OPERATORS);
    places.folders = folder() + QLatin1String("/operators");
    window().operatorCodes().setPlaces(places);
    tell(modemInfo(TKSV_DEVICE_SEARCHING));
}

TKSV_DeviceInfo FirstRunTest::sim(const char *network)
{
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    std::strcpy(info.imsi, network);
    std::strcat(info.imsi, "0123456789");
    std::strcpy(info.simOperatorCode, network);
    return info;
}

void FirstRunTest::itIsShownInsteadOfThePagesUntilItIsFinished()
{
    QVERIFY(window().isFirstRun());
    QVERIFY(first()->isVisible());
    QVERIFY(!part<QWidget>("Dashboard_Navigation")->isVisible());
    window().showPage(PageId::Codes);
    QVERIFY(first()->isVisible());
    QTest::mouseClick(part<QPushButton>("Dashboard_FirstRunNotNow"), Qt::LeftButton);
    QVERIFY(!first()->isVisible());
    QVERIFY(window().pageOf(PageId::Codes)->isVisible());
    QVERIFY(part<QWidget>("Dashboard_Navigation")->isVisible());
}

void FirstRunTest::notNowIsRemembered()
{
    QVERIFY(!settings().isFirstRunDone());
    QTest::mouseClick(part<QPushButton>("Dashboard_FirstRunNotNow"), Qt::LeftButton);
    QVERIFY(settings().isFirstRunDone());
    QVERIFY(settings().operatorCodes(QLatin1String("99902")).isEmpty());
}

void FirstRunTest::stepsTickThemselvesOff()
{
    const QWidget *modem = part<QWidget>("Dashboard_FirstRunModem");
    const QWidget *step = part<QWidget>("Dashboard_FirstRunSim");
    TKSV_DeviceInfo none = modemInfo(TKSV_DEVICE_ABSENT);
    tell(none);
    QPushButton *look = modem->findChild<QPushButton *>();
    QVERIFY(look->isVisible());
    look->click();
    QCOMPARE(fakeSdkCalls("TKSV_Device_LookAgain").size(), std::size_t(1));
    tell(modemInfo(TKSV_DEVICE_DISABLED));
    QVERIFY(!look->isVisible());
    QVERIFY(modem->findChildren<QLabel *>().contains(part<QLabel>("Dashboard_FirstRunModemTitle")));
    QCOMPARE(part<QLabel>("Dashboard_FirstRunModemTitle")->text(), QLatin1String("Modem found"));
    QPushButton *enable = step->findChild<QPushButton *>();
    QVERIFY(enable->isVisible());
    enable->click();
    QCOMPARE(fakeSdkCalls("TKSV_Device_Enable").size(), std::size_t(1));
    tell(sim("99902"));
    QVERIFY(!enable->isVisible());
    QCOMPARE(part<QLabel>("Dashboard_FirstRunSimTitle")->text(), QLatin1String("SIM ready"));
}

/// Tests that the focus follows the steps, and does not reach the button for the demonstration.
void FirstRunTest::theFocusFollowsTheSteps()
{
    tell(modemInfo(TKSV_DEVICE_DISABLED));
    QPushButton *enable = part<QWidget>("Dashboard_FirstRunSim")->findChild<QPushButton *>();
    enable->setFocus();
    tell(modemInfo(TKSV_DEVICE_SEARCHING));
    QVERIFY(enable->isHidden());
    QCOMPARE(window().focusWidget(), first());
    tell(sim("99902"));
    QCOMPARE(window().focusWidget(), options().first());
    QVERIFY(!options().first()->isChecked());
}

void FirstRunTest::ofSeveralOperatorsNobodyIsChosen()
{
    tell(sim("99902"));
    QCOMPARE(options().size(), 3);
    for (const OperatorOption *option : options())
        QVERIFY(!option->isChecked());
    QVERIFY(!use()->isEnabled());
    QTest::mouseClick(options().at(1), Qt::LeftButton);
    QVERIFY(use()->isEnabled());
    QCOMPARE(use()->text(), QLatin1String("Use Second"));
}

void FirstRunTest::theChosenOperatorIsUsed()
{
    tell(sim("99902"));
    QTest::mouseClick(options().at(1), Qt::LeftButton);
    QTest::mouseClick(use(), Qt::LeftButton);
    QCOMPARE(window().operatorCodes().operatorInUse(), QLatin1String("Second"));
    QVERIFY(settings().isFirstRunDone());
    QVERIFY(!first()->isVisible());
}

void FirstRunTest::withoutOperatorsCodesIsLast()
{
    tell(sim("99902"));
    QCOMPARE(options().last()->accessibleName(), QString::fromUtf8("Without operator’s codes"));
    QTest::mouseClick(options().last(), Qt::LeftButton);
    QTest::mouseClick(use(), Qt::LeftButton);
    QVERIFY(window().operatorCodes().isDecided());
    QCOMPARE(window().operatorCodes().operatorInUse(), QString());
    QVERIFY(!first()->isVisible());
}

void FirstRunTest::aDemonstrationIsStartedOnlyByTheUser()
{
    tell(modemInfo(TKSV_DEVICE_ABSENT));
    QVERIFY(fakeSdkCalls("TKSV_Device_UseScenario").empty());
    QTest::mouseClick(part<QPushButton>("Dashboard_FirstRunDemonstration"), Qt::LeftButton);
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseScenario").size(), std::size_t(1));
    TKSV_DeviceInfo info = sim("99902");
    info.backend = TKSV_BACKEND_SIMULATOR;
    tell(info);
    QVERIFY(!first()->isVisible());
    QVERIFY(!settings().isFirstRunDone());
    tell(sim("99902"));
    QVERIFY(first()->isVisible());
}

void FirstRunTest::anIntegratorsCodesNeedNoFirstRun()
{
    OperatorPlaces places;
    places.isFree = false;
    window().operatorCodes().setPlaces(places);
    tell(sim("99902"));
    QVERIFY(!first()->isVisible());
}

void FirstRunTest::nothingIsSent()
{
    tell(sim("99902"));
    loadPlugin();
    QTest::mouseClick(options().at(0), Qt::LeftButton);
    QTest::mouseClick(use(), Qt::LeftButton);
    drainEvents();
    QVERIFY(fakeSdkCommands().empty());
}

void FirstRunTest::theLanguageCanBeChosen()
{
    const MenuButton *language = part<MenuButton>("Dashboard_FirstRunLanguage");
    QVERIFY(language->isVisible());
    QCOMPARE(language->text(), QLatin1String("English"));
    QCOMPARE(language->accessibleName(), QLatin1String("Language, English"));
    for (QAction *action : language->menu()->actions()) {
        if (action->data().toString() == QLatin1String("de"))
            action->trigger();
    }
    QCOMPARE(language->accessibleName(), QLatin1String("Sprache, Deutsch"));
}

/// Tests that the note fits into a single line next to its icon.
void FirstRunTest::theNoteHasAnIcon()
{
    window().resize(1120, 720);
    drainEvents();
    const QWidget *icon = part<QWidget>("Dashboard_FirstRunCostsIcon");
    const QLabel *note = part<QLabel>("Dashboard_FirstRunCosts");
    QVERIFY(icon->isVisible());
    QVERIFY(note->height() < 2 * note->fontMetrics().height());
    QVERIFY(icon->geometry().right() < note->geometry().left());
}

void FirstRunTest::nothingIsCutInTheSmallestWindow_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &code : HostCore::Languages::codes())
        QTest::newRow(qPrintable(code)) << code;
}

void FirstRunTest::nothingIsCutInTheSmallestWindow()
{
    QFETCH(QString, language);
    Look::instance().start(); // the style sheet makes the buttons wider
    QFont font = QApplication::font();
    font.setPixelSize(14); // the sizes of the layout refer to this font
    QApplication::setFont(font);
    window().setLanguage(language);
    tell(sim("99902"));
    QCOMPARE(options().size(), 3);
    window().resize(360, 560);
    const QScrollArea *area = first()->findChild<QScrollArea *>();
    QTRY_COMPARE(area->viewport()->width(), area->widget()->width());
    drainEvents();
    QVERIFY2(area->widget()->minimumSizeHint().width() <= area->viewport()->width(),
             qPrintable(QString::number(area->widget()->minimumSizeHint().width())));
}

USSD_TEST_MAIN(FirstRunTest)
#include "first_run_test.moc"
