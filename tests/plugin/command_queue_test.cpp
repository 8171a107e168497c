/*
 * Tests the rules of CommandQueue, first individually and then with every possible order of steps.
 *
 * The search combines up to eight events: send, reply, time-out, cancel, loss of the device, clear
 * and destroy. Each event starts a call to USSDLogic, which consists of several steps. A step is
 * work that a thread performs without interruption: a call to the queue, a query of the timer, or a
 * change to the timer. QueueWorld.cpp performs the steps in the same order as USSDLogic.cpp.
 * Announcing an answer is part of the step that claims the head. The request to the device is part
 * of the preceding check. These operations do not need separate steps, because they do not access
 * any data that threads share. A sender waits up to 3 s for an earlier time-out; in the search,
 * this wait can end at any time.
 *
 * The search tries every order of events and steps. Any thread may perform its next step, and an
 * event may occur whenever its thread is idle. There is a GUI thread, two threads that deliver
 * replies, and one thread that delivers device events. The receivers of a time-out may send, clear
 * or destroy before they return. Each command may be accepted by the device, refused by the device,
 * or too long. The search skips a state only if it has already searched from an equal state with at
 * least as many remaining events. QueueWorld::key() describes which states are equal.
 *
 * After each step, the queue must contain the same commands as the model and must return the same
 * results. No command may be sent twice, answered twice or lost. When no call is in progress, a
 * running time-out must ensure that the head is eventually answered or removed. There are two
 * deliberate exceptions: commands keep waiting behind a command that was refused or too long, and a
 * stale reply or time-out answers the current head.
 */
#include "QueueWorld.h"
#include "requests/CommandQueue.h"
#include "UssdTest.h"

#include <unordered_map>
#include <vector>

namespace
{

struct KeyHash {
    size_t operator()(const QueueWorld::Key &key) const
    {
        quint64 hash = 0;
        for (const quint64 part : key) {
            hash = (hash ^ part) * 0x9E3779B97F4A7C15u;
            hash ^= hash >> 32;
        }
        return size_t(hash);
    }
};

/** Searches all orders of events and steps, depth first, until a rule is violated. */
class Walk
{
public:
    /// Returns true if no order of up to `events` further events violates a rule.
    bool from(const QueueWorld &world, int events);
    size_t states() const { return m_walked.size(); }
    quint64 steps() const { return m_steps; }
    /// Returns the steps that led to the violation, one per line.
    QByteArray story() const;

private:
    bool goOn(const QueueWorld &world, int events, const char *who, const char *what);
    bool tryThread(const QueueWorld &world, int events, QueueWorld::Thread thread);
    bool tryEvent(const QueueWorld &world, int events, QueueWorld::Event event);

    struct Line {
        const char *who;
        const char *what;
    };

    // The visited states. The value is the number of remaining events plus one.
    std::unordered_map<QueueWorld::Key, int, KeyHash> m_walked;
    std::vector<Line> m_path;
    const char *m_failure = nullptr;
    quint64 m_steps = 0;
};

bool Walk::from(const QueueWorld &world, int events)
{
    int &walked = m_walked[world.key()];
    if (walked > events)
        return true;
    walked = events + 1;
    for (int i = 0; i < QueueWorld::ThreadCount; ++i) {
        if (!tryThread(world, events, QueueWorld::Thread(i)))
            return false;
    }
    for (int i = 0; events > 0 && i < QueueWorld::EventCount; ++i) {
        if (!tryEvent(world, events - 1, QueueWorld::Event(i)))
            return false;
    }
    return true;
}

bool Walk::tryThread(const QueueWorld &world, int events, QueueWorld::Thread thread)
{
    if (!world.canRun(thread))
        return true;
    for (int way = 0; way < world.ways(thread); ++way) {
        QueueWorld next = world;
        next.run(thread, way);
        if (!goOn(next, events, QueueWorld::nameOf(thread), world.nextStep(thread)))
            return false;
    }
    return true;
}

bool Walk::tryEvent(const QueueWorld &world, int events, QueueWorld::Event event)
{
    if (!world.canStart(event))
        return true;
    QueueWorld next = world;
    next.start(event);
    return goOn(next, events, "event", QueueWorld::nameOf(event));
}

bool Walk::goOn(const QueueWorld &world, int events, const char *who, const char *what)
{
    ++m_steps;
    m_path.push_back(Line{who, what});
    m_failure = world.failure();
    if (m_failure || !from(world, events))
        return false;
    m_path.pop_back();
    return true;
}

QByteArray Walk::story() const
{
    QByteArray story;
    for (const Line &line : m_path)
        story += QByteArray(line.who) + ": " + line.what + '\n';
    return story + "broken: " + (m_failure ? m_failure : "no rule");
}

USSDCmdOrResp command(const char *text, _COMPONENT component = COMPONENT_GENERAL)
{
    return USSDCmdOrResp(component, QLatin1String(text));
}

bool isQuery(const USSDCmdOrResp &command)
{
    return command.component == COMPONENT_PREPOST_QUERY;
}

bool isGeneral(const USSDCmdOrResp &command)
{
    return command.component == COMPONENT_GENERAL;
}

} // namespace

class CommandQueueTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;

private:
    QString headText() const { return m_queue.commands().value(0).command; }

    CommandQueue m_queue; // contains *1# and *2# of the general window and *3# of the detection
    CommandQueue::Head m_head;

private slots:
    void headIsSentOnce();
    void headIsClaimedOnce();
    void claimOfAnEarlierHeadIsRefused();
    void claimOfAnEmptyQueueNamesTheLastHead();
    void headThatWaitsForTheDeviceIsNotAnswered();
    void headThatNobodySendsIsAnswered();
    void claimedHeadIsNotOpen();
    void removalOfAnEarlierHeadLeavesTheNextOne();
    void clearedHeadAwaitsItsReply();
    void marksOfAClearedHeadDoNotCountForTheNextOne();
    void clearingKeepsOrderAndHead();
    void everyOrderOfStepsKeepsTheRules();
};

void CommandQueueTest::setUp()
{
    m_queue = CommandQueue();
    m_head = CommandQueue::Head();
    m_queue.append(command("*1#"));
    m_queue.append(command("*2#"));
    m_queue.append(command("*3#", COMPONENT_PREPOST_QUERY));
}

void CommandQueueTest::headIsSentOnce()
{
    QVERIFY(m_queue.markHeadSent(m_head));
    QCOMPARE(m_head.command.command, QStringLiteral("*1#"));
    QVERIFY(!m_queue.markHeadSent(m_head));
    m_queue.removeHead(m_head.number);
    QVERIFY(m_queue.markHeadSent(m_head));
    QCOMPARE(m_head.command.command, QStringLiteral("*2#"));
}

void CommandQueueTest::headIsClaimedOnce()
{
    QCOMPARE(m_queue.claimHead(m_head), CommandQueue::Claimed);
    QCOMPARE(m_head.command.command, QStringLiteral("*1#"));
    QCOMPARE(m_queue.claimHead(m_head), CommandQueue::ClaimedByOther);
    m_queue.removeHead(m_head.number);
    QCOMPARE(m_queue.claimHead(m_head), CommandQueue::Claimed);
}

void CommandQueueTest::claimOfAnEarlierHeadIsRefused()
{
    const quint64 earlier = m_queue.headNumber();
    m_queue.removeHead(earlier);
    QCOMPARE(m_queue.claimHead(m_head, earlier), CommandQueue::ClaimedByOther);
    QCOMPARE(m_queue.claimHead(m_head, m_queue.headNumber()), CommandQueue::Claimed);
}

void CommandQueueTest::claimOfAnEmptyQueueNamesTheLastHead()
{
    const quint64 last = m_queue.headNumber();
    m_queue.clear();
    m_queue.clear(); // must not advance the number of the next head
    QCOMPARE(m_queue.claimHead(m_head), CommandQueue::Empty);
    QCOMPARE(m_head.number, last);
}

void CommandQueueTest::headThatWaitsForTheDeviceIsNotAnswered()
{
    CommandQueue::Head sent;
    QVERIFY(m_queue.markHeadSent(sent));
    QCOMPARE(m_queue.claimHeadInFlight(m_head), CommandQueue::WaitsForHandOver);
    QCOMPARE(m_head.number, sent.number - 1);
    QVERIFY(m_queue.startHandOver(sent.number));
    QCOMPARE(m_queue.claimHeadInFlight(m_head), CommandQueue::Claimed);
    QVERIFY(!m_queue.startHandOver(sent.number));
    QCOMPARE(m_queue.claimHeadInFlight(m_head), CommandQueue::ClaimedByOther);
}

/// Tests that a late reply after a refused command answers the next command, although the next
/// command has not been sent.
void CommandQueueTest::headThatNobodySendsIsAnswered()
{
    QVERIFY(m_queue.markHeadSent(m_head));
    m_queue.removeHead(m_head.number);
    QCOMPARE(m_queue.claimHeadInFlight(m_head), CommandQueue::Claimed);
    QCOMPARE(m_head.command.command, QStringLiteral("*2#"));
}

void CommandQueueTest::claimedHeadIsNotOpen()
{
    const quint64 number = m_queue.headNumber();
    QVERIFY(m_queue.isOpenHead(number));
    m_queue.claimHead(m_head);
    QVERIFY(!m_queue.isOpenHead(number));
    m_queue.removeHead(number);
    QVERIFY(!m_queue.isOpenHead(number));
    QVERIFY(m_queue.isOpenHead(m_queue.headNumber()));
}

void CommandQueueTest::removalOfAnEarlierHeadLeavesTheNextOne()
{
    const quint64 number = m_queue.headNumber();
    m_queue.removeHead(number);
    m_queue.removeHead(number);
    QCOMPARE(headText(), QStringLiteral("*2#"));
}

void CommandQueueTest::clearedHeadAwaitsItsReply()
{
    const quint64 number = m_queue.headNumber();
    m_queue.keepOnly(isQuery);
    QVERIFY(m_queue.awaitsReply(number));
    m_queue.claimHead(m_head);
    QVERIFY(!m_queue.awaitsReply(number));
}

void CommandQueueTest::marksOfAClearedHeadDoNotCountForTheNextOne()
{
    m_queue.markHeadSent(m_head);
    m_queue.claimHead(m_head);
    m_queue.clear();
    m_queue.append(command("*4#"));
    QVERIFY(m_queue.markHeadSent(m_head));
    QCOMPARE(m_queue.claimHead(m_head), CommandQueue::Claimed);
    QCOMPARE(m_head.command.command, QStringLiteral("*4#"));
}

void CommandQueueTest::clearingKeepsOrderAndHead()
{
    const quint64 number = m_queue.headNumber();
    m_queue.append(command("*4#"));
    m_queue.keepOnly(isGeneral);
    QCOMPARE(m_queue.headNumber(), number);
    QStringList left;
    for (const USSDCmdOrResp &one : m_queue.commands())
        left << one.command;
    QCOMPARE(left,
             (QStringList{QStringLiteral("*1#"), QStringLiteral("*2#"), QStringLiteral("*4#")}));
}

void CommandQueueTest::everyOrderOfStepsKeepsTheRules()
{
    Walk walk;
    const bool keeps = walk.from(QueueWorld(), WALK_EVENTS);
    fprintf(stderr, "%d events: %llu steps, %zu states\n", WALK_EVENTS, walk.steps(),
            walk.states());
    QVERIFY2(keeps, walk.story().constData());
}

USSD_TEST_MAIN(CommandQueueTest)

#include "command_queue_test.moc"
