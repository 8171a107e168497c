/*
 * Tests how requests fail and how they are cancelled. The tests use only the C headers and a
 * fixture that provides a network, so they can be run with any type of device.
 */
#include <QtTest>

#include "SdkFixture.h"
#include "tksv_device.h"

using namespace SdkFixture;

namespace
{

const char NETWORK[] = R"([Network]
Operator=Test Net
IMSI=001010000000001
[*100#]
Reply=Balance
[*120#]
Reply=Menu
[*120#/1]
Reply=One
[*130#]
Outcome=refuse
[*134#]
Outcome=refuse
Reply=Not in this network
[*131#]
Outcome=unsupported
[*132#]
Outcome=network-timeout
[*133#]
Outcome=silence
)";

TKSV_FailureInfo lastFailure()
{
    TKSV_FailureInfo failure;
    TKSV_Device_GetLastFailure(&failure);
    return failure;
}

TKSV_SessionInfo session()
{
    TKSV_SessionInfo info;
    TKSV_Device_GetSession(&info);
    return info;
}

QString shown(const std::u16string &text)
{
    return QString::fromStdU16String(text);
}

} // namespace

class SdkFailures : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void emptyResponseHasTheReasonAsItsType_data();
    void emptyResponseHasTheReasonAsItsType();
    void closingTextIsReported();
    void replyIsNoFailure();
    void reasonBelongsToTheResponseInItsCallback();
    void refusedRequestHasAReason_data();
    void refusedRequestHasAReason();
    void malformedRequestHasAReason();
    void nullFailureIsRefused();
    void sessionFollowsItsRequests();
    void requestBelongsToTheResponseInItsCallback();

    void cancelledRequestGetsItsResponse();
    void cancelIsRefusedWithoutARequest();
    void cancelledRequestGetsNoReplyThatWaitedItsTurn();
    void releaseAfterCancelTakesBackTheResponse();
    void enableIsRefusedUnlessDisabled();
};

void SdkFailures::init()
{
    QCOMPARE(useNetwork(NETWORK), std::string());
    registerAll();
}

void SdkFailures::cleanup()
{
    unregisterAll();
    received().clear();
}

void SdkFailures::emptyResponseHasTheReasonAsItsType_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("reason");
    QTest::newRow("ended") << shown(u"*130#") << int(TKSV_FAILURE_ENDED_BY_NETWORK);
    QTest::newRow("not supported") << shown(u"*131#") << int(TKSV_FAILURE_NOT_SUPPORTED);
    QTest::newRow("timed out") << shown(u"*132#") << int(TKSV_FAILURE_NETWORK_TIMEOUT);
}

void SdkFailures::emptyResponseHasTheReasonAsItsType()
{
    QFETCH(QString, code);
    QFETCH(int, reason);
    const Response response = ask(code.toStdU16String());
    QCOMPARE(response.type, reason);
    QVERIFY(response.text.empty());
    QCOMPARE(int(lastFailure().reason), reason);
    QCOMPARE(lastFailure().wasNotSent, 0);
    QCOMPARE(lastFailure().text, "");
}

/// Tests that the network's closing message is reported. With a modem, the message is empty because
/// ModemManager 1.20 discards it.
void SdkFailures::closingTextIsReported()
{
    QCOMPARE(ask(u"*134#").type, int(TKSV_FAILURE_ENDED_BY_NETWORK));
    QVERIFY(received().responses.all().back().text.empty());
    QCOMPARE(lastFailure().text, abilities().failsInTheCall ? "Not in this network" : "");
    ask(u"*100#");
    QCOMPARE(lastFailure().text, "");
}

void SdkFailures::replyIsNoFailure()
{
    ask(u"*130#");
    QCOMPARE(request(u"*133#"), 0L);
    // A new request clears the failure of the previous one.
    QCOMPARE(int(lastFailure().reason), int(TKSV_FAILURE_NONE));
    QCOMPARE(ask(u"*100#").type, 0);
    QCOMPARE(int(lastFailure().reason), int(TKSV_FAILURE_NONE));
}

/// Tests that a call-back can read the failure of its response even after another thread has sent a
/// request. A request that the call-back itself sends clears the failure.
void SdkFailures::reasonBelongsToTheResponseInItsCallback()
{
    std::atomic<int> inside(-1);
    std::atomic<int> outside(-1);
    std::atomic<int> afterRequest(-1);
    const InsideUssd action([&](const Response &response) {
        if (response.type != TKSV_FAILURE_NOT_SUPPORTED)
            return;
        std::thread([&] {
            request(u"*133#");
            outside = lastFailure().reason;
        }).join();
        inside = lastFailure().reason;
        request(u"*133#");
        afterRequest = lastFailure().reason;
    });
    QCOMPARE(ask(u"*131#").type, int(TKSV_FAILURE_NOT_SUPPORTED));
    QVERIFY(waitUntil([&] { return afterRequest >= 0; }));
    QCOMPARE(inside.load(), int(TKSV_FAILURE_NOT_SUPPORTED));
    QCOMPARE(outside.load(), int(TKSV_FAILURE_NONE));
    QCOMPARE(afterRequest.load(), int(TKSV_FAILURE_NONE));
    unregisterAll(); // the variables are about to be destroyed
}

void SdkFailures::refusedRequestHasAReason_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("reason");
    QTest::newRow("absent") << shown(u"absent") << int(TKSV_FAILURE_NO_DEVICE);
    QTest::newRow("no SIM") << shown(u"sim-missing") << int(TKSV_FAILURE_NO_DEVICE);
    QTest::newRow("locked") << shown(u"sim-locked") << int(TKSV_FAILURE_NO_DEVICE);
    QTest::newRow("disabled") << shown(u"disabled") << int(TKSV_FAILURE_DISABLED);
    QTest::newRow("searching") << shown(u"searching") << int(TKSV_FAILURE_NOT_REGISTERED);
}

void SdkFailures::refusedRequestHasAReason()
{
    QFETCH(QString, state);
    QFETCH(int, reason);
    const std::string network = "[Network]\nOperator=O\nIMSI=001010000000001\nState=";
    QCOMPARE(useNetwork(network + state.toStdString() + "\n[*100#]\nReply=x\n"), std::string());
    int status = 0;
    QVERIFY(request(u"*100#", &status) != 0);
    QCOMPARE(status, 1);
    QCOMPARE(int(lastFailure().reason), reason);
    QCOMPARE(lastFailure().wasNotSent, 1);
}

void SdkFailures::malformedRequestHasAReason()
{
    QVERIFY(request(u"") != 0);
    QCOMPARE(int(lastFailure().reason), int(TKSV_FAILURE_NOT_ENCODABLE));
    QCOMPARE(lastFailure().wasNotSent, 1);
}

void SdkFailures::nullFailureIsRefused()
{
    QVERIFY(TKSV_Device_GetLastFailure(nullptr) != 0);
}

void SdkFailures::sessionFollowsItsRequests()
{
    QVERIFY(TKSV_Device_GetSession(nullptr) != 0);
    const unsigned long before = session().requestCount;
    QCOMPARE(shown(ask(u"*120#").text), shown(u"Menu"));
    QCOMPARE(int(session().state), int(TKSV_SESSION_WAITS_FOR_ANSWER));
    QCOMPARE(session().request, "*120#");
    QCOMPARE(shown(ask(u"1").text), shown(u"One"));
    QCOMPARE(int(session().state), int(TKSV_SESSION_IDLE));
    QCOMPARE(session().request, "1");
    QCOMPARE(request(u"*133#"), 0L);
    QCOMPARE(int(session().state), int(TKSV_SESSION_IN_FLIGHT));
    QVERIFY(request(u"") != 0); // a rejected request does not change the session
    QCOMPARE(session().request, "*133#");
    QCOMPARE(TKSV_USSDSrv_Release(nullptr), 0L);
    QCOMPARE(int(session().state), int(TKSV_SESSION_IDLE));
    QCOMPARE(session().requestCount - before, 3UL);
}

void SdkFailures::requestBelongsToTheResponseInItsCallback()
{
    Inbox<std::string> inside;
    const InsideUssd action([&](const Response &) {
        std::thread([] { request(u"*133#"); }).join();
        inside.add(session().request);
    });
    QCOMPARE(shown(ask(u"*100#").text), shown(u"Balance"));
    QVERIFY(inside.waitFor(1));
    QCOMPARE(inside.all()[0], std::string("*100#"));
    QCOMPARE(session().request, "*133#");
    unregisterAll(); // the variables are about to be destroyed
}

void SdkFailures::cancelledRequestGetsItsResponse()
{
    for (int i = 0; i < 3; ++i) {
        received().responses.clear();
        QCOMPARE(request(u"*133#"), 0L);
        QCOMPARE(TKSV_Device_CancelRequest(), 0L);
        QVERIFY(received().responses.waitFor(1));
        QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_CANCELLED));
        QVERIFY(received().responses.all()[0].text.empty());
        QCOMPARE(int(lastFailure().reason), int(TKSV_FAILURE_CANCELLED));
        QCOMPARE(shown(ask(u"*100#").text), shown(u"Balance"));
        QCOMPARE(received().responses.all().size(), std::size_t(2));
    }
}

void SdkFailures::cancelIsRefusedWithoutARequest()
{
    QVERIFY(TKSV_Device_CancelRequest() != 0);
    QCOMPARE(shown(ask(u"*120#").text), shown(u"Menu"));
    QVERIFY(TKSV_Device_CancelRequest() != 0); // a menu is open, but no request is pending
    QCOMPARE(shown(ask(u"1").text), shown(u"One"));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
}

void SdkFailures::cancelledRequestGetsNoReplyThatWaitedItsTurn()
{
    Gate gate;
    const InsideUssd inside([&](const Response &) { gate.wait(); });
    QCOMPARE(request(u"*131#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(request(u"*100#"), 0L);
    // The device replies before it sends the message, so after the result of the message, the reply
    // is in the queue.
    QVERIFY(sendSms(u"1", u"?") == 0 && received().smsResults.waitFor(1));
    QCOMPARE(TKSV_Device_CancelRequest(), 0L);
    gate.open();
    QVERIFY(received().responses.waitFor(2));
    QCOMPARE(shown(ask(u"*120#").text), shown(u"Menu"));
    QCOMPARE(received().responses.all()[1].type, int(TKSV_FAILURE_CANCELLED));
    QCOMPARE(received().responses.all().size(), std::size_t(3));
    unregisterAll(); // the gate is about to be destroyed
}

void SdkFailures::releaseAfterCancelTakesBackTheResponse()
{
    Gate gate;
    const InsideUssd inside([&](const Response &) { gate.wait(); });
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(request(u"*133#"), 0L);
    QCOMPARE(TKSV_Device_CancelRequest(), 0L);
    QCOMPARE(TKSV_USSDSrv_Release(nullptr), 0L);
    gate.open();
    QCOMPARE(shown(ask(u"*120#").text), shown(u"Menu"));
    QCOMPARE(received().responses.all().size(), std::size_t(2));
    unregisterAll(); // the gate is about to be destroyed
}

void SdkFailures::enableIsRefusedUnlessDisabled()
{
    QVERIFY(TKSV_Device_Enable() != 0);
}

QTEST_APPLESS_MAIN(SdkFailures)
#include "sdk_failures_test.moc"
