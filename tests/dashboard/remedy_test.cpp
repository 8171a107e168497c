#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <cstring>

#include "device/DashboardSettings.h"
#include "fake_tksv.h"
#include "HostState.h"
#include "Languages.h"
#include "pages/StateCard.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"
#include "window/AppController.h"
#include "window/PinDialog.h"
#include "window/RemedyRunner.h"

using namespace Dashboard;

/** Tests the device card, from its buttons to the calls to the device SDK. */
class RemedyTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theCardShowsTheSituation();
    void theMainButtonStandsOut();
    void aColumnTakesThePlaceOfAWideRow();
    void aButtonThatStaysKeepsTheFocus();
    void whatWasLastKnownHasItsCard();
    void theModemIsSwitchedOn();
    void theModemsAreLookedForAgain_data();
    void theModemsAreLookedForAgain();
    void thePinIsAskedForOnce();
    void aForeignSessionIsEndedOnlyAfterAYes_data();
    void aForeignSessionIsEndedOnlyAfterAYes();
    void theInstructionsCanBeCopied();
    void otherRemediesAreSignals();
    void theDemonstrationIsNotRemembered();
    void theModemOfTheUserIsUsed();

private:
    void tell(int state, int problem = 0, bool hasForeignSession = false);
    void press(Remedy remedy);
    QString textOf(const char *name) { return m_window->findChild<QLabel *>(latin1(name))->text(); }
    QPushButton *button(Remedy remedy);
    QStringList buttonTexts();
    template <typename T>
    T *shown(const char *name)
    {
        T *widget = m_window->findChild<T *>(latin1(name));
        return widget && widget->isVisible() ? widget : nullptr;
    }

    QScopedPointer<DashboardSettings> m_settings;
    QScopedPointer<LoadedPlugin> m_plugin;
    QScopedPointer<AppController> m_controller;
    QScopedPointer<QWidget> m_window;
    StateCard *m_card = nullptr;
    RemedyRunner *m_runner = nullptr;
};

void RemedyTest::setUp()
{
    fakeSdkReset();
    QFile::remove(DashboardSettings().file());
    QVERIFY(HostCore::Languages::setCurrent(latin1("en")));
    m_settings.reset(new DashboardSettings);
    m_plugin.reset(new LoadedPlugin);
    m_controller.reset(new AppController(m_plugin.data(), m_settings.data()));
    m_window.reset(new QWidget);
    m_window->resize(900, 600);
    m_card = new StateCard(m_window.data());
    (new QVBoxLayout(m_window.data()))->addWidget(m_card);
    m_runner = new RemedyRunner(m_controller.data(), m_window.data());
    connect(m_card, &StateCard::chosen, m_runner, &RemedyRunner::perform);
    connect(&m_controller->device(), &DeviceWatcher::changed, m_card, [this] {
        m_card->setSituation(situationOf(m_controller->device().status(), true, QString()));
    });
    m_window->show();
}

void RemedyTest::tearDown()
{
    m_window.reset();
    m_controller.reset();
    m_plugin.reset();
    m_settings.reset();
    HostCore::HostState::setShuttingDown(false);
    fakeSdkReset();
}

void RemedyTest::tell(int state, int problem, bool hasForeignSession)
{
    TKSV_DeviceInfo info = {};
    info.backend = TKSV_BACKEND_MODEMMANAGER;
    info.state = TKSV_DeviceState(state);
    info.problem = TKSV_DeviceProblem(problem);
    info.pinRetries = 2;
    info.hasForeignSession = hasForeignSession;
    std::strcpy(info.source, "Falken M2");
    fakeSdkSetDeviceInfo(info);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

QPushButton *RemedyTest::button(Remedy remedy)
{
    return m_card->findChild<QPushButton *>(latin1("Dashboard_Remedy_%1").arg(int(remedy)));
}

void RemedyTest::press(Remedy remedy)
{
    QVERIFY(button(remedy));
    QTest::mouseClick(button(remedy), Qt::LeftButton);
}

QStringList RemedyTest::buttonTexts()
{
    QStringList texts;
    for (const QPushButton *button : m_card->findChildren<QPushButton *>())
        texts << button->text();
    return texts;
}

// ---- the card -----------------------------------------------------------------------------------

void RemedyTest::theCardShowsTheSituation()
{
    tell(TKSV_DEVICE_SIM_LOCKED);
    QCOMPARE(textOf("Dashboard_StateTitle"), latin1("The SIM is locked"));
    QCOMPARE(textOf("Dashboard_StateText"), latin1("Enter its PIN to use it. 2 tries are left."));
    QCOMPARE(buttonTexts(), QStringList(latin1("Enter the PIN")));
    tell(TKSV_DEVICE_ABSENT);
    QCOMPARE(textOf("Dashboard_StateTitle"), latin1("No modem"));
    QCOMPARE(buttonTexts(), (QStringList{latin1("Look again"), latin1("Try the demonstration")}));
    tell(TKSV_DEVICE_SEARCHING);
    QVERIFY(buttonTexts().isEmpty());
    QVERIFY(!m_card->firstButton());
}

void RemedyTest::theMainButtonStandsOut()
{
    tell(TKSV_DEVICE_ABSENT);
    QCOMPARE(button(Remedy::LookAgain)->property("kind").toString(), latin1("primary"));
    QCOMPARE(button(Remedy::TryDemonstration)->property("kind").toString(), QString());
    tell(TKSV_DEVICE_ABSENT, TKSV_PROBLEM_NO_SERVICE); // the first button only shows an explanation
    QCOMPARE(m_card->firstButton(), button(Remedy::HowToStart));
    QCOMPARE(m_card->firstButton()->property("kind").toString(), QString());
}

void RemedyTest::aColumnTakesThePlaceOfAWideRow()
{
    tell(TKSV_DEVICE_ABSENT);
    const auto isRow = [this] {
        return button(Remedy::LookAgain)->y() == button(Remedy::TryDemonstration)->y();
    };
    QVERIFY(isRow());
    const int wide = button(Remedy::LookAgain)->width() + button(Remedy::TryDemonstration)->width();
    m_window->resize(wide, 600);
    drainEvents();
    QVERIFY(!isRow());
    QCOMPARE(m_window->width(), wide); // the buttons do not make the window wider
}

void RemedyTest::aButtonThatStaysKeepsTheFocus()
{
    tell(TKSV_DEVICE_SIM_LOCKED);
    QPushButton *before = button(Remedy::EnterPin);
    tell(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_WRONG_PIN);
    QVERIFY(textOf("Dashboard_StateText").startsWith(latin1("That was not the PIN.")));
    QCOMPARE(button(Remedy::EnterPin), before);
}

void RemedyTest::whatWasLastKnownHasItsCard()
{
    QVERIFY(!shown<QLabel>("Dashboard_LastKnownTitle"));
    m_card->setLastKnown(latin1("Last known: 12.50 EUR"), latin1("It may have changed since."));
    QCOMPARE(textOf("Dashboard_LastKnownTitle"), latin1("Last known: 12.50 EUR"));
    QVERIFY(shown<QLabel>("Dashboard_LastKnownText"));
}

// ---- remedies -----------------------------------------------------------------------------------

void RemedyTest::theModemIsSwitchedOn()
{
    tell(TKSV_DEVICE_DISABLED);
    QVERIFY(fakeSdkCalls("TKSV_Device_Enable").empty());
    press(Remedy::Enable);
    QCOMPARE(fakeSdkCalls("TKSV_Device_Enable").size(), std::size_t(1));
    tell(TKSV_DEVICE_REGISTERED);
    QVERIFY(!button(Remedy::Enable));
}

void RemedyTest::theModemsAreLookedForAgain_data()
{
    QTest::addColumn<int>("problem");
    QTest::newRow("no modem") << int(TKSV_PROBLEM_NONE);
    QTest::newRow("no bus") << int(TKSV_PROBLEM_NO_BUS);
    QTest::newRow("no service") << int(TKSV_PROBLEM_NO_SERVICE);
    QTest::newRow("silent") << int(TKSV_PROBLEM_SERVICE_SILENT);
    QTest::newRow("removed") << int(TKSV_PROBLEM_MODEM_REMOVED);
    QTest::newRow("chosen absent") << int(TKSV_PROBLEM_CHOSEN_ABSENT);
}

void RemedyTest::theModemsAreLookedForAgain()
{
    QFETCH(int, problem);
    tell(TKSV_DEVICE_ABSENT, problem);
    press(Remedy::LookAgain);
    QCOMPARE(fakeSdkCalls("TKSV_Device_LookAgain").size(), std::size_t(1));
}

void RemedyTest::thePinIsAskedForOnce()
{
    tell(TKSV_DEVICE_SIM_LOCKED);
    press(Remedy::EnterPin);
    m_runner->perform(Remedy::EnterPin);
    QCOMPARE(m_window->findChildren<PinDialog *>().size(), 1);
    QVERIFY(shown<PinDialog>("Dashboard_PinDialog"));
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    m_runner->retranslate();
    QVERIFY(textOf("Dashboard_PinLabel").startsWith(latin1("PIN der SIM")));
}

void RemedyTest::aForeignSessionIsEndedOnlyAfterAYes_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("calls");
    QTest::newRow("end") << int(QMessageBox::AcceptRole) << 1;
    QTest::newRow("cancel") << int(QMessageBox::RejectRole) << 0;
    QTest::newRow("escape") << -1 << 0;
}

void RemedyTest::aForeignSessionIsEndedOnlyAfterAYes()
{
    QFETCH(int, button);
    QFETCH(int, calls);
    tell(TKSV_DEVICE_REGISTERED, TKSV_PROBLEM_NONE, true);
    QCOMPARE(textOf("Dashboard_StateTitle"), latin1("Another program is using codes"));
    press(Remedy::EndForeignSession);
    QVERIFY(fakeSdkCalls("TKSV_Device_EndForeignSession").empty());
    QMessageBox *box = shown<QMessageBox>("Dashboard_EndSessionQuestion");
    QVERIFY(box);
    if (button < 0)
        QTest::keyClick(box, Qt::Key_Escape);
    for (QAbstractButton *choice : box->buttons()) {
        if (box->buttonRole(choice) == button)
            QTest::mouseClick(choice, Qt::LeftButton);
    }
    drainEvents();
    QVERIFY(!shown<QMessageBox>("Dashboard_EndSessionQuestion"));
    QCOMPARE(int(fakeSdkCalls("TKSV_Device_EndForeignSession").size()), calls);
}

void RemedyTest::theInstructionsCanBeCopied()
{
    tell(TKSV_DEVICE_ABSENT, TKSV_PROBLEM_NO_SERVICE);
    press(Remedy::HowToStart);
    const QString command = textOf("Dashboard_InstructionCommand");
    QCOMPARE(command, latin1("sudo systemctl start ModemManager"));
    QTest::mouseClick(shown<QPushButton>("Dashboard_InstructionCopy"), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), command);
    QTest::mouseClick(shown<QPushButton>("Dashboard_InstructionClose"), Qt::LeftButton);
    drainEvents();
    tell(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_PUK_NEEDED);
    press(Remedy::WhatIsPuk);
    QVERIFY(!shown<QLabel>("Dashboard_InstructionCommand"));
    QVERIFY(!shown<QPushButton>("Dashboard_InstructionCopy"));
    QVERIFY(textOf("Dashboard_InstructionText").contains(latin1("PUK")));
}

void RemedyTest::otherRemediesAreSignals()
{
    QSignalSpy modem(m_runner, &RemedyRunner::modemMenuRequested);
    QSignalSpy chosenOperator(m_runner, &RemedyRunner::operatorRequested);
    QSignalSpy typing(m_runner, &RemedyRunner::typingRequested);
    m_runner->perform(Remedy::ChooseModem);
    m_runner->perform(Remedy::ChooseOperator);
    m_runner->perform(Remedy::TypeCode);
    m_runner->perform(Remedy::None);
    QCOMPARE(modem.size(), 1);
    QCOMPARE(chosenOperator.size(), 1);
    QCOMPARE(typing.size(), 1);
}

void RemedyTest::theDemonstrationIsNotRemembered()
{
    m_settings->setDevice(DeviceChoice::modem(latin1("353612345678901")));
    tell(TKSV_DEVICE_ABSENT);
    press(Remedy::TryDemonstration);
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseScenario").size(), std::size_t(1));
    QVERIFY(m_settings->device() == DeviceChoice::modem(latin1("353612345678901")));
    fakeSdkSetScenarioOutcome(1, "line 3");
    QSignalSpy failed(m_runner, &RemedyRunner::deviceFailed);
    m_runner->perform(Remedy::TryDemonstration);
    QCOMPARE(failed.size(), 1);
}

void RemedyTest::theModemOfTheUserIsUsed()
{
    tell(TKSV_DEVICE_ABSENT);
    m_runner->perform(Remedy::UseMyModem);
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseAutomatic").size(), std::size_t(1));
    m_settings->setDevice(DeviceChoice::modem(latin1("353612345678901")));
    m_runner->perform(Remedy::UseMyModem);
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseModem").size(), std::size_t(1));
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseModem").front().path, std::string("353612345678901"));
}

USSD_TEST_MAIN(RemedyTest)
#include "remedy_test.moc"
