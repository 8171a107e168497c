/*
 * Tests each guarantee of tksv.h in a separate test. The tests use only tksv.h and a fixture that
 * provides a network, so they can be run with any type of device.
 */
#include <algorithm>
#include <atomic>
#include <chrono>
#include <QtTest>
#include <sys/stat.h>
#include <thread>

#include "SdkFixture.h"
#include "ThreadWatch.h"

using namespace SdkFixture;

namespace
{

const char NETWORK[] = R"([Network]
Operator=Test Net
IMSI=001010000000001
Balance=10.00

[*100#]
Reply=first
[*101#]
Reply=second
[*110#]
Reply=late
Delay=10
[*111#]
Reply=later
Delay=30
[*112#]
Reply=never in a test's time
Delay=3600000
[*120#]
Reply=menu
[*120#/1]
Reply=one
[*120#/2]
Reply=menu two
[*120#/2/1]
Reply=two one
[*120#/%s]
Reply=other {answer}
[*130#]
Outcome=refuse
[*131#]
Outcome=unsupported
[*132#]
Outcome=network-timeout
[*133#]
Outcome=silence
[*134#]
Outcome=device-timeout
[*135#]
Outcome=no-device
[*140#]
DeviceEvent=6016
Away=10
[*141#]
DeviceEvent=6601
Away=10
[*150#]
Reply=€ رصيدك 余额\nline two
[*151#]
Reply=😀
[SMS 1]
Result=0
[SMS 2]
Result=28
[SMS 3]
Delay=3600000
)";

QString shown(const std::u16string &text)
{
    return QString::fromStdU16String(text);
}

/// Sends a short message and waits for its result. By then, the device has processed all earlier
/// requests whose replies are not delayed.
bool deviceHasCaughtUp()
{
    const std::size_t before = received().smsResults.all().size();
    return sendSms(u"1", u"?") == 0 && received().smsResults.waitFor(before + 1);
}

/// Returns all responses except the failure that the loss of the device causes. With ModemManager,
/// the library may report this failure before it reports the loss.
std::vector<Response> responsesBesidesTheLoss()
{
    std::vector<Response> all = received().responses.all();
    if (!abilities().failsInTheCall && !all.empty() && all[0].type > 0 && all[0].text.empty())
        all.erase(all.begin());
    return all;
}

/// Switches to a new network without a session, and discards all recorded responses.
void startAfresh()
{
    useNetwork(NETWORK);
    TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd); // waits for running call-backs
    received().responses.clear();
    TKSV_USSDSrv_RegisterUSSDCallback(onUssd);
}

/** Counts the calls to another USSD call-back. */
std::atomic<int> secondCalls(0);
unsigned char secondUssd(int, void *)
{
    ++secondCalls;
    return 0;
}

/** Detects call-backs that run simultaneously. */
std::atomic<int> running(0);
std::atomic<bool> overlapped(false);
std::atomic<int> overlapCalls(0);
void runAlone()
{
    if (++running > 1)
        overlapped = true;
    std::this_thread::yield();
    --running;
    ++overlapCalls;
}
unsigned char aloneA(int, void *)
{
    runAlone();
    return 1;
}
unsigned char aloneB(int, void *)
{
    runAlone();
    return 1;
}

/** Detects calls after a call-back has been unregistered. */
std::atomic<bool> callAllowed(false);
std::atomic<bool> cameTooLate(false);
unsigned char onlyWhileAllowed(int, void *)
{
    if (!callAllowed)
        cameTooLate = true;
    return 1;
}

unsigned char unregistersItself(int, void *)
{
    ++secondCalls;
    TKSV_USSDSrv_UnRegisterUSSDCallback(unregistersItself);
    return 1;
}

long waitMilliseconds(std::chrono::steady_clock::time_point since)
{
    const auto passed = std::chrono::steady_clock::now() - since;
    return static_cast<long>(std::chrono::duration_cast<std::chrono::milliseconds>(passed).count());
}

} // namespace

class SdkPromises : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void requestCopiesTheRecord();
    void callsReturnAtOnce();
    void longestRequestIsTaken();
    void textArrivesUnitByUnit();

    void callbacksComeOnThreadsOfTheSdk();
    void callbackNeverComesInsideACall();
    void oneCallbackAtATimeForEachService();
    void servicesDoNotWaitForEachOther();
    void registeringTwiceIsLikeOnce();
    void registeredGetsOnlyWhatComesLater();

    void unregisterWaitsForTheRunningCallback();
    void unregisterInsideTheCallbackReturnsAtOnce();
    void noCallAfterUnregister();
    void secondUnregisterWaitsToo();
    void lastUnregisterEndsTheSession();

    void oneRequestGetsOneResponse();
    void answerContinuesTheSession();
    void codeDuringAMenuBeginsANewSession();
    void textWithoutASessionIsNoAnswer();
    void laterRequestReplacesTheEarlier();
    void replacedRequestGetsNoResponseThatWaitedItsTurn();
    void requestFromInsideTheCallbackIsTaken();
    void answerFromInsideTheCallbackIsTaken();

    void releaseEndsTheRequest();
    void releaseTakesBackAResponseThatWaitedItsTurn();
    void releaseEndsTheSession();
    void releaseWithoutASessionIsHarmless();

    void refusalHasEmptyTextAndOtherType_data();
    void refusalHasEmptyTextAndOtherType();
    void silentNetworkGivesNoResponse();

    void withoutUsableDeviceRequestFails_data();
    void withoutUsableDeviceRequestFails();
    void failureHasItsStatus();
    void failedRequestLeavesTheSessionOpen();

    void lostDeviceRaisesItsEvent_data();
    void lostDeviceRaisesItsEvent();
    void lostDeviceEndsTheSession();

    void registeringSmsRaisesCanSend();
    void registeringSmsRaisesNothingWhenItCannotSend();
    void smsStatusFollowsTheDevice();
    void smsResultNamesTheMessage_data();
    void smsResultNamesTheMessage();
    void smsFailsWithTheDevice();
    void smsIsRefusedWhileItCannotBeSent();

    void textOfTheNetworksOwnArrives();
    void textOfTheNetworksOwnCanBeAnswered();
    void textOfTheNetworksOwnIsNoResponse();
    void questionOfTheNetworksOwnWaitsForTheResponse();
    void textOfTheNetworksOwnArrivesAfterALoss();

    void userDataDirectoryExistsAndEndsInSlash();
    void garbageIsRefused();
    void manyThreadsAtOnce();

private:
    static void failureAfterTheCallIsTheResponse();
};

void SdkPromises::init()
{
    QCOMPARE(QString::fromStdString(useNetwork(NETWORK)), QString());
    registerAll();
    QVERIFY(received().smsStatus.waitFor(1));
    received().clear();
    secondCalls = 0;
}

void SdkPromises::cleanup()
{
    unregisterAll();
    TKSV_USSDSrv_UnRegisterUSSDCallback(secondUssd);
    received().clear();
}

void SdkPromises::requestCopiesTheRecord()
{
    TKSV_USSDRequest record = {10, {'*', '1', '1', '0', '#'}};
    int status = -1;
    QCOMPARE(TKSV_USSDSrv_Request(&record, &status), 0L);
    record = TKSV_USSDRequest{10, {'*', '1', '0', '1', '#'}};
    QCOMPARE(status, 0);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(shown(received().responses.all()[0].text), shown(u"late"));
}

void SdkPromises::callsReturnAtOnce()
{
    const auto start = std::chrono::steady_clock::now();
    int status = 0;
    QCOMPARE(request(u"*112#"), 0L);
    QCOMPARE(request(u"*112#"), 0L);
    QCOMPARE(TKSV_USSDSrv_Release(&status), 0L);
    QCOMPARE(sendSms(u"3", u"text"), 0L);
    QCOMPARE(request(u"*112#"), 0L);
    unregisterAll();
    QCOMPARE(useNetwork(NETWORK), std::string());
    QVERIFY(waitMilliseconds(start) < 5000); // the network would reply after an hour
}

void SdkPromises::longestRequestIsTaken()
{
    const std::u16string longest = u"*" + std::u16string(TKSV_USSD_MAX_UNITS - 2, u'1') + u"#";
    QCOMPARE(ask(longest).type, 2); // the network refuses this unknown code
    QVERIFY(request(longest + u"#") != 0);
}

void SdkPromises::textArrivesUnitByUnit()
{
    const Response response = ask(u"*150#");
    QCOMPARE(shown(response.text), shown(u"€ رصيدك 余额\nline two"));
    QCOMPARE(response.type, 0);
    QCOMPARE(response.event, 0);
    if (abilities().knowsAllOfUnicode)
        QCOMPARE(shown(ask(u"*151#").text), shown(u"😀"));
}

void SdkPromises::callbacksComeOnThreadsOfTheSdk()
{
    const Response first = ask(u"*100#");
    QVERIFY(first.thread != std::this_thread::get_id());
    QCOMPARE(ask(u"*101#").thread, first.thread);
}

void SdkPromises::callbackNeverComesInsideACall()
{
    std::atomic<bool> inCall(false);
    std::atomic<bool> nested(false);
    const InsideUssd inside([&](const Response &response) {
        if (inCall)
            nested = true;
        if (response.text != u"first")
            return;
        inCall = true;
        request(u"*101#"); // called on the thread that runs the call-backs
        inCall = false;
    });
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(2));
    QVERIFY(!nested);
}

void SdkPromises::oneCallbackAtATimeForEachService()
{
    overlapped = false;
    overlapCalls = 0;
    TKSV_SMSSrv_UnRegCallBack(onSms);
    TKSV_SMSSrv_RegCallBack(aloneA);
    TKSV_SMSSrv_RegCallBack(aloneB);
    std::vector<std::thread> senders;
    senders.reserve(4);
    for (int i = 0; i < 4; ++i)
        senders.emplace_back([] {
            for (int message = 0; message < 25; ++message)
                sendSms(u"1", u"text");
        });
    for (std::thread &sender : senders)
        sender.join();
    // 100 results for each of two call-backs.
    QVERIFY(waitUntil([] { return overlapCalls >= 200; }));
    TKSV_SMSSrv_UnRegCallBack(aloneA);
    TKSV_SMSSrv_UnRegCallBack(aloneB);
    QVERIFY(!overlapped);
}

void SdkPromises::servicesDoNotWaitForEachOther()
{
    Gate gate;
    const InsideUssd inside([&](const Response &) { gate.wait(); });
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(sendSms(u"1", u"text"), 0L);
    QVERIFY(received().smsResults.waitFor(1));
    gate.open();
    unregisterAll();
}

void SdkPromises::registeringTwiceIsLikeOnce()
{
    QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(onUssd), 0L);
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(shown(ask(u"*101#").text), shown(u"second"));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
    QCOMPARE(TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd), 0L);
    QVERIFY(TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd) != 0);
}

void SdkPromises::registeredGetsOnlyWhatComesLater()
{
    Gate gate;
    std::atomic<int> callsBefore(-1);
    const InsideUssd inside([&](const Response &) {
        gate.wait();
        callsBefore = secondCalls.load();
    });
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(request(u"*101#"), 0L);
    QVERIFY(deviceHasCaughtUp()); // the second response has been queued
    QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(secondUssd), 0L);
    gate.open();
    QVERIFY(received().responses.waitFor(2));
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(waitUntil([] { return secondCalls > 0; }));
    QCOMPARE(callsBefore.load(), 0);
    unregisterAll();
}

void SdkPromises::unregisterWaitsForTheRunningCallback()
{
    Gate gate;
    std::atomic<bool> callbackDone(false);
    std::atomic<bool> doneBeforeReturn(false);
    std::atomic<ThreadWatch::ThreadId> unregisteringId(0);
    const InsideUssd inside([&](const Response &) {
        gate.wait();
        ThreadWatch::waitUntilAsleepOrGone(unregisteringId);
        callbackDone = true;
    });
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    std::thread unregistering([&] {
        unregisteringId = ThreadWatch::currentThread();
        gate.open();
        TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd);
        doneBeforeReturn = callbackDone.load();
    });
    unregistering.join();
    QVERIFY(doneBeforeReturn);
}

void SdkPromises::unregisterInsideTheCallbackReturnsAtOnce()
{
    QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(unregistersItself), 0L);
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QVERIFY(waitUntil([] { return secondCalls == 1; }));
    QCOMPARE(shown(ask(u"*101#").text), shown(u"second"));
    QVERIFY(TKSV_USSDSrv_UnRegisterUSSDCallback(unregistersItself) != 0);
    QCOMPARE(secondCalls.load(), 1);
}

void SdkPromises::noCallAfterUnregister()
{
    cameTooLate = false;
    for (int round = 0; round < 200; ++round) {
        callAllowed = true;
        QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(onlyWhileAllowed), 0L);
        QCOMPARE(request(u"*100#"), 0L);
        if (round % 2)
            std::this_thread::yield();
        QCOMPARE(TKSV_USSDSrv_UnRegisterUSSDCallback(onlyWhileAllowed), 0L);
        callAllowed = false;
    }
    QVERIFY(deviceHasCaughtUp());
    QVERIFY(!cameTooLate);
}

void SdkPromises::secondUnregisterWaitsToo()
{
    Gate gate;
    std::atomic<bool> callbackDone(false);
    std::atomic<int> early(0);
    std::atomic<int> begun(0);
    std::atomic<int> ready(0);
    std::atomic<ThreadWatch::ThreadId> ids[2];
    const InsideUssd inside([&](const Response &) {
        gate.wait();
        for (const std::atomic<ThreadWatch::ThreadId> &id : ids)
            ThreadWatch::waitUntilAsleepOrGone(id);
        callbackDone = true;
    });
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    const auto unregister = [&] {
        ids[begun++] = ThreadWatch::currentThread();
        ++ready;
        while (ready < 2)
            std::this_thread::yield();
        gate.open();
        TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd);
        early += callbackDone ? 0 : 1;
    };
    std::thread one(unregister);
    std::thread other(unregister);
    one.join();
    other.join();
    QCOMPARE(early.load(), 0);
}

void SdkPromises::lastUnregisterEndsTheSession()
{
    QCOMPARE(ask(u"*120#").type, 1);
    QCOMPARE(TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd), 0L);
    QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(onUssd), 0L);
    QCOMPARE(ask(u"1").type, 2);
}

void SdkPromises::oneRequestGetsOneResponse()
{
    for (int i = 0; i < 20; ++i)
        QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QVERIFY(deviceHasCaughtUp());
    QCOMPARE(shown(ask(u"*101#").text), shown(u"second"));
    QCOMPARE(received().responses.all().size(), std::size_t(21));
}

void SdkPromises::answerContinuesTheSession()
{
    QCOMPARE(ask(u"*120#").type, 1);
    QCOMPARE(shown(ask(u"2").text), shown(u"menu two"));
    QCOMPARE(received().responses.all().back().type, 1);
    QCOMPARE(shown(ask(u"1").text), shown(u"two one"));
    QCOMPARE(received().responses.all().back().type, 0);
    ask(u"*120#");
    QCOMPARE(shown(ask(u"99").text), shown(u"other 99"));
}

void SdkPromises::codeDuringAMenuBeginsANewSession()
{
    QCOMPARE(ask(u"*120#").type, 1);
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(ask(u"1").type, 2); // the menu has been closed
    QCOMPARE(ask(u"*120#").type, 1);
    QCOMPARE(ask(u"#100#").type, 2); // a code, so it is not sent as an answer
}

void SdkPromises::textWithoutASessionIsNoAnswer()
{
    const Response response = ask(u"1");
    QCOMPARE(response.type, 2);
    QVERIFY(response.text.empty());
}

void SdkPromises::laterRequestReplacesTheEarlier()
{
    QVERIFY(doInTime(10, startAfresh, [] {
        request(u"*110#");
        request(u"*111#"); // its reply is due later than the reply to *110#
    }));
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
    QCOMPARE(shown(received().responses.all()[0].text), shown(u"later"));
}

void SdkPromises::replacedRequestGetsNoResponseThatWaitedItsTurn()
{
    Gate gate;
    const InsideUssd inside([&](const Response &) { gate.wait(); });
    QCOMPARE(request(u"*101#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(request(u"*120#"), 0L);
    QVERIFY(deviceHasCaughtUp());
    QCOMPARE(request(u"*100#"), 0L);
    gate.open();
    QVERIFY(received().responses.waitFor(2));
    QCOMPARE(shown(ask(u"*150#").text.substr(0, 1)), shown(u"€"));
    QCOMPARE(received().responses.all().size(), std::size_t(3));
    QCOMPARE(shown(received().responses.all()[1].text), shown(u"first"));
}

void SdkPromises::requestFromInsideTheCallbackIsTaken()
{
    std::atomic<int> left(10);
    const InsideUssd inside([&](const Response &) {
        if (left-- > 0)
            request(u"*101#");
    });
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(11));
    QCOMPARE(shown(received().responses.all()[10].text), shown(u"second"));
}

void SdkPromises::answerFromInsideTheCallbackIsTaken()
{
    const InsideUssd inside([](const Response &response) {
        if (response.type == 1)
            request(u"1");
    });
    QCOMPARE(request(u"*120#"), 0L);
    QVERIFY(received().responses.waitFor(2));
    QCOMPARE(shown(received().responses.all()[1].text), shown(u"one"));
}

void SdkPromises::releaseEndsTheRequest()
{
    int status = -1;
    QVERIFY(doInTime(10, startAfresh, [&status] {
        request(u"*110#");
        TKSV_USSDSrv_Release(&status);
    }));
    QCOMPARE(status, 0);
    QCOMPARE(shown(ask(u"*111#").text), shown(u"later"));
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

void SdkPromises::releaseTakesBackAResponseThatWaitedItsTurn()
{
    Gate gate;
    const InsideUssd inside([&](const Response &) { gate.wait(); });
    QCOMPARE(request(u"*101#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(request(u"*150#"), 0L);
    QVERIFY(deviceHasCaughtUp());
    int status = -1;
    QCOMPARE(TKSV_USSDSrv_Release(&status), 0L);
    gate.open();
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
    unregisterAll(); // the gate is about to be destroyed
}

void SdkPromises::releaseEndsTheSession()
{
    QCOMPARE(ask(u"*120#").type, 1);
    int status = -1;
    QCOMPARE(TKSV_USSDSrv_Release(&status), 0L);
    QCOMPARE(ask(u"1").type, 2);
}

void SdkPromises::releaseWithoutASessionIsHarmless()
{
    int status = -1;
    QCOMPARE(TKSV_USSDSrv_Release(&status), 0L);
    QCOMPARE(TKSV_USSDSrv_Release(nullptr), 0L);
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
}

void SdkPromises::refusalHasEmptyTextAndOtherType_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("type");
    QTest::newRow("refused") << shown(u"*130#") << 2;
    QTest::newRow("not supported") << shown(u"*131#") << 4;
    QTest::newRow("network timed out") << shown(u"*132#") << 5;
    QTest::newRow("unknown code") << shown(u"*999#") << 2;
    QTest::newRow("pattern of the scenario") << shown(u"*120#/1") << 2;
}

void SdkPromises::refusalHasEmptyTextAndOtherType()
{
    QFETCH(QString, code);
    QFETCH(int, type);
    const Response response = ask(code.toStdU16String());
    QCOMPARE(response.type, type);
    QCOMPARE(shown(response.text), QString());
}

void SdkPromises::silentNetworkGivesNoResponse()
{
    QCOMPARE(request(u"*133#"), 0L);
    QVERIFY(deviceHasCaughtUp());
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

void SdkPromises::withoutUsableDeviceRequestFails_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : {"absent", "sim-missing", "sim-locked", "disabled", "searching"})
        QTest::newRow(state) << QString::fromLatin1(state);
}

void SdkPromises::withoutUsableDeviceRequestFails()
{
    QFETCH(QString, state);
    const std::string network = "[Network]\nOperator=O\nIMSI=001010000000001\nState=";
    QCOMPARE(useNetwork(network + state.toStdString() + "\n[*100#]\nReply=x\n"), std::string());
    int status = 0;
    QVERIFY(request(u"*100#", &status) != 0);
    QVERIFY(status != 0 && status != TKSV_STATUS_DEVICE_TIMEOUT);
}

void SdkPromises::failureHasItsStatus()
{
    if (!abilities().failsInTheCall)
        return failureAfterTheCallIsTheResponse();
    int status = 0;
    QVERIFY(request(u"*134#", &status) != 0);
    QCOMPARE(status, 5);
    QVERIFY(request(u"*135#", &status) != 0);
    QVERIFY(status != 5);
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(received().responses.all().size(), std::size_t(1));
}

void SdkPromises::failureAfterTheCallIsTheResponse()
{
    const Response failure = ask(u"*135#");
    QVERIFY(failure.type > 0);
    QVERIFY(failure.text.empty());
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
}

void SdkPromises::failedRequestLeavesTheSessionOpen()
{
    QCOMPARE(ask(u"*120#").type, 1);
    if (abilities().failsInTheCall)
        QVERIFY(request(u"*134#") != 0);
    QVERIFY(request(u"") != 0);
    QCOMPARE(shown(ask(u"1").text), shown(u"one"));
}

void SdkPromises::lostDeviceRaisesItsEvent_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("event");
    QTest::newRow("gone") << shown(u"*140#") << 6016;
    QTest::newRow("reset") << shown(u"*141#") << 6601;
}

void SdkPromises::lostDeviceRaisesItsEvent()
{
    QFETCH(QString, code);
    QFETCH(int, event);
    QCOMPARE(request(code.toStdU16String()), 0L);
    QVERIFY(received().smsStatus.waitFor(2));
    // Status 8 is reported when the device disappears, and status 7 when it returns.
    QCOMPARE(received().smsStatus.all(), (std::vector<int>{8, 7}));
    QVERIFY(received().deviceEvents.waitFor(1));
    QCOMPARE(received().deviceEvents.all(), std::vector<int>{event});
    QCOMPARE(shown(ask(u"*100#").text), shown(u"first"));
    QCOMPARE(responsesBesidesTheLoss().size(), std::size_t(1));
}

void SdkPromises::lostDeviceEndsTheSession()
{
    QCOMPARE(ask(u"*120#").type, 1);
    QCOMPARE(request(u"*140#"), 0L);
    QVERIFY(received().smsStatus.waitFor(2));
    QCOMPARE(ask(u"1").type, 2);
}

void SdkPromises::registeringSmsRaisesCanSend()
{
    QCOMPARE(TKSV_SMSSrv_UnRegCallBack(onSms), 0L);
    QCOMPARE(TKSV_SMSSrv_RegCallBack(onSms), 0L);
    QVERIFY(received().smsStatus.waitFor(1));
    // A newly registered call-back receives the current status.
    QCOMPARE(TKSV_SMSSrv_RegCallBack(onSms), 0L);
    QVERIFY(received().smsStatus.waitFor(2));
    QCOMPARE(received().smsStatus.all(), (std::vector<int>{7, 7}));
}

void SdkPromises::registeringSmsRaisesNothingWhenItCannotSend()
{
    unregisterAll();
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\nSMS=not-ready\n"),
             std::string());
    registerAll();
    QCOMPARE(useNetwork(NETWORK), std::string()); // SMS is available in this network
    QVERIFY(deviceHasCaughtUp());
    QCOMPARE(received().smsStatus.all(), std::vector<int>{7});
}

/// Tests that the SMS status follows the state of the device. Compares only the last events,
/// because the number of preceding network changes depends on the type of device.
void SdkPromises::smsStatusFollowsTheDevice()
{
    const std::string network = "[Network]\nOperator=O\nIMSI=001010000000001\n";
    QCOMPARE(useNetwork(network + "[Event off]\nAfter=100\nSMS=not-ready\n"
                                  "[Event on]\nAfter=200\nSMS=ready\n"
                                  "[Event again]\nAfter=300\nSMS=ready\n"
                                  "[Event search]\nAfter=400\nState=searching\n"),
             std::string());
    const std::vector<int> expected = {7, 8, 7, 8};
    const auto hasCome = [&] {
        const std::vector<int> all = received().smsStatus.all();
        return all.size() >= expected.size() &&
               std::equal(expected.rbegin(), expected.rend(), all.rbegin());
    };
    QVERIFY(waitUntil(hasCome));
}

void SdkPromises::smsResultNamesTheMessage_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::newRow("sent") << shown(u"1") << "hello" << 0;
    QTest::newRow("failed") << shown(u"2") << "hello" << 28;
    if (abilities().sendsEmptySms)
        QTest::newRow("empty text") << shown(u"1") << "" << 0;
    QTest::newRow("other letters") << shown(u"+1") << shown(u"да 好") << 0;
    if (abilities().knowsAllOfUnicode)
        QTest::newRow("surrogates") << shown(u"+1") << shown(u"😀") << 0;
}

void SdkPromises::smsResultNamesTheMessage()
{
    QFETCH(QString, number);
    QFETCH(QString, text);
    QFETCH(int, result);
    // sendSms() also frees the record.
    QCOMPARE(sendSms(number.toStdU16String(), text.toStdU16String()), 0L);
    QVERIFY(received().smsResults.waitFor(1));
    const SmsResult got = received().smsResults.all()[0];
    QCOMPARE(got.result != 0, result != 0);
    QCOMPARE(shown(got.number), number);
    QCOMPARE(shown(got.text), text);
}

void SdkPromises::smsFailsWithTheDevice()
{
    QVERIFY(doInTime(
        200,
        [] {
            useNetwork(std::string(NETWORK) + "[Event pulled out]\nAfter=200\nDeviceEvent=6016\n");
        },
        [] { sendSms(u"3", u"on its way"); }));
    QVERIFY(received().smsResults.waitFor(1));
    QVERIFY(received().smsResults.all()[0].result != 0);
    QCOMPARE(shown(received().smsResults.all()[0].text), shown(u"on its way"));
}

void SdkPromises::smsIsRefusedWhileItCannotBeSent()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\nSMS=not-ready\n"),
             std::string());
    QVERIFY(sendSms(u"1", u"text") != 0);
}

void SdkPromises::textOfTheNetworksOwnArrives()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\n"
                        "[Push news]\nAfter=5\nReply=news\n"),
             std::string());
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(shown(received().responses.all()[0].text), shown(u"news"));
    QCOMPARE(received().responses.all()[0].type, 0);
}

void SdkPromises::textOfTheNetworksOwnCanBeAnswered()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\n"
                        "[Push offer]\nAfter=5\nReply=yes or no?\n[Push offer/1]\nReply=yes\n"),
             std::string());
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, 1);
    QCOMPARE(shown(ask(u"1").text), shown(u"yes"));
}

/// Sends a request that is still pending when the network sends a message. `push` contains the
/// scenario lines that define this message. Returns false if the machine is too slow.
bool requestDuring(const std::string &push)
{
    const std::string network = "[Network]\nOperator=O\nIMSI=001010000000001\n"
                                "[*100#]\nReply=reply\nDelay=600\n";
    return doInTime(300, startAfresh, [&] {
        useNetwork(network + "[Push own]\nAfter=300\n" + push);
        request(u"*100#");
    });
}

void SdkPromises::textOfTheNetworksOwnIsNoResponse()
{
    QVERIFY(requestDuring("Reply=news\n"));
    QVERIFY(received().responses.waitFor(2));
    QCOMPARE(shown(received().responses.all()[0].text), shown(u"reply"));
    QCOMPARE(shown(received().responses.all()[1].text), shown(u"news"));
}

void SdkPromises::questionOfTheNetworksOwnWaitsForTheResponse()
{
    QVERIFY(requestDuring("Reply=yes or no?\n[Push own/1]\nReply=yes\n"));
    QVERIFY(received().responses.waitFor(2));
    QCOMPARE(received().responses.all()[1].type, 1);
    QCOMPARE(shown(ask(u"1").text), shown(u"yes"));
}

void SdkPromises::textOfTheNetworksOwnArrivesAfterALoss()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\n"
                        "[*140#]\nDeviceEvent=6016\nAway=10\n"
                        "[Push news]\nAfter=30\nReply=news\n"),
             std::string());
    QCOMPARE(request(u"*140#"), 0L);
    QVERIFY(waitUntil([] { return !responsesBesidesTheLoss().empty(); }));
    QCOMPARE(shown(responsesBesidesTheLoss()[0].text), shown(u"news"));
}

void SdkPromises::userDataDirectoryExistsAndEndsInSlash()
{
    unsigned short *directory = nullptr;
    QCOMPARE(TKSV_GetUserDataDirectory(&directory), 0L);
    const QString path = QString::fromUtf16(reinterpret_cast<const char16_t *>(directory));
    delete[] directory;
    QVERIFY(path.endsWith(shown(u"/")));
    struct stat status = {};
    QCOMPARE(stat(path.toUtf8().constData(), &status), 0);
    QVERIFY(S_ISDIR(status.st_mode));
}

void SdkPromises::garbageIsRefused()
{
    int status = 0;
    TKSV_USSDRequest record = {};
    for (const unsigned int length : {0U, 7U, 370U, 0xFFFFFFFFU}) {
        record.length = length;
        QVERIFY(TKSV_USSDSrv_Request(&record, &status) != 0);
        QVERIFY(status != 0);
    }
    record = TKSV_USSDRequest{2, {0xD800}}; // an unpaired surrogate
    QVERIFY(TKSV_USSDSrv_Request(&record, &status) != 0);
    QVERIFY(TKSV_USSDSrv_Request(nullptr, &status) != 0);
    QVERIFY(TKSV_USSDSrv_Request(&record, nullptr) != 0);
    QVERIFY(TKSV_USSDSrv_RegisterUSSDCallback(nullptr) != 0);
    QVERIFY(TKSV_USSDSrv_UnRegisterUSSDCallback(nullptr) != 0);
    QVERIFY(TKSV_DevSrv_RegisterDevInitEventCallback(nullptr) != 0);
    QVERIFY(TKSV_SMSSrv_RegCallBack(nullptr) != 0);
    QVERIFY(TKSV_GetUserDataDirectory(nullptr) != 0);

    const unsigned short text[] = {'1', 0};
    const unsigned short empty[] = {0};
    TKSV_SMSRecord sms = reinterpret_cast<TKSV_SMSRecord>(1);
    QVERIFY(TKSV_SMSSrv_CreateSMSRecord(nullptr, text, text) != 0);
    QVERIFY(TKSV_SMSSrv_CreateSMSRecord(&sms, nullptr, text) != 0);
    QVERIFY(sms == nullptr);
    QVERIFY(TKSV_SMSSrv_CreateSMSRecord(&sms, empty, text) != 0);
    QVERIFY(TKSV_SMSSrv_CreateSMSRecord(&sms, text, nullptr) != 0);
    QVERIFY(TKSV_SMSSrv_SendMsg(nullptr) != 0);
    QVERIFY(TKSV_SMSSrv_ReleaseSMSRecord(nullptr) != 0);
    QCOMPARE(TKSV_SMSSrv_CreateSMSRecord(&sms, text, text), 0L);
    QCOMPARE(TKSV_SMSSrv_ReleaseSMSRecord(sms), 0L);
    QVERIFY(TKSV_SMSSrv_ReleaseSMSRecord(sms) != 0);
    QVERIFY(TKSV_SMSSrv_SendMsg(sms) != 0);
}

/// Tests that all functions can be called concurrently. The sanitizers detect errors during the
/// calls. Afterwards, the device must still work.
void SdkPromises::manyThreadsAtOnce()
{
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([i] {
            int status = 0;
            for (int round = 0; round < 50; ++round) {
                request(i % 2 ? u"*120#" : u"*100#");
                request(u"1");
                TKSV_USSDSrv_RegisterUSSDCallback(secondUssd);
                sendSms(u"1", u"text");
                TKSV_USSDSrv_UnRegisterUSSDCallback(secondUssd);
                if (round % 5 == 0)
                    TKSV_USSDSrv_Release(&status);
                if (i == 0 && round % 10 == 0)
                    useNetwork(NETWORK);
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    int status = 0;
    QCOMPARE(TKSV_USSDSrv_Release(&status), 0L);
    unregisterAll();
    received().clear();
    registerAll();
    QCOMPARE(shown(ask(u"*101#").text), shown(u"second"));
}

QTEST_APPLESS_MAIN(SdkPromises)
#include "sdk_promises_test.moc"
