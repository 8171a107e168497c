/* Tests internal classes that cannot be tested through the C functions. */
#include <atomic>
#include <csignal>
#include <pthread.h>
#include <QtTest>

#include "base/CodeForm.h"
#include "base/Records.h"
#include "base/TaskQueue.h"
#include "base/Text.h"
#include "base/WorkerThread.h"
#include "EventService.h"
#include "RecordingBackend.h"
#include "SdkFixture.h"
#include "UssdSession.h"

using namespace Tksv;

namespace
{

/** A service with one listener. The listener records the replies, and accepts or refuses them. */
class Listening
{
public:
    Listening()
        : service("test"), session([this](Event event) { service.post(std::move(event)); },
                                   [this] { ++untakenCount; }, [this] { ++changeCount; })
    {
        service.add(1, [this](int, void *data) {
            const auto *record = static_cast<const TKSV_USSDResponse *>(data);
            replies.add({record->type, toUtf8(decodeText(record->text)).value_or("")});
            return takes.load();
        });
    }
    std::atomic<int> untakenCount{0};
    std::atomic<int> changeCount{0};
    EventService service;
    UssdSession session;
    RecordingBackend backend;
    Inbox<UssdReply> replies;
    std::atomic<bool> takes{true};
};

/// Waits until all events so far have been delivered or dropped.
void drain(EventService &service)
{
    Gate gate;
    Event last;
    last.beforeDelivery = [&gate] {
        gate.open();
        return false;
    };
    service.post(last);
    QVERIFY(gate.wait());
}

} // namespace

class SdkSession : public QObject
{
    Q_OBJECT
private slots:
    void untakenTextIsKept();
    void untakenTextsAreLimited();
    void requestKindFollowsTheSession();
    void lateReplyIsDropped();
    void secondReplyIsDropped();
    void everyChangeIsReported();
    void textDuringARequestWaitsForItsEnd();
    void textDuringAMenuWaitsForItsEnd();
    void formOfACode_data();
    void formOfACode();

    void stopDropsWhatWaits();
    void stopDoesNotWaitForEver();
    void eventForOneListenerAlone();
    void tasksRunInTheirOrder();
    void stoppedQueueDropsItsTasks();
    void threadTakesNoSignals();
    void textIsCutBetweenCharacters();
    void malformedTextIsNotConverted();
};

void SdkSession::untakenTextIsKept()
{
    Listening l;
    l.takes = false;
    l.session.request(l.backend, "*1#");
    l.session.handleReply(l.backend.requests[0].token, {UssdFinal, "nobody waits"});
    drain(l.service);
    l.takes = true;
    l.session.request(l.backend, "*1#");
    l.session.handleReply(l.backend.requests[1].token, {UssdFinal, "taken"});
    drain(l.service);
    const std::vector<UntakenText> kept = l.session.takeUntakenTexts();
    QCOMPARE(l.untakenCount.load(), 1);
    QCOMPARE(kept.size(), std::size_t(1));
    QVERIFY(kept[0].reply.text == "nobody waits");
    QVERIFY(l.session.takeUntakenTexts().empty());
}

void SdkSession::untakenTextsAreLimited()
{
    Listening l;
    l.takes = false;
    for (int i = 0; i < 25; ++i)
        l.session.handleText({UssdFinal, std::to_string(i)});
    drain(l.service);
    const std::vector<UntakenText> kept = l.session.takeUntakenTexts();
    QCOMPARE(kept.size(), std::size_t(20));
    QVERIFY(kept.front().reply.text == "5" && kept.back().reply.text == "24");
}

void SdkSession::requestKindFollowsTheSession()
{
    Listening l;
    l.session.request(l.backend, "1"); // starts a session, because none is open
    l.session.handleReply(l.backend.requests[0].token, {UssdWaitsForAnswer, "menu"});
    drain(l.service);
    l.session.request(l.backend, "1");
    l.session.request(l.backend, "2"); // the first answer is still pending
    l.backend.status = RequestDeviceTimeout;
    QCOMPARE(l.session.request(l.backend, "3"), int(RequestDeviceTimeout));
    QCOMPARE(l.backend.requests.size(), std::size_t(3));
    QVERIFY(l.backend.requests[0].kind == RequestKind::NewSession);
    QVERIFY(l.backend.requests[1].kind == RequestKind::Answer);
    QVERIFY(l.backend.requests[2].kind == RequestKind::NewSession);
}

void SdkSession::lateReplyIsDropped()
{
    Listening l;
    l.session.request(l.backend, "*1#");
    l.session.request(l.backend, "*2#");
    l.session.handleReply(l.backend.requests[0].token, {UssdFinal, "late"});
    l.session.handleReply(l.backend.requests[1].token, {UssdFinal, "in time"});
    drain(l.service);
    QCOMPARE(l.replies.all().size(), std::size_t(1));
    QVERIFY(l.replies.all()[0].text == "in time");
    l.session.request(l.backend, "*3#");
    l.session.release(l.backend);
    QCOMPARE(l.backend.ended, 1);
    l.session.handleReply(l.backend.requests[2].token, {UssdFinal, "late"});
    l.session.request(l.backend, "*4#");
    l.session.deviceLost();
    l.session.handleReply(l.backend.requests[3].token, {UssdFinal, "late"});
    drain(l.service);
    QCOMPARE(l.replies.all().size(), std::size_t(1));
}

void SdkSession::secondReplyIsDropped()
{
    Listening l;
    l.session.request(l.backend, "*1#");
    l.session.handleReply(l.backend.requests[0].token, {UssdFinal, "once"});
    l.session.handleReply(l.backend.requests[0].token, {UssdFinal, "twice"});
    drain(l.service);
    QCOMPARE(l.replies.all().size(), std::size_t(1));
}

void SdkSession::everyChangeIsReported()
{
    Listening listening;
    QCOMPARE(int(listening.session.info().state), int(TKSV_SESSION_IDLE));
    listening.session.request(listening.backend, "*1#");
    QCOMPARE(listening.changeCount.load(), 1);
    QCOMPARE(int(listening.session.info().state), int(TKSV_SESSION_IN_FLIGHT));
    listening.session.handleReply(1, UssdReply{UssdWaitsForAnswer, "Menu"});
    drain(listening.service);
    QCOMPARE(listening.changeCount.load(), 2);
    QCOMPARE(int(listening.session.info().state), int(TKSV_SESSION_WAITS_FOR_ANSWER));
    listening.session.release(listening.backend);
    QCOMPARE(listening.changeCount.load(), 3);
    QCOMPARE(int(listening.session.info().state), int(TKSV_SESSION_IDLE));
    listening.session.handleText(UssdReply{UssdWaitsForAnswer, "Question"});
    drain(listening.service);
    QCOMPARE(listening.changeCount.load(), 4);
    QCOMPARE(int(listening.session.info().state), int(TKSV_SESSION_WAITS_FOR_ANSWER));
}

void SdkSession::textDuringARequestWaitsForItsEnd()
{
    Listening l;
    l.session.request(l.backend, "*1#");
    l.session.handleText({UssdWaitsForAnswer, "news"});
    drain(l.service);
    QCOMPARE(l.replies.all().size(), std::size_t(0));
    l.session.handleReply(l.backend.requests[0].token, {UssdFinal, "reply"});
    QVERIFY(l.replies.waitFor(2));
    QVERIFY(l.replies.all()[0].text == "reply");
    QVERIFY(l.replies.all()[1].text == "news");
    // The message no longer waits for an answer, because the reply has ended the session.
    QCOMPARE(l.replies.all()[1].type, int(UssdFinal));
}

void SdkSession::textDuringAMenuWaitsForItsEnd()
{
    Listening l;
    l.session.request(l.backend, "*1#");
    l.session.handleReply(l.backend.requests[0].token, {UssdWaitsForAnswer, "menu"});
    l.session.handleText({UssdFinal, "news"});
    drain(l.service);
    QCOMPARE(l.replies.all().size(), std::size_t(1));
    l.session.release(l.backend);
    QVERIFY(l.replies.waitFor(2));
}

void SdkSession::formOfACode_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isCode");
    const auto row = [](const char *text, bool isCode) {
        QTest::newRow(text) << QString::fromLatin1(text) << isCode;
    };
    row("*100#", true);
    row("#100#", true);
    row("**#", true);
    row("##", true);
    row("#", false);
    row("*", false);
    row("", false);
    row("*100", false);
    row("100#", false);
    row("1", false);
}

void SdkSession::formOfACode()
{
    QFETCH(QString, text);
    QFETCH(bool, isCode);
    QCOMPARE(hasFormOfCode(text.toStdString()), isCode);
}

void SdkSession::stopDropsWhatWaits()
{
    Gate entered;
    Gate gate;
    std::atomic<int> calls(0);
    EventService service("test");
    service.add(1, [&](int, void *) {
        ++calls;
        entered.open();
        return gate.wait();
    });
    service.post(Event());
    service.post(Event());
    QVERIFY(entered.wait());
    std::thread stopping([&service] { service.stop(NO_LIMIT); });
    gate.open();
    stopping.join();
    service.post(Event());
    // There is a second call only if the service had already fetched the second event when it was
    // stopped.
    QVERIFY(calls <= 2);
    const int before = calls;
    service.add(2, [&](int, void *) { return ++calls > 0; });
    service.post(Event());
    QCOMPARE(calls.load(), before);
}

void SdkSession::stopDoesNotWaitForEver()
{
    // The thread of the service still uses these objects when the function returns, as it may when
    // a program exits. Therefore, they are never deleted.
    static Gate gate;
    static Gate left;
    static auto *service = new EventService("test");
    Gate entered;
    service->add(1, [&entered](int, void *) {
        entered.open();
        gate.wait();
        left.open();
        return true;
    });
    service->post(Event());
    QVERIFY(entered.wait());
    QVERIFY(!service->stop(std::chrono::milliseconds(10)));
    QVERIFY(service->remove(1)); // does not wait for the blocked call-back
    gate.open();
    QVERIFY(left.wait());
}

void SdkSession::eventForOneListenerAlone()
{
    EventService service("test");
    std::atomic<int> first(0);
    std::atomic<int> second(0);
    service.add(1, [&](int, void *) { return ++first > 0; });
    service.add(2, [&](int, void *) { return ++second > 0; });
    Event event;
    event.onlyKey = 2;
    service.post(event);
    drain(service);
    QCOMPARE(first.load(), 0);
    QCOMPARE(second.load(), 1);
}

void SdkSession::tasksRunInTheirOrder()
{
    TaskQueue queue("test");
    Gate allPosted;
    Gate done;
    std::vector<int> order;
    std::atomic<bool> ranOnTheQueue(false);
    queue.post([&] {
        allPosted.wait();
        order.push_back(1);
        ranOnTheQueue = queue.isCurrent();
        queue.post([&] {
            order.push_back(3);
            done.open();
        });
    });
    queue.post([&] { order.push_back(2); });
    allPosted.open();
    QVERIFY(done.wait());
    QVERIFY((order == std::vector<int>{1, 2, 3}));
    QVERIFY(ranOnTheQueue);
    QVERIFY(!queue.isCurrent());
}

void SdkSession::stoppedQueueDropsItsTasks()
{
    TaskQueue queue("test");
    Gate entered;
    std::atomic<bool> secondRan(false);
    const auto captured = std::make_shared<int>(1);
    queue.post([&] {
        entered.open();
        while (queue.isCurrent()) // until stop() has been called
            std::this_thread::yield();
    });
    queue.post([&secondRan, captured] { secondRan = true; });
    QVERIFY(entered.wait());
    QVERIFY(queue.stop(NO_LIMIT));
    queue.post([&secondRan, captured] { secondRan = true; });
    QVERIFY(!secondRan);
    QCOMPARE(captured.use_count(), 1L);
}

void SdkSession::threadTakesNoSignals()
{
    std::atomic<bool> blocked(false);
    WorkerThread thread;
    thread.start("test", [&blocked] {
        sigset_t mask;
        pthread_sigmask(SIG_BLOCK, nullptr, &mask);
        blocked = sigismember(&mask, SIGTERM) && sigismember(&mask, SIGINT);
    });
    QVERIFY(thread.finish(NO_LIMIT));
    QVERIFY(blocked);
    sigset_t own;
    pthread_sigmask(SIG_BLOCK, nullptr, &own);
    QVERIFY(!sigismember(&own, SIGTERM));
}

void SdkSession::textIsCutBetweenCharacters()
{
    char target[4] = "###";
    copyText("ab€", target, sizeof target);
    QCOMPARE(target, "ab");
    copyText("€", target, sizeof target);
    QCOMPARE(QByteArray(target), QByteArray("€"));
    copyText("abcdef", target, 0);
    QCOMPARE(QByteArray(target), QByteArray("€"));
}

void SdkSession::malformedTextIsNotConverted()
{
    QVERIFY(toUtf16("a€😀") == std::u16string(u"a€😀"));
    QVERIFY(toUtf8(u"a€😀") == std::string("a€😀"));
    for (const char *text : {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80"})
        QVERIFY(!toUtf16(text));
    QVERIFY(!toUtf8(std::u16string(1, u'\xDC00')));
}

QTEST_APPLESS_MAIN(SdkSession)
#include "sdk_session_test.moc"
