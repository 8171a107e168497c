#include <QMessageBox>
#include <QTimer>

#include "CommandTest.h"
#include "ExtendDialog.h"
#include "IUIPlugin.h"
#include "IUSSD.h"
#include "Languages.h"

using namespace Dashboard;

namespace
{

QString menu()
{
    return QString::fromLatin1("Meridian\n1 My account\n2 Data packs");
}

TKSV_FailureInfo failure(TKSV_Failure reason, bool wasNotSent = false)
{
    TKSV_FailureInfo info = {};
    info.reason = reason;
    info.wasNotSent = wasNotSent ? 1 : 0;
    return info;
}

} // namespace

/** Tests each state transition of a command, and race conditions between the transitions. */
class CommandMonitorTest : public CommandTest
{
    Q_OBJECT
private slots:
    void atFirstItIsReady();
    void aReplyMakesItReadyAgain();
    void theSecondsAreCounted();
    void theCodeIsShownWithoutItsPin();
    void aMenuOpensWithItsChoices();
    void anAnswerIsTyped();
    void aTextThatIsNoMenuHasNoChoices();
    void theMenuIsEndedAtTheDevice();
    void theMenuIsNotEndedWhileACommandIsPending();
    void aCancelledCommandIsShown();
    void aReplyThatWasFasterThanCancelCounts();
    void aRefusalIsShown();
    void aCommandThatWasNotSentIsShown();
    void theTimeOutOfThePluginIsShown();
    void aLateMenuIsShown();
    void aLostDeviceIsShown();
    void aLostDeviceEndsTheMenu();
    void theNextCodeRemovesTheFailure();
    void aDismissedFailureUncoversTheMenu();
    void onlyCodesAreSentAgain();
    void theFramedWindowCounts();
    void theAccountWindowCounts();
    void theAccountWindowDoesNotWaitForEver();
    void theTurnOfAnotherProgramIsShown();
    void aWindowBehindAnotherIsQueued();
    void aMessageOfTheNetworkOpensAMenu();
    void everyReplyIsReportedWithItsCode();
    void theLanguageChangesWhileItWaits();
    void recentCodesHaveNoNumbers();
    void nothingIsSentWithoutANetwork();
    void aDisabledPageDoesNotWait();
    void aFailedQueryOfTheProgramIsNotShown();
};

void CommandMonitorTest::atFirstItIsReady()
{
    QCOMPARE(state().kind, Kind::Ready);
    QCOMPARE(state().title, QLatin1String("Ready"));
    QCOMPARE(state().text, QLatin1String("Send a code, or choose one below."));
    QVERIFY(monitor().canSend());
}

void CommandMonitorTest::aReplyMakesItReadyAgain()
{
    QVERIFY(monitor().send(QLatin1String("*104#")));
    settle();
    QCOMPARE(state().kind, Kind::Waiting);
    QCOMPARE(state().title, QString::fromUtf8("Waiting for the reply to \u2066*104#\u2069"));
    QVERIFY(state().mayBeCancelled && !monitor().canSend());
    fakeSdkRespond(u"You have 1 GB.");
    settle();
    QCOMPARE(state().kind, Kind::Ready);
    QVERIFY(monitor().canSend() && !state().mayBeCancelled);
    QCOMPARE(page().lastReceived(), QLatin1String("You have 1 GB."));
}

void CommandMonitorTest::theSecondsAreCounted()
{
    QSignalSpy ticks(&monitor(), &CommandMonitor::ticked);
    monitor().send(QLatin1String("*104#"));
    settle();
    pass(3);
    pass(5);
    QCOMPARE(state().seconds, 8);
    QCOMPARE(state().text, QLatin1String("8 of 30 seconds"));
    QCOMPARE(ticks.count(), 2);
    QCOMPARE(ticks.last().value(0).toInt(), 8);
    fakeSdkRespond(u"Text");
    settle();
    pass(1);
    QCOMPARE(ticks.count(), 2);
}

void CommandMonitorTest::theCodeIsShownWithoutItsPin()
{
    monitor().send(QLatin1String("*101*1234567890#"));
    settle();
    QVERIFY(!state().title.contains(QLatin1String("1234567890")));
    QVERIFY(state().title.contains(QString::fromUtf8("*101*…#")));
}

void CommandMonitorTest::aMenuOpensWithItsChoices()
{
    fakeSdkSetAnswer(fakeReply(menu().toStdU16String(), 1));
    monitor().send(QLatin1String("*123#"));
    settle();
    QCOMPARE(state().kind, Kind::MenuOpen);
    QCOMPARE(state().title, QLatin1String("The network waits for your answer"));
    QCOMPARE(state().text, QLatin1String("Choose one, or type the answer below."));
    QCOMPARE(state().menuText, menu());
    QCOMPARE(state().choices.size(), 2);
    QCOMPARE(state().choices.at(1).text, QLatin1String("Data packs"));
}

void CommandMonitorTest::anAnswerIsTyped()
{
    QVERIFY(!monitor().answer(QLatin1String("2")));
    fakeSdkScript({fakeReply(menu().toStdU16String(), 1), fakeReply(u"Done")});
    monitor().send(QLatin1String("*123#"));
    settle();
    QVERIFY(monitor().answer(QLatin1String("2")));
    settle();
    QCOMPARE(state().kind, Kind::Ready);
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*123#", u"2"}));
    QVERIFY(page().transcript().contains(QLatin1String("Sent: 2")));
}

void CommandMonitorTest::aTextThatIsNoMenuHasNoChoices()
{
    fakeSdkSetAnswer(fakeReply(u"Type the number of your friend", 1));
    monitor().send(QLatin1String("*123#"));
    settle();
    QCOMPARE(state().kind, Kind::MenuOpen);
    QVERIFY(state().choices.isEmpty());
    QCOMPARE(state().text, QLatin1String("Type your answer below."));
}

void CommandMonitorTest::theMenuIsEndedAtTheDevice()
{
    fakeSdkSetAnswer(fakeReply(menu().toStdU16String(), 1));
    monitor().send(QLatin1String("*123#"));
    settle();
    monitor().endMenu();
    QCOMPARE(fakeSdkCalls("TKSV_USSDSrv_Release").size(), std::size_t(1));
    settle();
    QCOMPARE(state().kind, Kind::MenuEnded);
    QCOMPARE(state().text, QLatin1String("The network was told."));
    monitor().dismiss();
    QCOMPARE(state().kind, Kind::Ready);
}

void CommandMonitorTest::theMenuIsNotEndedWhileACommandIsPending()
{
    monitor().endMenu();
    fakeSdkScript({fakeReply(menu().toStdU16String(), 1), fakeSilence()});
    monitor().send(QLatin1String("*123#"));
    settle();
    monitor().answer(QLatin1String("1"));
    monitor().endMenu(); // the answer has been sent, but the monitor has not processed it yet
    settle();
    monitor().endMenu();
    QVERIFY(fakeSdkCalls("TKSV_USSDSrv_Release").empty());
    QCOMPARE(state().kind, Kind::Waiting);
}

void CommandMonitorTest::aCancelledCommandIsShown()
{
    monitor().send(QLatin1String("*104#"));
    settle();
    monitor().cancel();
    settle();
    QCOMPARE(state().kind, Kind::Cancelled);
    QCOMPARE(state().title, QLatin1String("Cancelled"));
    QVERIFY(
        state().text.endsWith(QLatin1String("The network may have carried it out all the same.")));
    QVERIFY(monitor().canSend());
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_NONE));
    QVERIFY(monitor().sendAgain());
    settle();
    QCOMPARE(state().kind, Kind::Waiting);
    QCOMPARE(fakeSdkCommands().size(), std::size_t(2));
}

// Tests that a reply that is faster than the cancellation is accepted. The SDK cannot cancel a
// request whose reply is already being delivered.
void CommandMonitorTest::aReplyThatWasFasterThanCancelCounts()
{
    monitor().send(QLatin1String("*104#"));
    settle();
    fakeSdkSetResult("TKSV_Device_CancelRequest", 1);
    fakeSdkRespond(u"Text");
    QVERIFY(fakeSdkWaitIdle());
    monitor().cancel(); // the monitor has not processed the reply yet
    settle();
    QCOMPARE(state().kind, Kind::Ready);
    QCOMPARE(page().lastReceived(), QLatin1String("Text"));
    monitor().cancel();
    QCOMPARE(fakeSdkCalls("TKSV_Device_CancelRequest").size(), std::size_t(1));
}

void CommandMonitorTest::aRefusalIsShown()
{
    fakeSdkSetAnswer(fakeNetworkRefusal());
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_ENDED_BY_NETWORK));
    monitor().send(QLatin1String("*999#"));
    settle();
    QCOMPARE(state().kind, Kind::Failed);
    QCOMPARE(state().title, QString::fromUtf8("\u2066*999#\u2069 was refused"));
    QCOMPARE(state().failure, int(TKSV_FAILURE_ENDED_BY_NETWORK));
    monitor().dismiss();
    QCOMPARE(state().kind, Kind::Ready);
}

// Tests that the monitor reports a command that was not sent. The plug-in does not disable the code
// field for such a command.
void CommandMonitorTest::aCommandThatWasNotSentIsShown()
{
    fakeSdkSetAnswer(fakeRefused(1, 1));
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_NOT_REGISTERED, true));
    monitor().send(QLatin1String("*104#"));
    settle();
    QCOMPARE(state().kind, Kind::Failed);
    QCOMPARE(state().title, QString::fromUtf8("\u2066*104#\u2069 was not sent"));
    QVERIFY(state().mayBeSentAgain);
    monitor().dismiss();
    QTimer::singleShot(0, this, [] {
        if (QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->buttons().value(0)->click();
    });
    page().clearButton()->click();
    QCOMPARE(page().transcript(), QString());
    settle();
    QCOMPARE(state().kind, Kind::Ready); // the earlier failure is not shown again
}

void CommandMonitorTest::theTimeOutOfThePluginIsShown()
{
    monitor().send(QLatin1String("*104#"));
    settle();
    QTRY_COMPARE(state().kind, Kind::Failed); // the plug-in's time-out is 400 ms in this test
    QCOMPARE(state().title, QString::fromUtf8("No reply to \u2066*104#\u2069"));
    QVERIFY(state().text.endsWith(QLatin1String("It may have carried the code out all the same.")));
    QVERIFY(monitor().canSend());
    settle();
    QCOMPARE(state().kind, Kind::Failed);
}

void CommandMonitorTest::aLateMenuIsShown()
{
    monitor().send(QLatin1String("*123#"));
    QTRY_COMPARE(state().kind, Kind::Failed);
    fakeSdkRespond(menu().toStdU16String(), 1);
    settle();
    QCOMPARE(state().kind, Kind::MenuOpen);
    QCOMPARE(state().choices.size(), 2);
}

void CommandMonitorTest::aLostDeviceIsShown()
{
    monitor().send(QLatin1String("*104#"));
    settle();
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_DEVICE_LOST));
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_GONE);
    settle();
    QCOMPARE(state().kind, Kind::Failed);
    QCOMPARE(state().title, QString::fromUtf8("\u2066*104#\u2069 was broken off"));
    QVERIFY(state().text.contains(QLatin1String("is not known")));
}

void CommandMonitorTest::aLostDeviceEndsTheMenu()
{
    fakeSdkSetAnswer(fakeReply(menu().toStdU16String(), 1));
    monitor().send(QLatin1String("*123#"));
    settle();
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_GONE);
    settle();
    QCOMPARE(state().kind, Kind::Ready);
    QVERIFY(!monitor().answer(QLatin1String("1")));
    QCOMPARE(fakeSdkCommands().size(), std::size_t(1));
}

void CommandMonitorTest::theNextCodeRemovesTheFailure()
{
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_REFUSED));
    fakeSdkSetAnswer(fakeNetworkRefusal());
    monitor().send(QLatin1String("*104#"));
    settle();
    QCOMPARE(state().kind, Kind::Failed);
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_NONE));
    fakeSdkSetAnswer(fakeReply(u"Text"));
    monitor().send(QLatin1String("*104#"));
    settle();
    QCOMPARE(state().kind, Kind::Ready);
}

void CommandMonitorTest::aDismissedFailureUncoversTheMenu()
{
    fakeSdkScript({fakeReply(menu().toStdU16String(), 1), fakeRefused(1, 1)});
    monitor().send(QLatin1String("*123#"));
    settle();
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_NOT_ENCODABLE, true));
    monitor().answer(QLatin1String("x"));
    settle();
    QCOMPARE(state().kind, Kind::Failed);
    monitor().dismiss();
    QCOMPARE(state().kind, Kind::MenuOpen);
    QCOMPARE(state().choices.size(), 2);
}

// Tests that an answer cannot be sent again, because its menu is no longer open.
void CommandMonitorTest::onlyCodesAreSentAgain()
{
    fakeSdkScript({fakeReply(menu().toStdU16String(), 1), fakeNetworkRefusal()});
    monitor().send(QLatin1String("*123#"));
    settle();
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_ENDED_BY_NETWORK));
    monitor().answer(QLatin1String("1"));
    settle();
    QCOMPARE(state().kind, Kind::Failed);
    QVERIFY(!state().mayBeSentAgain && !monitor().sendAgain());
    QCOMPARE(fakeSdkCommands().size(), std::size_t(2));
}

void CommandMonitorTest::theFramedWindowCounts()
{
    QCOMPARE(plugin().plugin()->DoModal(), 1);
    settle();
    const GeneralWindow framed = GeneralWindow::framed();
    QVERIFY(framed.send(QLatin1String("*105#")));
    settle();
    QCOMPARE(state().kind, Kind::Waiting);
    QVERIFY(state().title.contains(QLatin1String("*105#")));
    fakeSdkRespond(menu().toStdU16String(), 1);
    settle();
    QCOMPARE(state().kind, Kind::MenuOpen);
    QVERIFY(monitor().answer(QLatin1String("1")));
    settle();
    QVERIFY(framed.transcript().contains(QLatin1String("Sent: 1")));
    QVERIFY(!page().transcript().contains(QLatin1String("Sent: 1")));
}

void CommandMonitorTest::theAccountWindowCounts()
{
    plugin().ussd()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
    QVERIFY(fakeSdkWaitForRequests(1));
    settle();
    QCOMPARE(state().kind, Kind::Waiting);
    QVERIFY(state().mayBeCancelled);
    QVERIFY(monitor().recent().isEmpty()); // the user has not sent this code
    QSignalSpy replies(&monitor(), &CommandMonitor::replied);
    const QString code = state().code;
    fakeSdkRespond(u"Your balance is 7.00 EUR.");
    settle();
    QCOMPARE(replies.value(0).value(0).toString(), code);
}

void CommandMonitorTest::theAccountWindowDoesNotWaitForEver()
{
    plugin().ussd()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
    QVERIFY(fakeSdkWaitForRequests(1));
    settle();
    pass(30);
    QCOMPARE(state().kind, Kind::Waiting);
    pass(2);
    QCOMPARE(state().kind, Kind::Failed);
    QCOMPARE(state().failure, int(TKSV_FAILURE_NO_ANSWER));
}

void CommandMonitorTest::theTurnOfAnotherProgramIsShown()
{
    monitor().send(QLatin1String("*104#"));
    setDevice(TKSV_DEVICE_REGISTERED, true);
    settle();
    QCOMPARE(state().kind, Kind::Queued);
    QCOMPARE(state().title, QLatin1String("Waiting for its turn"));
    QCOMPARE(state().text, QLatin1String("Another program is using the modem."));
    QVERIFY(state().mayBeCancelled);
    setDevice(TKSV_DEVICE_REGISTERED);
    settle();
    QCOMPARE(state().kind, Kind::Waiting);
}

void CommandMonitorTest::aWindowBehindAnotherIsQueued()
{
    plugin().ussd()->DoPrePostPaidModal(PAID_TYPE_PREPAID);
    QVERIFY(fakeSdkWaitForRequests(1));
    QVERIFY(page().send(QLatin1String("*104#")));
    settle();
    QCOMPARE(state().kind, Kind::Queued);
    QCOMPARE(state().text, QLatin1String("Another window is asking."));
    QVERIFY(!state().mayBeCancelled); // cancelling would affect the command of the other window
    monitor().cancel();
    QVERIFY(fakeSdkCalls("TKSV_Device_CancelRequest").empty());
}

void CommandMonitorTest::aMessageOfTheNetworkOpensAMenu()
{
    QSignalSpy replies(&monitor(), &CommandMonitor::replied);
    fakeSdkRespond(menu().toStdU16String(), 1);
    settle();
    QCOMPARE(state().kind, Kind::MenuOpen);
    QCOMPARE(state().choices.size(), 2);
    QCOMPARE(replies.value(0).value(0).toString(), QString());
    QVERIFY(monitor().answer(QLatin1String("1")));
    settle();
    QCOMPARE(state().kind, Kind::Waiting);
}

void CommandMonitorTest::everyReplyIsReportedWithItsCode()
{
    QSignalSpy replies(&monitor(), &CommandMonitor::replied);
    fakeSdkScript({fakeReply(menu().toStdU16String(), 1), fakeReply(u"Done")});
    monitor().send(QLatin1String("*123#"));
    settle();
    monitor().answer(QLatin1String("2"));
    settle();
    QCOMPARE(replies.count(), 2);
    QCOMPARE(replies.at(0).at(0).toString(), QLatin1String("*123#"));
    QCOMPARE(replies.at(0).at(1).value<Reply>().text, menu());
    QVERIFY(replies.at(0).at(1).value<Reply>().asksForAnswer);
    QCOMPARE(replies.at(1).at(0).toString(), QLatin1String("2"));
    QCOMPARE(replies.at(1).at(1).value<Reply>().text, QLatin1String("Done"));
}

void CommandMonitorTest::theLanguageChangesWhileItWaits()
{
    monitor().send(QLatin1String("*104#"));
    settle();
    pass(8);
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("de")));
    plugin().notifyLanguageChange();
    monitor().retranslate();
    settle();
    QCOMPARE(state().kind, Kind::Waiting);
    QCOMPARE(state().title, QString::fromUtf8("Warten auf die Antwort auf \u2066*104#\u2069"));
    QCOMPARE(state().text, QLatin1String("8 von 30 Sekunden"));
    fakeSdkRespond(u"Text");
    settle();
    QCOMPARE(state().kind, Kind::Ready);
    QCOMPARE(state().title, QLatin1String("Bereit"));
}

void CommandMonitorTest::recentCodesHaveNoNumbers()
{
    QSignalSpy sent(&monitor(), &CommandMonitor::sent);
    monitor().setTemplates({QLatin1String("*140*%s#")});
    fakeSdkSetAnswer(fakeReply(u"Text"));
    for (const char *code : {"*100#", "*140*123#", "*104#", "*100#", "123456"}) {
        QVERIFY(monitor().send(QLatin1String(code)));
        settle();
    }
    QCOMPARE(monitor().recent(), QStringList({QLatin1String("*100#"), QLatin1String("*104#"),
                                              QString::fromUtf8("*140*…#")}));
    QCOMPARE(sent.count(), 4);
}

void CommandMonitorTest::nothingIsSentWithoutANetwork()
{
    setDevice(TKSV_DEVICE_SEARCHING);
    settle();
    QVERIFY(!monitor().canSend() && !monitor().send(QLatin1String("*104#")));
    QVERIFY(fakeSdkCommands().empty());
}

void CommandMonitorTest::aDisabledPageDoesNotWait()
{
    host().setEnabled(false);
    settle();
    QVERIFY(!page().isWaiting());
    QCOMPARE(state().kind, Kind::Ready);
}

// Tests that a failed prepaid/postpaid query is not shown, but that the failure of the user's next
// code is shown.
void CommandMonitorTest::aFailedQueryOfTheProgramIsNotShown()
{
    fakeSdkSetAnswer(fakeNetworkRefusal());
    fakeSdkSetLastFailure(failure(TKSV_FAILURE_ENDED_BY_NETWORK));
    bool inUse = false;
    bool postpaid = false;
    int wasSent = 0;
    plugin().ussd()->GetPrePostInfo(inUse, postpaid, wasSent, true);
    monitor().setQuerying(true);
    QVERIFY(fakeSdkWaitForRequests(1));
    settle();
    QCOMPARE(state().kind, Kind::Ready);
    monitor().setQuerying(false);
    monitor().send(QLatin1String("*999#"));
    settle();
    QCOMPARE(state().kind, Kind::Failed);
}

USSD_TEST_MAIN(CommandMonitorTest)
#include "command_monitor_test.moc"
