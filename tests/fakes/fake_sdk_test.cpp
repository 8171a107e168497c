#include "UssdTest.h"

#include "fake_tksv.h"
#include "ThreadWatch.h"

#include <atomic>
#include <cstring>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

namespace
{
using std::chrono::milliseconds;

const milliseconds LONG_TIME(600000);

struct Heard {
    int event;
    bool null;
    int type;
    std::u16string text;
    std::thread::id thread;
};

std::mutex g_mutex;
std::vector<Heard> g_heard;
std::atomic<bool> g_holdCallback(false);
std::atomic<bool> g_inCallback(false);

std::u16string unitsOf(const unsigned short *units)
{
    std::u16string text;
    while (*units)
        text.push_back(static_cast<char16_t>(*units++));
    return text;
}

void keep(const Heard &heard)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_heard.push_back(heard);
}

std::vector<Heard> heard()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_heard;
}

unsigned char onResponse(int event, void *data)
{
    Heard heard{event, data == nullptr, 0, std::u16string(), std::this_thread::get_id()};
    if (data) {
        const auto response = static_cast<const TKSV_USSDResponse *>(data);
        heard.type = response->type;
        heard.text = unitsOf(response->text);
    }
    keep(heard);
    g_inCallback = true;
    while (g_holdCallback)
        std::this_thread::yield();
    g_inCallback = false;
    return data ? 1 : 0;
}

unsigned char onDevice(int event, void *data)
{
    keep({event, data == nullptr, 0, std::u16string(), std::this_thread::get_id()});
    return 1;
}

unsigned char onSms(int event, void *data)
{
    Heard heard{event, data == nullptr, 0, std::u16string(), std::this_thread::get_id()};
    if (data && event == TKSV_SMS_EVENT_STATUS_CHANGED)
        heard.type = static_cast<const TKSV_SMSStatus *>(data)->status;
    if (data && event == TKSV_SMS_EVENT_SEND_RESULT) {
        const auto result = static_cast<const TKSV_SMSSendResult *>(data);
        heard.type = result->result;
        heard.text = unitsOf(result->number) + u"|" + unitsOf(result->text);
    }
    keep(heard);
    return 1;
}

unsigned char leaveFromInside(int, void *)
{
    TKSV_USSDSrv_UnRegisterUSSDCallback(leaveFromInside);
    return 1;
}

void onInfo(void *context)
{
    ++*static_cast<std::atomic<int> *>(context);
}

TKSV_USSDRequest recordOf(const std::u16string &text)
{
    TKSV_USSDRequest record;
    std::memset(&record, 0, sizeof record);
    record.length = static_cast<unsigned>(text.size() * 2);
    std::copy(text.begin(), text.end(), record.text);
    return record;
}

long request(const std::u16string &text, int *status = nullptr)
{
    TKSV_USSDRequest record = recordOf(text);
    int unused = 0;
    return TKSV_USSDSrv_Request(&record, status ? status : &unused);
}

FakeAnswer times(int count, const std::u16string &text)
{
    FakeAnswer answer = fakeReply(text);
    answer.times = count;
    return answer;
}

/// Blocks the call-back until this object is destroyed.
class HeldCallback
{
public:
    HeldCallback() { g_holdCallback = true; }
    ~HeldCallback() { release(); }
    void release() { g_holdCallback = false; }
    void waitUntilInside() const
    {
        while (!g_inCallback)
            std::this_thread::yield();
    }
};
} // namespace

class FakeSdkTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override { fakeSdkReset(); }

private slots:
    void requestIsRecordedWithThreadAndBytes();
    void replyComesOnAThreadOfItsOwn();
    void replyCanComeBeforeRequestReturns();
    void replyComesAsOftenAsTold();
    void silenceStaysSilent();
    void scriptIsFollowedInOrder();
    void refusalGivesResultAndStatus();
    void networkRefusalIsEmptyWithAType();
    void nullDataIsDelivered();
    void heldBackReplyComesAfterNextRequest();
    void laterRequestEndsAnEarlierOne();
    void releaseEndsARequest();
    void stubbornReplyComesAllTheSame();
    void severalThreadsReplyAtOnce();
    void requestBlocksUntilUnblocked();
    void responseCanComeUnasked();
    void failedRegistrationRegistersNothing();
    void unregisterWaitsForRunningCallback();
    void badSdkDoesNotWait();
    void unregisterFromInsideReturns();
    void deviceEventIsRaised();
    void deviceInfoIsTold();
    void scenarioOutcomeIsTold();
    void modemsAreTold();
    void networkTextIsTold();
    void smsStatusIsRaisedOnRegistrationWhenReady();
    void smsResultCarriesBothTexts();
    void unknownSmsEventHasNullData();
    void smsRecordsAreCounted();
    void smsFunctionsFailWhenTold();
    void userDataDirectoryIsHandedOut();
    void userDataDirectoryFailsUntilSet();
    void resetForgetsEverything();
};

void FakeSdkTest::setUp()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_heard.clear();
}

void FakeSdkTest::requestIsRecordedWithThreadAndBytes()
{
    std::thread::id thread;
    std::thread caller([&] {
        thread = std::this_thread::get_id();
        request(u"*100#");
    });
    caller.join();
    const auto calls = fakeSdkCalls("TKSV_USSDSrv_Request");
    QCOMPARE(calls.size(), std::size_t(1));
    QVERIFY(calls[0].thread == thread);
    QVERIFY(calls[0].text == u"*100#");
    const TKSV_USSDRequest record = recordOf(u"*100#");
    QCOMPARE(calls[0].bytes.size(), std::size_t(372));
    QCOMPARE(std::memcmp(calls[0].bytes.data(), &record, sizeof record), 0);
    QVERIFY(calls[0].returned);
}

void FakeSdkTest::replyComesOnAThreadOfItsOwn()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkSetAnswer(fakeReply(u"Balance: 5 \u20ac", 1));
    QCOMPARE(request(u"*100#"), 0L);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(heard().size(), std::size_t(1));
    QVERIFY(heard()[0].text == u"Balance: 5 \u20ac");
    QCOMPARE(heard()[0].type, 1);
    QVERIFY(heard()[0].thread != std::this_thread::get_id());
    QCOMPARE(fakeSdkDeliveries()[0].result, static_cast<unsigned char>(1));
}

void FakeSdkTest::replyCanComeBeforeRequestReturns()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    FakeAnswer early = fakeReply(u"early");
    early.beforeReturn = true;
    fakeSdkSetAnswer(early);
    request(u"*1#");
    QCOMPARE(heard().size(), std::size_t(1));
}

void FakeSdkTest::replyComesAsOftenAsTold()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkSetAnswer(times(2, u"twice"));
    request(u"*1#");
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(heard().size(), std::size_t(2));
}

void FakeSdkTest::silenceStaysSilent()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    QCOMPARE(request(u"*1#"), 0L);
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(heard().empty());
}

void FakeSdkTest::scriptIsFollowedInOrder()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkSetAnswer(fakeReply(u"otherwise"));
    fakeSdkScript({fakeReply(u"first"), fakeReply(u"second")});
    for (std::size_t i = 1; i <= 3; ++i) {
        request(u"*1#");
        QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, i));
    }
    QVERIFY(heard()[0].text == u"first");
    QVERIFY(heard()[1].text == u"second");
    QVERIFY(heard()[2].text == u"otherwise");
}

void FakeSdkTest::refusalGivesResultAndStatus()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkSetAnswer(fakeRefused(7, TKSV_STATUS_DEVICE_TIMEOUT));
    int status = 0;
    QCOMPARE(request(u"*1#", &status), 7L);
    QCOMPARE(status, TKSV_STATUS_DEVICE_TIMEOUT);
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(heard().empty());
    QCOMPARE(fakeSdkCalls("TKSV_USSDSrv_Request")[0].result, 7L);
}

void FakeSdkTest::networkRefusalIsEmptyWithAType()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkSetAnswer(fakeNetworkRefusal());
    request(u"*1#");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QVERIFY(heard()[0].text.empty());
    QVERIFY(heard()[0].type != 0);
}

void FakeSdkTest::nullDataIsDelivered()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    FakeAnswer answer = fakeReply(u"");
    answer.nullData = true;
    fakeSdkSetAnswer(answer);
    request(u"*1#");
    fakeSdkRespondNull();
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 2));
    QVERIFY(heard()[0].null);
    QVERIFY(heard()[1].null);
    QCOMPARE(fakeSdkDeliveries()[0].result, static_cast<unsigned char>(0));
}

void FakeSdkTest::heldBackReplyComesAfterNextRequest()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    FakeAnswer late = fakeReply(u"late");
    late.afterNextRequest = true;
    fakeSdkScript({late, fakeReply(u"in time")});
    request(u"*1#");
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(heard().empty());
    request(u"*2#");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 2));
    QVERIFY(heard()[0].text == u"late");
    QVERIFY(heard()[1].text == u"in time");
}

void FakeSdkTest::laterRequestEndsAnEarlierOne()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkScript({fakeReplyAfter(LONG_TIME, u"first"), fakeReply(u"second")});
    request(u"*1#");
    request(u"*2#");
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(heard().size(), std::size_t(1));
    QVERIFY(heard()[0].text == u"second");
}

void FakeSdkTest::releaseEndsARequest()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkSetAnswer(fakeReplyAfter(LONG_TIME, u"never"));
    request(u"*1#");
    int status = 1;
    QCOMPARE(TKSV_USSDSrv_Release(&status), 0L);
    QCOMPARE(status, 0);
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(heard().empty());
}

void FakeSdkTest::stubbornReplyComesAllTheSame()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    FakeAnswer stubborn = fakeReplyAfter(milliseconds(20), u"first");
    stubborn.stubborn = true;
    fakeSdkScript({stubborn, fakeReply(u"second")});
    request(u"*1#");
    request(u"*2#");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 2));
    QVERIFY(heard()[1].text == u"first");
}

void FakeSdkTest::severalThreadsReplyAtOnce()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    FakeAnswer crowd = times(5, u"crowd");
    crowd.threads = 4;
    fakeSdkSetAnswer(crowd);
    request(u"*1#");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 20));
    QVERIFY(fakeSdkWaitIdle());
    std::set<std::thread::id> threads;
    for (const Heard &one : heard())
        threads.insert(one.thread);
    QCOMPARE(heard().size(), std::size_t(20));
    QCOMPARE(threads.size(), std::size_t(4));
}

void FakeSdkTest::requestBlocksUntilUnblocked()
{
    FakeAnswer blocking = fakeSilence();
    blocking.block = LONG_TIME;
    fakeSdkSetAnswer(blocking);
    std::thread caller([] { request(u"*1#"); });
    QVERIFY(fakeSdkWaitForRequests(1));
    QVERIFY(!fakeSdkCalls()[0].returned);
    fakeSdkUnblock();
    caller.join();
    QVERIFY(fakeSdkCalls()[0].returned);
}

void FakeSdkTest::responseCanComeUnasked()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkRespond(u"news", 2);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QVERIFY(heard()[0].text == u"news");
    QCOMPARE(heard()[0].type, 2);
}

void FakeSdkTest::failedRegistrationRegistersNothing()
{
    fakeSdkSetResult("TKSV_USSDSrv_RegisterUSSDCallback", 3);
    QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(onResponse), 3L);
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), std::size_t(0));
    fakeSdkRespond(u"unheard");
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(heard().empty());
    fakeSdkSetResult("TKSV_USSDSrv_RegisterUSSDCallback", 0);
    QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(onResponse), 0L);
    QCOMPARE(TKSV_USSDSrv_RegisterUSSDCallback(onResponse), 0L);
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), std::size_t(1));
}

void FakeSdkTest::unregisterWaitsForRunningCallback()
{
    HeldCallback held;
    std::atomic<bool> unregistered(false);
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkRespond(u"text");
    held.waitUntilInside();
    std::atomic<ThreadWatch::ThreadId> leavingId(0);
    std::thread leaving([&] {
        leavingId = ThreadWatch::currentThread();
        TKSV_USSDSrv_UnRegisterUSSDCallback(onResponse);
        unregistered = !g_inCallback;
    });
    QVERIFY(fakeSdkWaitForCalls("TKSV_USSDSrv_UnRegisterUSSDCallback", 1));
    ThreadWatch::waitUntilAsleepOrGone(leavingId);
    QVERIFY(!fakeSdkCalls("TKSV_USSDSrv_UnRegisterUSSDCallback")[0].returned);
    held.release();
    leaving.join();
    QVERIFY(unregistered);
    fakeSdkRespond(u"unheard");
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(heard().size(), std::size_t(1));
}

void FakeSdkTest::badSdkDoesNotWait()
{
    HeldCallback held;
    fakeSdkSetUnregisterWaits(false);
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkRespond(u"text");
    held.waitUntilInside();
    QCOMPARE(TKSV_USSDSrv_UnRegisterUSSDCallback(onResponse), 0L);
    QVERIFY(g_inCallback);
}

void FakeSdkTest::unregisterFromInsideReturns()
{
    TKSV_USSDSrv_RegisterUSSDCallback(leaveFromInside);
    fakeSdkRespond(u"text");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), std::size_t(0));
}

void FakeSdkTest::deviceEventIsRaised()
{
    TKSV_DevSrv_RegisterDevInitEventCallback(onDevice);
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_RESET);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Device, 1));
    QCOMPARE(heard()[0].event, TKSV_DEV_EVENT_RESET);
    QVERIFY(heard()[0].null);
    TKSV_DevSrv_UnRegisterDevInitEventCallback(onDevice);
    fakeSdkRaiseDeviceEvent(TKSV_DEV_EVENT_GONE);
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(heard().size(), std::size_t(1));
}

void FakeSdkTest::deviceInfoIsTold()
{
    std::atomic<int> callCount(0);
    TKSV_Device_SetInfoCallback(onInfo, &callCount);
    TKSV_DeviceInfo info{};
    info.signalPercent = 61;
    std::strcpy(info.imsi, "001010123456789");
    fakeSdkSetDeviceInfo(info);
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(callCount.load(), 1);
    TKSV_DeviceInfo read{};
    QCOMPARE(TKSV_Device_GetInfo(&read), 0L);
    QCOMPARE(read.signalPercent, 61);
    QCOMPARE(read.imsi, "001010123456789");
    QVERIFY(TKSV_Device_GetInfo(nullptr) != 0);
}

void FakeSdkTest::scenarioOutcomeIsTold()
{
    char message[8] = "";
    fakeSdkSetScenarioOutcome(4, "bad file");
    QCOMPARE(TKSV_Device_UseScenario("/a/b", message, sizeof message), 4L);
    QCOMPARE(message, "bad fil");
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseScenario")[0].path, std::string("/a/b"));
    QCOMPARE(TKSV_Device_UseScenario(nullptr, nullptr, 0), 4L);
}

void FakeSdkTest::modemsAreTold()
{
    TKSV_Modem modem = {};
    std::strcpy(modem.equipmentId, "490154203237518");
    fakeSdkSetModems({modem, modem});
    TKSV_Modem read[1] = {};
    unsigned long count = 0;
    QCOMPARE(TKSV_Device_GetModems(read, 1, &count), 0L);
    QCOMPARE(count, 2UL);
    QCOMPARE(read[0].equipmentId, "490154203237518");
    TKSV_Device_UseModem("490154203237518");
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseModem")[0].path, std::string("490154203237518"));
}

void FakeSdkTest::networkTextIsTold()
{
    static std::atomic<long long> toldAt(0);
    TKSV_Device_SetTextCallback(
        [](void *, const TKSV_NetworkText *text) { toldAt = text->receivedAt; }, nullptr);
    fakeSdkTellNetworkText("news", true, 1234567);
    QVERIFY(fakeSdkWaitIdle());
    QCOMPARE(toldAt.load(), 1234567LL);
    TKSV_Device_SetTextCallback(nullptr, nullptr);
}

void FakeSdkTest::smsStatusIsRaisedOnRegistrationWhenReady()
{
    TKSV_SMSSrv_RegCallBack(onSms);
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(heard().empty());
    TKSV_SMSSrv_UnRegCallBack(onSms);
    fakeSdkSetCanSendSms(true);
    TKSV_SMSSrv_RegCallBack(onSms);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(heard()[0].event, TKSV_SMS_EVENT_STATUS_CHANGED);
    QCOMPARE(heard()[0].type, TKSV_SMS_STATUS_CAN_SEND);
}

void FakeSdkTest::smsResultCarriesBothTexts()
{
    TKSV_SMSSrv_RegCallBack(onSms);
    fakeSdkRaiseSmsResult(5, u"1200", u"WEATHER Lisboa");
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(heard()[0].event, TKSV_SMS_EVENT_SEND_RESULT);
    QCOMPARE(heard()[0].type, 5);
    QVERIFY(heard()[0].text == u"1200|WEATHER Lisboa");
}

void FakeSdkTest::unknownSmsEventHasNullData()
{
    TKSV_SMSSrv_RegCallBack(onSms);
    fakeSdkRaiseSmsEvent(77);
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Sms, 1));
    QCOMPARE(heard()[0].event, 77);
    QVERIFY(heard()[0].null);
}

void FakeSdkTest::smsRecordsAreCounted()
{
    const unsigned short number[] = {'1', '2', 0};
    const unsigned short text[] = {'A', 0};
    TKSV_SMSRecord record = nullptr;
    QCOMPARE(TKSV_SMSSrv_CreateSMSRecord(&record, number, text), 0L);
    QVERIFY(record);
    QCOMPARE(fakeSdkLiveSmsRecords(), std::size_t(1));
    QVERIFY(fakeSdkCalls()[0].number == u"12");
    QVERIFY(fakeSdkCalls()[0].text == u"A");
    QCOMPARE(TKSV_SMSSrv_SendMsg(record), 0L);
    QCOMPARE(TKSV_SMSSrv_ReleaseSMSRecord(record), 0L);
    QCOMPARE(fakeSdkLiveSmsRecords(), std::size_t(0));
    QCOMPARE(fakeSdkBadSmsRecords(), std::size_t(0));
    QVERIFY(TKSV_SMSSrv_ReleaseSMSRecord(record) != 0);
    QVERIFY(TKSV_SMSSrv_SendMsg(nullptr) != 0);
    QCOMPARE(fakeSdkBadSmsRecords(), std::size_t(2));
}

void FakeSdkTest::smsFunctionsFailWhenTold()
{
    const unsigned short empty[] = {0};
    TKSV_SMSRecord record = nullptr;
    TKSV_SMSSrv_CreateSMSRecord(&record, empty, empty);
    fakeSdkSetResult("TKSV_SMSSrv_SendMsg", 2);
    fakeSdkSetResult("TKSV_SMSSrv_ReleaseSMSRecord", 3);
    fakeSdkSetResult("TKSV_SMSSrv_CreateSMSRecord", 4);
    QCOMPARE(TKSV_SMSSrv_SendMsg(record), 2L);
    QCOMPARE(TKSV_SMSSrv_ReleaseSMSRecord(record), 3L);
    QCOMPARE(fakeSdkLiveSmsRecords(), std::size_t(0));
    QCOMPARE(TKSV_SMSSrv_CreateSMSRecord(&record, empty, empty), 4L);
    QVERIFY(!record);
}

void FakeSdkTest::userDataDirectoryIsHandedOut()
{
    fakeSdkSetUserDataDirectory(u"/tmp/\u00fc\u4e2d/");
    unsigned short *directory = nullptr;
    QCOMPARE(TKSV_GetUserDataDirectory(&directory), 0L);
    const std::unique_ptr<unsigned short[]> owner(directory);
    QVERIFY(unitsOf(directory) == u"/tmp/\u00fc\u4e2d/");
}

void FakeSdkTest::userDataDirectoryFailsUntilSet()
{
    unsigned short *directory = nullptr;
    QVERIFY(TKSV_GetUserDataDirectory(&directory) != 0);
    QVERIFY(!directory);
    fakeSdkSetUserDataDirectory(u"/tmp/");
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 9);
    QCOMPARE(TKSV_GetUserDataDirectory(&directory), 9L);
    QVERIFY(!directory);
}

void FakeSdkTest::resetForgetsEverything()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    fakeSdkSetAnswer(fakeReplyAfter(LONG_TIME, u"never"));
    request(u"*1#");
    fakeSdkReset();
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(fakeSdkCalls().empty());
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), std::size_t(0));
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
    request(u"*2#");
    QVERIFY(fakeSdkWaitIdle());
    QVERIFY(heard().empty());
}

USSD_TEST_MAIN(FakeSdkTest)
#include "fake_sdk_test.moc"
