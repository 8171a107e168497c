#include <QMessageBox>

#include <cstring>

#include "account/Favourites.h"
#include "base/DashboardText.h"
#include "DeviceTest.h"
#include "ExtendDialog.h"
#include "IUSSD.h"
#include "pages/CodesPage.h"
#include "plugin/CodeHistory.h"
#include "plugin/GeneralWindow.h"
#include "plugin/PrivatePluginFolder.h"
#include "PluginFolderChoice.h"
#include "sim/OperatorCodes.h"
#include "sim/PaidTypeFinder.h"
#include "sim/SimWindows.h"
#include "window/DeviceMenu.h"
#include "window/HomeSetup.h"

using namespace Dashboard;

/**
 * Tests the main window with a modem. Codes of the demonstration must not be shown or sent, and the
 * window must explain why a command failed.
 */
class ModemWindowTest : public DeviceTest
{
    Q_OBJECT
protected:
    void tearDown() override;

private slots:
    void theCodesPageIsMadeForADevice();
    void theCodesPageIsMadeBeforeItsDeviceSends();
    void keysMakeTheCodesPage_data();
    void keysMakeTheCodesPage();
    void aDemonstrationIsMarkedInEveryLanguage();
    void aModemIsNoDemonstration();
    void withoutAModemNothingIsInvented();
    void aModemHasNoPresetsOfAnotherOperator();
    void aDemonstrationHasItsPresets();
    void thePresetsGoWithTheDemonstration();
    void nothingOfADemonstrationReachesASim();
    void openingSendsNothing();
    void theFirstOwnCodesAreShownAtOnce();
    void aSavedCodeWithoutAButtonIsAnnounced();
    void aTypedCodeOutlivesASavedCode();
    void aSavedCodeDoesNotRepeatTheQuery();

    void theQueryNeedsTheUser_data();
    void theQueryNeedsTheUser();
    void theQueryNeedsTheOperatorsCodes();
    void theUserSwitchesTheQueryOn();
    void onlyARealReplyIsAVerdict_data();
    void onlyARealReplyIsAVerdict();

    void aFailureIsSaidUntilTheNextCommand();
    void aRejectedCommandIsSaid();
    void aPendingCommandCanBeCancelled();
    void theTurnOfAnotherProgramIsSaid();

    void theModemIsSwitchedOnFromThePage();
    void nobodyMaySwitchOnWithoutPermission();
    void theModemsAreLookedForAgain_data();
    void theModemsAreLookedForAgain();
    void aForeignSessionIsEndedOnlyAfterAYes_data();
    void aForeignSessionIsEndedOnlyAfterAYes();

private:
    TKSV_DeviceInfo modemWithSim();
    TKSV_DeviceInfo demonstration();
    GeneralWindow page() { return GeneralWindow(window().page()); }
    int presets();
    bool isVisible(const char *name) const { return part<QWidget>(name)->isVisible(); }
    bool waitForSettling();
    void useIntegratorsFolder();
    void send(const char *code);
    void useOwnFolder();
    void saveOwnCodes(int count);
    QStringList recentCodes();

    QScopedPointer<PrivatePluginFolder> m_library;
};

void ModemWindowTest::tearDown()
{
    DeviceTest::tearDown();
    m_library.reset();
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
    qunsetenv("USSD_DETECT_PAID_TYPE");
}

TKSV_DeviceInfo ModemWindowTest::modemWithSim()
{
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    std::strcpy(info.imsi, "001990123456789");
    std::strcpy(info.simOperatorCode, "00199");
    return info;
}

TKSV_DeviceInfo ModemWindowTest::demonstration()
{
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    info.backend = TKSV_BACKEND_SIMULATOR;
    std::strcpy(info.imsi, "001010123456789");
    return info;
}

int ModemWindowTest::presets()
{
    return window()
        .page()
        ->findChildren<QPushButton *>(QLatin1String("USSDUIPlugin_AdvancedDialog_PreButton"))
        .size();
}

/// Waits until the point at which the prepaid/postpaid query would be sent.
bool ModemWindowTest::waitForSettling()
{
    PaidTypeFinder *finder = window().findChild<PaidTypeFinder *>();
    QSignalSpy settled(finder, SIGNAL(settled()));
    finder->restart();
    const bool isSettled = settled.wait(10000);
    drainEvents();
    return isSettled;
}

/// Reopens the window with the sample configuration in a folder that an integrator has selected.
void ModemWindowTest::useIntegratorsFolder()
{
    DeviceTest::tearDown();
    qputenv("USSD_PLUGIN_LIBRARY_PATH",
            QFile::encodeName(HostCore::PluginFolderChoice::installed()));
    setUp();
}

void ModemWindowTest::send(const char *code)
{
    QVERIFY(page().send(QLatin1String(code)));
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

/// Makes the plug-in read the user's own codes from the folder of the test.
void ModemWindowTest::useOwnFolder()
{
    fakeSdkSetUserDataDirectory((folder() + QLatin1Char('/')).toStdU16String());
}

/// Writes the codes "Mine 1" and so on, as the profile editor would save them.
void ModemWindowTest::saveOwnCodes(int count)
{
    QByteArray xml = "<tksvdoc type=\"USSDProfile\">";
    for (int i = 1; i <= count; ++i) {
        const QByteArray number = QByteArray::number(i);
        xml += "<item><name>Mine " + number + "</name><value>*" + number +
               "#</value><readonly>false</readonly><showButton>true</showButton><langID></langID>"
               "<desLangID></desLangID></item>";
    }
    writeFile(QLatin1String("ussdprofile.xml"), xml + "</tksvdoc>");
}

/// Returns the texts of the chips with the codes that were sent last.
QStringList ModemWindowTest::recentCodes()
{
    drainEvents();
    QStringList codes;
    for (const QPushButton *chip :
         window().findChildren<QPushButton *>(QLatin1String("Dashboard_RecentCode"))) {
        if (!chip->isHidden())
            codes << QString(chip->text()).remove(QChar(0x2066)).remove(QChar(0x2069)).trimmed();
    }
    return codes;
}

// ---- what is shown -------------------------------------------------------------------------

void ModemWindowTest::aDemonstrationIsMarkedInEveryLanguage()
{
    tell(demonstration());
    QSet<QString> texts;
    for (const char *code : {"en", "de", "fr", "es", "pt", "pt_BR", "ru", "ar", "zh"}) {
        window().setLanguage(QLatin1String(code));
        texts << banner();
        QCOMPARE(window().windowTitle(), dashboardText("APP_TITLE_DEMONSTRATION"));
        QVERIFY(part<QWidget>("Dashboard_DeviceLine")
                    ->toolTip()
                    .contains(QLatin1String("Maker Model")));
        QVERIFY(part<QWidget>("Dashboard_DeviceLine")->toolTip() !=
                dashboardText("SOURCE_MODEM").arg(QLatin1String("Maker Model")));
    }
    QCOMPARE(texts.size(), 8);
    QVERIFY(texts.contains(
        QLatin1String("Everything here is invented. No modem is used and nothing costs money.")));
}

void ModemWindowTest::aModemIsNoDemonstration()
{
    tell(demonstration());
    tell(modemWithSim());
    QVERIFY(!banner().contains(QLatin1String("invented")));
    QCOMPARE(window().windowTitle(), dashboardText("APP_TITLE"));
}

void ModemWindowTest::withoutAModemNothingIsInvented()
{
    TKSV_DeviceInfo none = modemInfo(TKSV_DEVICE_ABSENT, TKSV_PROBLEM_NO_SERVICE);
    none.source[0] = 0;
    tell(none);
    loadPlugin();
    QCOMPARE(part<QLabel>("Dashboard_Operator")->text(),
             QLatin1String("The modem service does not run"));
    QVERIFY(trouble().contains(QLatin1String("ModemManager")));
    QCOMPARE(presets(), 0);
    QCOMPARE(window().controller().windows(), int(SIM_WINDOW_GENERAL));
}

void ModemWindowTest::theCodesPageIsMadeForADevice()
{
    tell(modemInfo(TKSV_DEVICE_ABSENT));
    openOnHome();
    loadPlugin();
    QVERIFY(!part<CodesPage>("Dashboard_CodesPage"));
    tell(modemWithSim());
    QVERIFY(part<CodesPage>("Dashboard_CodesPage"));
    QVERIFY(page().isComplete());
    QCOMPARE(window().currentPage(), PageId::Home);
}

void ModemWindowTest::theCodesPageIsMadeBeforeItsDeviceSends()
{
    openOnHome();
    QVERIFY(!part<CodesPage>("Dashboard_CodesPage")); // not before the first paint
    loadPlugin();
    QVERIFY(part<CodesPage>("Dashboard_CodesPage"));
    QVERIFY(page().isComplete());
}

void ModemWindowTest::keysMakeTheCodesPage_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("code") << int(Qt::Key_L);
    QTest::newRow("history") << int(Qt::Key_H);
}

void ModemWindowTest::keysMakeTheCodesPage()
{
    QFETCH(int, key);
    tell(modemInfo(TKSV_DEVICE_ABSENT));
    openOnHome();
    loadPlugin();
    for (int times = 0; times < 2; ++times) { // the second key belongs to the page
        window().showPage(PageId::Home);
        QTest::keyClick(&window(), Qt::Key(key), Qt::ControlModifier);
        QCOMPARE(window().currentPage(), PageId::Codes);
        QVERIFY(page().commandEdit()->isVisible());
        drainEvents();
    }
}

void ModemWindowTest::aModemHasNoPresetsOfAnotherOperator()
{
    tell(modemWithSim());
    loadPlugin();
    QVERIFY(page().commandEdit()->isVisible());
    QCOMPARE(presets(), 0);
    QCOMPARE(window().controller().windows(), int(SIM_WINDOW_GENERAL));
    for (const char *action : {"Dashboard_ActionPrepaid", "Dashboard_ActionPostpaid"})
        QVERIFY2(!part<QAction>(action)->isVisible(), action);
    const QLineEdit *number = window().page()->findChild<QLineEdit *>(
        QLatin1String("USSDUIPlugin_AdvancedDialog_PaymentEdit"));
    QVERIFY(number && !number->isVisible());
    QTRY_VERIFY2(banner().contains(QLatin1String("choose the operator")), qPrintable(banner()));
}

void ModemWindowTest::aDemonstrationHasItsPresets()
{
    tell(demonstration());
    loadPlugin();
    QVERIFY(presets() > 5);
    QVERIFY(part<QAction>("Dashboard_ActionPrepaid")->isVisible());
    QVERIFY(window().operatorCodes().areSample());
}

void ModemWindowTest::thePresetsGoWithTheDemonstration()
{
    tell(demonstration());
    loadPlugin();
    tell(modemWithSim());
    QTRY_COMPARE(presets(), 0);
    QVERIFY(window().operatorCodes().areAbsent());
    tell(demonstration());
    QTRY_VERIFY(presets() > 5);
}

/// Tests a SIM whose home network is unknown, because its favourites used to be those of the
/// demonstration.
void ModemWindowTest::nothingOfADemonstrationReachesASim()
{
    DeviceTest::tearDown();
    QFile::remove(Favourites::userFile());
    QFile::remove(CodeHistory::fileOfUser());
    setUp();
    fakeSdkSetAnswer(fakeReply(u"Done."));
    tell(demonstration());
    loadPlugin();
    window().showPage(PageId::Codes);
    send("*199#");
    QCOMPARE(recentCodes(), QStringList(QLatin1String("*199#")));
    Favourites &favourites = window().findChild<HomeSetup *>()->favourites();
    QVERIFY(favourites.keep({"Way", "*123#", {{"1", "First"}}}));
    QCOMPARE(favourites.chains().size(), 1);
    QVERIFY(!QFile::exists(CodeHistory::fileOfUser()));

    TKSV_DeviceInfo unknown = modemWithSim();
    unknown.simOperatorCode[0] = 0;
    tell(unknown);
    QVERIFY(window().operatorCodes().network().isEmpty());
    QCOMPARE(favourites.chains().size(), 0);
    QTRY_VERIFY(page().commandEdit() && page().commandEdit()->isEnabled());
    send("*7#");
    QCOMPARE(recentCodes(), QStringList(QLatin1String("*7#")));
    QVERIFY(contentOf(CodeHistory::fileOfUser()).contains("*7#"));
    tell(demonstration());
    QCOMPARE(favourites.chains().size(), 1);
    QCOMPARE(recentCodes(), QStringList(QLatin1String("*199#")));
    QVERIFY(!contentOf(CodeHistory::fileOfUser()).contains("*199#"));
}

void ModemWindowTest::openingSendsNothing()
{
    tell(modemWithSim());
    loadPlugin();
    window().openFrame(PAID_TYPE_GENERAL);
    QVERIFY(GeneralWindow::framed().isComplete());
    GeneralWindow::framed().commandEdit()->window()->close();
    QVERIFY(waitForSettling());
    QVERIFY(fakeSdkCommands().empty());
    QVERIFY(fakeSdkCalls("TKSV_Device_Enable").empty());
    QVERIFY(fakeSdkCalls("TKSV_Device_EndForeignSession").empty());
}

// Tests that codes that were saved while the framed general window was open are shown on the page
// when this window is closed.
void ModemWindowTest::theFirstOwnCodesAreShownAtOnce()
{
    useOwnFolder();
    tell(modemWithSim());
    loadPlugin();
    QCOMPARE(presets(), 0);
    window().openFrame(PAID_TYPE_GENERAL);
    const GeneralWindow framed = GeneralWindow::framed();
    QVERIFY(framed.isComplete());
    saveOwnCodes(1);
    framed.commandEdit()->window()->close();
    QTRY_COMPARE(presets(), 1);
    QVERIFY(fakeSdkCommands().empty());
}

// Tests that the banner names a code without a button, even if the editor was closed before the
// window from which the user has opened the editor.
void ModemWindowTest::aSavedCodeWithoutAButtonIsAnnounced()
{
    useOwnFolder();
    tell(modemWithSim());
    loadPlugin();
    window().openFrame(PAID_TYPE_GENERAL);
    ExtendDialog editor;
    editor.show();
    saveOwnCodes(12);
    editor.hide();
    drainEvents();
    QCOMPARE(presets(), 0);
    GeneralWindow::framed().commandEdit()->window()->close();
    QTRY_COMPARE(presets(), 11);
    drainEvents();
    QVERIFY2(banner().contains(QLatin1String("Mine 12")), qPrintable(banner()));
}

// Tests that the plug-in is restarted only when the command field is empty again.
void ModemWindowTest::aTypedCodeOutlivesASavedCode()
{
    useOwnFolder();
    tell(modemWithSim());
    loadPlugin();
    page().commandEdit()->setText(QLatin1String("*1"));
    ExtendDialog editor;
    editor.show();
    saveOwnCodes(1);
    editor.hide();
    drainEvents();
    QCOMPARE(page().commandEdit()->text(), QLatin1String("*1"));
    QCOMPARE(presets(), 0);
    page().commandEdit()->clear();
    QTRY_COMPARE(presets(), 1);
}

// Tests that a saved code does not make the dashboard send the query again for the same SIM.
void ModemWindowTest::aSavedCodeDoesNotRepeatTheQuery()
{
    DeviceTest::tearDown();
    m_library.reset(new PrivatePluginFolder);
    QVERIFY(m_library->write(QLatin1String("ussdsysprofile.xml"), "<tksvdoc/>"));
    setUp();
    useOwnFolder();
    fakeSdkSetAnswer(fakeReply(u"Account 1"));
    window().controller().setDetection(true);
    tell(modemWithSim());
    loadPlugin();
    QTRY_COMPARE(window().sim().paidTypeText(), QLatin1String("Prepaid"));
    QCOMPARE(presets(), 0);
    ExtendDialog editor;
    editor.show();
    saveOwnCodes(1);
    editor.hide();
    QTRY_COMPARE(presets(), 1);
    QCOMPARE(window().sim().paidTypeText(), QLatin1String("Prepaid"));
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"*103#"});
}

// ---- the prepaid/postpaid query ------------------------------------------------------------

void ModemWindowTest::theQueryNeedsTheUser_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<bool>("setting");
    QTest::addColumn<int>("queries");
    QTest::newRow("off") << QByteArray() << false << 0;
    QTest::newRow("other value") << QByteArray("yes") << false << 0;
    QTest::newRow("integrator") << QByteArray("1") << false << 1;
    QTest::newRow("user") << QByteArray() << true << 1;
}

void ModemWindowTest::theQueryNeedsTheUser()
{
    QFETCH(QByteArray, variable);
    QFETCH(bool, setting);
    QFETCH(int, queries);
    qputenv("USSD_DETECT_PAID_TYPE", variable);
    useIntegratorsFolder();
    window().deviceMenu(); // creates the settings of the new window
    if (setting)
        window().controller().setDetection(true);
    tell(modemWithSim());
    loadPlugin();
    QVERIFY(waitForSettling());
    QCOMPARE(int(fakeSdkCommands().size()), queries);
}

void ModemWindowTest::theQueryNeedsTheOperatorsCodes()
{
    window().controller().setDetection(true);
    tell(modemWithSim());
    loadPlugin();
    QVERIFY(!window().operatorCodes().areOfOperator());
    QVERIFY(waitForSettling());
    QVERIFY(fakeSdkCommands().empty());
}

void ModemWindowTest::theUserSwitchesTheQueryOn()
{
    useIntegratorsFolder();
    tell(modemWithSim());
    loadPlugin();
    QVERIFY(waitForSettling());
    QVERIFY(fakeSdkCommands().empty());
    QVERIFY(!settings().detectsPaidType());
    window().controller().setDetection(true);
    QVERIFY(settings().detectsPaidType());
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"*103#"});
}

void ModemWindowTest::onlyARealReplyIsAVerdict_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("shown");
    QTest::newRow("digit") << 0 << QString::fromLatin1("Prepaid");
    QTest::newRow("words") << 1 << QString::fromLatin1("Postpaid");
    QTest::newRow("refusal") << 2 << QString();
    QTest::newRow("silence") << 3 << QString();
    QTest::newRow("failed call") << 4 << QString();
}

void ModemWindowTest::onlyARealReplyIsAVerdict()
{
    QFETCH(int, answer);
    QFETCH(QString, shown);
    const FakeAnswer answers[] = {fakeReply(u"Account 1"), fakeReply(u"Contract"),
                                  fakeNetworkRefusal(), fakeSilence(), fakeRefused(1, 1)};
    useIntegratorsFolder();
    fakeSdkSetAnswer(answers[answer]);
    window().controller().setDetection(true);
    tell(modemWithSim());
    loadPlugin();
    QVERIFY(waitForSettling());
    QCOMPARE(int(fakeSdkCommands().size()), 1);
    QTRY_VERIFY(!window().sim().isAsking());
    QCOMPARE(window().sim().paidTypeText(), shown);
}

// ---- the end of a command ------------------------------------------------------------------

void ModemWindowTest::aFailureIsSaidUntilTheNextCommand()
{
    tell(modemWithSim());
    loadPlugin();
    TKSV_FailureInfo failure = {};
    failure.reason = TKSV_FAILURE_NOT_ON_4G;
    fakeSdkSetLastFailure(failure);
    fakeSdkSetAnswer(fakeNetworkRefusal());
    send("*100#");
    QTRY_VERIFY2(commandText().contains(QLatin1String("4G")), qPrintable(commandText()));
    window().setLanguage(QLatin1String("de"));
    QVERIFY(commandText().contains(QLatin1String("nur 4G")));
    fakeSdkSetLastFailure(TKSV_FailureInfo());
    fakeSdkSetAnswer(fakeReply(u"Balance"));
    send("*100#");
    QTRY_COMPARE(commandText(), QString());
}

// Tests that the window explains why a command was not sent. The plug-in does not disable the code
// field for such a command.
void ModemWindowTest::aRejectedCommandIsSaid()
{
    tell(modemWithSim());
    loadPlugin();
    TKSV_FailureInfo failure = {};
    failure.reason = TKSV_FAILURE_IN_USE;
    failure.wasNotSent = 1;
    fakeSdkSetLastFailure(failure);
    fakeSdkSetAnswer(fakeRefused(1, 1));
    send("*100#");
    QCOMPARE(commandText(),
             QLatin1String("*100# was not sent. Another program is using codes on this modem."));
}

void ModemWindowTest::aPendingCommandCanBeCancelled()
{
    tell(modemWithSim());
    loadPlugin();
    QVERIFY(!isVisible("Dashboard_CancelCommand"));
    QVERIFY(page().send(QLatin1String("*100#")));
    QTRY_VERIFY(isVisible("Dashboard_CancelCommand"));
    QVERIFY(page().isWaiting());
    QTest::mouseClick(part<QPushButton>("Dashboard_CancelCommand"), Qt::LeftButton);
    QTRY_VERIFY(!page().isWaiting());
    QCOMPARE(fakeSdkCalls("TKSV_Device_CancelRequest").size(), std::size_t(1));
    QTRY_COMPARE(commandText(), QLatin1String("Cancelled. You stopped *100#. The network may have "
                                              "carried it out all the same."));
    QCOMPARE(page().lastReceived(), QLatin1String("There is no reply."));
    QVERIFY(!isVisible("Dashboard_CancelCommand"));
}

void ModemWindowTest::theTurnOfAnotherProgramIsSaid()
{
    TKSV_DeviceInfo info = modemWithSim();
    tell(info);
    loadPlugin();
    QVERIFY(page().send(QLatin1String("*100#")));
    QTRY_VERIFY(commandText().startsWith(QLatin1String("Waiting for the reply to *100#. ")));
    info.waitsForTurn = 1;
    tell(info);
    QCOMPARE(commandText(),
             QLatin1String("Waiting for its turn. Another program is using the modem."));
}

// ---- remedies ----------------------------------------------------------------------

void ModemWindowTest::theModemIsSwitchedOnFromThePage()
{
    tell(modemInfo(TKSV_DEVICE_DISABLED));
    QVERIFY(fakeSdkCalls("TKSV_Device_Enable").empty());
    QTest::mouseClick(remedyButton(Remedy::Enable), Qt::LeftButton);
    QCOMPARE(fakeSdkCalls("TKSV_Device_Enable").size(), std::size_t(1));
    tell(modemInfo(TKSV_DEVICE_REGISTERED));
    QVERIFY(!remedyButton(Remedy::Enable));
}

void ModemWindowTest::nobodyMaySwitchOnWithoutPermission()
{
    tell(modemInfo(TKSV_DEVICE_DISABLED, TKSV_PROBLEM_NOT_PERMITTED));
    QVERIFY(trouble().contains(QLatin1String("administrator")));
    QTest::mouseClick(remedyButton(Remedy::HowToAllow), Qt::LeftButton);
    QVERIFY(part<QLabel>("Dashboard_InstructionCommand")->text().contains(QLatin1String("polkit")));
    QVERIFY(!remedyButton(Remedy::Enable));
}

void ModemWindowTest::theModemsAreLookedForAgain_data()
{
    QTest::addColumn<int>("problem");
    QTest::newRow("no modem") << int(TKSV_PROBLEM_NONE);
    QTest::newRow("no bus") << int(TKSV_PROBLEM_NO_BUS);
    QTest::newRow("no service") << int(TKSV_PROBLEM_NO_SERVICE);
    QTest::newRow("silent") << int(TKSV_PROBLEM_SERVICE_SILENT);
}

void ModemWindowTest::theModemsAreLookedForAgain()
{
    QFETCH(int, problem);
    tell(modemInfo(TKSV_DEVICE_ABSENT, problem));
    QVERIFY(!trouble().isEmpty());
    QTest::mouseClick(remedyButton(Remedy::LookAgain), Qt::LeftButton);
    QCOMPARE(fakeSdkCalls("TKSV_Device_LookAgain").size(), std::size_t(1));
    TKSV_DeviceInfo looking = modemInfo(TKSV_DEVICE_ABSENT);
    looking.isLooking = 1;
    tell(looking);
    QCOMPARE(trouble(), QLatin1String("Looking for a modem. This takes a moment."));
    QVERIFY(!remedyButton(Remedy::LookAgain));
    QVERIFY(part<QLabel>("Dashboard_Operator")->text().startsWith(QLatin1String("Looking")));
}

void ModemWindowTest::aForeignSessionIsEndedOnlyAfterAYes_data()
{
    QTest::addColumn<bool>("yes");
    QTest::addColumn<int>("calls");
    QTest::newRow("yes") << true << 1;
    QTest::newRow("no") << false << 0;
}

void ModemWindowTest::aForeignSessionIsEndedOnlyAfterAYes()
{
    QFETCH(bool, yes);
    QFETCH(int, calls);
    TKSV_DeviceInfo info = modemWithSim();
    info.hasForeignSession = 1;
    tell(info);
    QVERIFY(trouble().startsWith(QLatin1String("Another program is using codes. ")));
    QTest::mouseClick(remedyButton(Remedy::EndForeignSession), Qt::LeftButton);
    const QMessageBox *box = part<QMessageBox>("Dashboard_EndSessionQuestion");
    QVERIFY(box && box->isVisible() && box->isModal());
    QVERIFY(fakeSdkCalls("TKSV_Device_EndForeignSession").empty());
    box->buttons().value(yes ? 0 : 1)->click();
    QCOMPARE(int(fakeSdkCalls("TKSV_Device_EndForeignSession").size()), calls);
}

USSD_TEST_MAIN(ModemWindowTest)
#include "modem_window_test.moc"
