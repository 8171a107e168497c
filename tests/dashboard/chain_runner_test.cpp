#include "CommandTest.h"
#include "plugin/ChainRunner.h"
#include "plugin/WalkWatcher.h"

using namespace Dashboard;

namespace
{

const char16_t MAIN_MENU[] = u"Menu\n1 Account\n2 Internet";
const char16_t PACKS[] = u"Internet\n1 1 GB for 2 EUR\n2 5 GB for 7 EUR";
const char16_t BOUGHT[] = u"You have bought 1 GB.";

using Commands = std::vector<std::u16string>;

Chains::Chain packChain()
{
    return {"Pack", "*123#", {{"2", "Internet"}, {"1", "1 GB for 2 EUR"}}};
}

QString plain(QString text)
{
    return text.remove(QChar(0x2066)).remove(QChar(0x2068)).remove(QChar(0x2069));
}

} // namespace

/** Tests how a chain in the plug-in's window ends, and which choices of the user are recorded. */
class ChainRunnerTest : public CommandTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void everyStepIsSent();
    void theLastMenuStaysOpen();
    void aChangedMenuStopsTheChain();
    void aMissingChoiceStopsTheChain();
    void aReplyWithoutAMenuStopsTheChain();
    void theMessageGoesWithTheMenu();
    void theMessageGoesWithTheNextCode();
    void cancelEndsTheChain();
    void aFailureEndsTheChain();
    void aLostDeviceEndsTheChain();
    void anotherDeviceEndsTheChain();
    void aQuestionOfTheNetworkStopsTheChain();
    void theUsersCodeEndsTheChain();
    void whatTheUserTypesStopsTheChain();
    void endingTheMenuEndsTheChain();
    void aBlockedDeviceStartsNothing();
    void aChainStartsNoOther();
    void aWalkOfTheUserIsRecorded();
    void aFailedWalkIsNotRecorded();
    void aPinInTheCodeIsNotRecorded();
    void anAnswerOfTheUserIsNotRecorded();

private:
    ChainRunner &runner() { return *m_runner; }
    Commands sentBy(const std::vector<FakeAnswer> &answers);
    std::string walk() const { return m_watcher->walk().keys(); }
    void sendAll(const QStringList &codes);

    QScopedPointer<ChainRunner> m_runner;
    QScopedPointer<WalkWatcher> m_watcher;
};

void ChainRunnerTest::setUp()
{
    CommandTest::setUp();
    m_runner.reset(new ChainRunner(&monitor()));
    m_watcher.reset(new WalkWatcher(&monitor()));
}

void ChainRunnerTest::tearDown()
{
    m_runner.reset();
    m_watcher.reset();
    CommandTest::tearDown();
}

/// Runs the chain until it stops, and returns the commands that were sent. The network replies with
/// `answers`.
Commands ChainRunnerTest::sentBy(const std::vector<FakeAnswer> &answers)
{
    fakeSdkScript(answers);
    if (!runner().run(packChain()))
        return {};
    for (int i = 0; i < 4; ++i)
        settle();
    return fakeSdkCommands();
}

void ChainRunnerTest::sendAll(const QStringList &codes)
{
    for (const QString &code : codes) {
        QVERIFY(monitor().send(code));
        settle();
    }
}

void ChainRunnerTest::everyStepIsSent()
{
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeReply(PACKS, 1), fakeReply(BOUGHT)});
    QVERIFY(runner().run(packChain()));
    QCOMPARE(plain(runner().state().progress), QLatin1String("Pack: step 1 of 3"));
    for (int i = 0; i < 4; ++i)
        settle();
    QVERIFY(fakeSdkCommands() == (Commands{u"*123#", u"2", u"1"}));
    QVERIFY(!runner().isRunning() && runner().state().kind == ChainState::Kind::None);
    QCOMPARE(state().kind, Kind::Ready);
    QVERIFY(page().transcript().contains(QLatin1String("You have bought 1 GB.")));
}

void ChainRunnerTest::theLastMenuStaysOpen()
{
    const Commands sent =
        sentBy({fakeReply(MAIN_MENU, 1), fakeReply(PACKS, 1), fakeReply(u"Sure?\n1 Yes\n2 No", 1)});
    QCOMPARE(sent.size(), std::size_t(3));
    QVERIFY(!runner().isRunning() && !runner().state().hasStopped());
    QCOMPARE(state().kind, Kind::MenuOpen);
    QCOMPARE(state().choices.size(), 2);
}

void ChainRunnerTest::aChangedMenuStopsTheChain()
{
    const Commands sent =
        sentBy({fakeReply(MAIN_MENU, 1), fakeReply(u"Internet\n1 1 GB for 20 EUR\n2 Back", 1)});
    QVERIFY(sent == (Commands{u"*123#", u"2"}));
    QVERIFY(runner().state().hasStopped() && !runner().isRunning());
    QCOMPARE(plain(runner().state().title), QLatin1String("Pack stopped at step 3 of 3"));
    QCOMPARE(plain(runner().state().text),
             QString::fromUtf8(
                 "Key 1 is now “1 GB for 20 EUR”, not “1 GB for 2 EUR”. Nothing more was sent."));
    QCOMPARE(state().kind, Kind::MenuOpen); // the menu stays open for the user
    QVERIFY(readSession().waitsForAnswer());
}

void ChainRunnerTest::aMissingChoiceStopsTheChain()
{
    const Commands sent = sentBy({fakeReply(u"Menu\n1 Account\n3 Help", 1)});
    QVERIFY(sent == Commands{u"*123#"});
    QCOMPARE(
        plain(runner().state().text),
        QString::fromUtf8("The menu no longer offers “Internet” on key 2. Nothing more was sent."));
}

void ChainRunnerTest::aReplyWithoutAMenuStopsTheChain()
{
    const Commands sent = sentBy({fakeReply(MAIN_MENU)}); // this reply ends the session
    QVERIFY(sent == Commands{u"*123#"});
    QCOMPARE(runner().state().text,
             QLatin1String("The network opened no menu. Nothing more was sent."));
    QCOMPARE(state().kind, Kind::Ready);
    runner().dismiss();
    QVERIFY(!runner().state().hasStopped());
}

void ChainRunnerTest::theMessageGoesWithTheMenu()
{
    sentBy({fakeReply(u"Menu\n1 Account\n3 Help", 1)});
    monitor().endMenu();
    settle();
    QVERIFY(!runner().state().hasStopped());
}

void ChainRunnerTest::theMessageGoesWithTheNextCode()
{
    sentBy({fakeReply(MAIN_MENU), fakeSilence()});
    QVERIFY(runner().state().hasStopped());
    sendAll({QLatin1String("*100#")});
    QVERIFY(!runner().state().hasStopped());
}

void ChainRunnerTest::cancelEndsTheChain()
{
    QCOMPARE(sentBy({fakeReply(MAIN_MENU, 1), fakeSilence()}).size(), std::size_t(2));
    QVERIFY(runner().isRunning());
    monitor().cancel();
    settle();
    QCOMPARE(state().kind, Kind::Cancelled);
    QVERIFY(!runner().isRunning() && !runner().state().hasStopped());
    QCOMPARE(fakeSdkCommands().size(), std::size_t(2));
}

void ChainRunnerTest::aFailureEndsTheChain()
{
    TKSV_FailureInfo failure = {};
    failure.reason = TKSV_FAILURE_REFUSED;
    fakeSdkSetLastFailure(failure);
    QCOMPARE(sentBy({fakeReply(MAIN_MENU, 1), fakeNetworkRefusal()}).size(), std::size_t(2));
    QCOMPARE(state().kind, Kind::Failed);
    QVERIFY(!runner().isRunning() && !runner().state().hasStopped());
}

void ChainRunnerTest::aLostDeviceEndsTheChain()
{
    sentBy({fakeReply(MAIN_MENU, 1), fakeSilence()});
    TKSV_FailureInfo failure = {};
    failure.reason = TKSV_FAILURE_DEVICE_LOST;
    fakeSdkSetLastFailure(failure);
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_GONE);
    settle();
    QVERIFY(!runner().isRunning());
    QCOMPARE(fakeSdkCommands().size(), std::size_t(2));
}

void ChainRunnerTest::anotherDeviceEndsTheChain()
{
    sentBy({fakeReply(MAIN_MENU, 1), fakeSilence()});
    TKSV_USSDSrv_Release(nullptr); // as the SDK does when it switches to another device
    monitor().forget();
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_GONE);
    settle();
    monitor().look();
    QVERIFY(!runner().isRunning());
    QCOMPARE(fakeSdkCommands().size(), std::size_t(2));
}

void ChainRunnerTest::aQuestionOfTheNetworkStopsTheChain()
{
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeSilence()});
    sentBy({fakeReply(MAIN_MENU, 1), fakeSilence()});
    Reply question;
    question.text = QLatin1String("Do you agree?\n1 Yes\n2 No");
    question.isReceived = true;
    question.asksForAnswer = true;
    emit monitor().replied(QString(), question);
    QVERIFY(!runner().isRunning() && runner().state().hasStopped());
    QVERIFY(runner().state().text.startsWith(QLatin1String("The network asks something")));
    fakeSdkRespond(PACKS, 1); // a late reply to the step of the chain
    settle();
    QCOMPARE(fakeSdkCommands().size(), std::size_t(2));
}

void ChainRunnerTest::theUsersCodeEndsTheChain()
{
    fakeSdkScript({fakeSilence(), fakeReply(MAIN_MENU, 1)});
    QVERIFY(runner().run(packChain()));
    settle();
    TKSV_USSDRequest request = {};
    request.length = 2 * 5;
    const unsigned short code[] = {'*', '1', '2', '3', '#'};
    std::copy(code, code + 5, request.text);
    int status = 0;
    TKSV_USSDSrv_Request(&request, &status); // the same code, from another window
    settle();
    settle();
    // The chain has ended without a message.
    QVERIFY(!runner().isRunning() && !runner().state().hasStopped());
    QVERIFY(fakeSdkCommands() == (Commands{u"*123#", u"*123#"}));
}

void ChainRunnerTest::whatTheUserTypesStopsTheChain()
{
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeReply(PACKS, 1)});
    // The user is faster than the chain: the field accepts input, but the chain has not checked the
    // menu yet.
    const auto connection = connect(&monitor(), &CommandMonitor::changed, this, [this] {
        if (state().kind == Kind::MenuOpen && page().commandEdit()->isEnabled())
            typeInto(page().commandEdit(), QLatin1String("0"));
    });
    ChainRunner late(&monitor()); // notified later than the simulated user
    m_runner.reset();
    QVERIFY(late.run(packChain()));
    settle();
    settle();
    disconnect(connection);
    QVERIFY(late.state().hasStopped());
    QCOMPARE(late.state().text,
             QLatin1String("You have typed something yourself. Nothing more was sent."));
    QVERIFY(fakeSdkCommands() == Commands{u"*123#"});
    QCOMPARE(page().commandEdit()->text(), QLatin1String("0"));
}

void ChainRunnerTest::endingTheMenuEndsTheChain()
{
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeReply(PACKS, 1)});
    connect(&monitor(), &CommandMonitor::changed, &runner(), [this] {
        if (state().kind == Kind::MenuOpen)
            monitor().endMenu();
    });
    ChainRunner late(&monitor());
    QVERIFY(late.run(packChain()));
    settle();
    settle();
    QVERIFY(!late.isRunning() && !late.state().hasStopped());
    QVERIFY(fakeSdkCommands() == Commands{u"*123#"});
}

void ChainRunnerTest::aBlockedDeviceStartsNothing()
{
    setDevice(TKSV_DEVICE_SIM_LOCKED);
    settle();
    QVERIFY(!runner().run(packChain()));
    QVERIFY(!runner().isRunning() && fakeSdkCommands().empty());
    setDevice(TKSV_DEVICE_REGISTERED);
    settle();
    Chains::Chain broken = packChain();
    broken.code = "call";
    QVERIFY(!runner().run(broken));
    QVERIFY(fakeSdkCommands().empty());
}

void ChainRunnerTest::aChainStartsNoOther()
{
    sentBy({fakeReply(MAIN_MENU, 1), fakeSilence()});
    QVERIFY(!runner().run(packChain()));
    QCOMPARE(fakeSdkCommands().size(), std::size_t(2));
}

void ChainRunnerTest::aWalkOfTheUserIsRecorded()
{
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeReply(PACKS, 1), fakeReply(BOUGHT)});
    sendAll({QLatin1String("*123#"), QLatin1String("2")});
    QVERIFY(m_watcher->walk().steps.empty()); // the walk has not ended yet
    sendAll({QLatin1String("1")});
    QVERIFY(m_watcher->walk().isSameWalk(packChain()));
    m_watcher->forget();
    QVERIFY(m_watcher->walk().steps.empty());
}

void ChainRunnerTest::aFailedWalkIsNotRecorded()
{
    TKSV_FailureInfo failure = {};
    failure.reason = TKSV_FAILURE_REFUSED;
    fakeSdkSetLastFailure(failure);
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeReply(PACKS, 1), fakeNetworkRefusal()});
    sendAll({QLatin1String("*123#"), QLatin1String("2"), QLatin1String("1")});
    QVERIFY(m_watcher->walk().steps.empty());
}

void ChainRunnerTest::aPinInTheCodeIsNotRecorded()
{
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeReply(BOUGHT)});
    monitor().setTemplates({QLatin1String("*12*%s#")});
    sendAll({QLatin1String("*12*47#"), QLatin1String("2")});
    QVERIFY(m_watcher->walk().steps.empty());
}

void ChainRunnerTest::anAnswerOfTheUserIsNotRecorded()
{
    fakeSdkScript({fakeReply(MAIN_MENU, 1), fakeReply(u"Type your PIN", 1), fakeReply(PACKS, 1),
                   fakeReply(BOUGHT)});
    sendAll(
        {QLatin1String("*123#"), QLatin1String("2"), QLatin1String("4711"), QLatin1String("1")});
    QCOMPARE(QString::fromStdString(walk()), QString::fromUtf8("*123# › 2"));
}

USSD_TEST_MAIN(ChainRunnerTest)
#include "chain_runner_test.moc"
