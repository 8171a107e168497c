/*
 * Tests the rules of UssdSession with every order of events.
 *
 * All public functions of UssdSession lock the same mutex, so concurrent calls take effect one
 * after another. The test tries every order of up to seven steps. A step is a request, a request
 * that the device rejects, a reply or a menu for the latest request, a cancellation, a release, the
 * loss of the device, or the start or end of a delivery. A delivery starts when the service's
 * thread checks whether an event is still valid, and ends when the call-backs have returned. The
 * device may send the same reply several times.
 *
 * The model records all requests and their outcomes. After each order of steps, all remaining
 * events are delivered. Each request must then have exactly one outcome.
 */
#include <cstring>
#include <deque>
#include <QtTest>

#include "base/Records.h"
#include "RecordingBackend.h"
#include "UssdSession.h"

using namespace Tksv;

namespace
{

enum Step { Ask, AskInVain, Reply, Menu, Cancel, Release, Lose, StartDelivery, EndDelivery };
const int STEP_COUNT = EndDelivery + 1;
const int DEPTH = 7;
const char *const STEP_NAMES[] = {"request", "refused request", "reply",
                                  "menu",    "cancel",          "release",
                                  "loss",    "start delivery",  "end delivery"};

/** The session, and a model that predicts its behaviour. */
class World
{
public:
    World() : m_session([this](Event event) { m_events.push_back(std::move(event)); }, [] {}, [] {})
    {
    }

    /// Performs the step. Returns false if the step is not possible.
    bool take(Step step);
    void finish();
    const char *broken() const { return m_broken; }

private:
    void ask(int status);
    void reply(int type);
    void cancel();
    bool startDelivery();
    bool endDelivery();
    void deliver(int type);
    void endRequest();
    void expectFailure(TKSV_Failure reason);
    void check(bool holds, const char *rule)
    {
        if (!holds && !m_broken)
            m_broken = rule;
    }

    RecordingBackend m_backend;
    std::deque<Event> m_events;
    UssdSession m_session;
    std::function<void(bool)> m_runningDelivery;
    const char *m_broken = nullptr;

    // The state that the model predicts.
    bool m_inFlight = false;
    bool m_isCancelled = false; // the pending request was cancelled and is not answered yet
    bool m_isReplied = false;   // true after the device has replied to the pending request
    TKSV_Failure m_failure = TKSV_FAILURE_NONE;
};

bool World::take(Step step)
{
    switch (step) {
    case Ask:
        ask(RequestAccepted);
        return true;
    case AskInVain:
        ask(RequestNoDevice);
        return true;
    case Reply:
    case Menu:
        reply(step == Menu ? UssdWaitsForAnswer : UssdFinal);
        return !m_backend.requests.empty();
    case Cancel:
        cancel();
        return true;
    case Release:
        m_session.release(m_backend);
        endRequest();
        return true;
    case Lose:
        m_failure = m_inFlight ? TKSV_FAILURE_DEVICE_LOST : m_failure;
        m_session.deviceLost();
        endRequest();
        return true;
    case StartDelivery:
        return startDelivery();
    case EndDelivery:
        return endDelivery();
    }
    return false;
}

void World::ask(int status)
{
    const bool isAccepted = status == RequestAccepted;
    m_backend.status = status;
    m_backend.refusal = isAccepted ? TKSV_FAILURE_NONE : TKSV_FAILURE_DISABLED;
    check(m_session.request(m_backend, "*1#") == status, "the status is that of the device");
    m_failure = m_backend.refusal;
    if (isAccepted) {
        endRequest();
        m_inFlight = true;
    }
    expectFailure(m_failure);
    check(isAccepted || m_session.lastFailure().wasNotSent, "a refused request is not sent");
}

/// Makes the device reply to its latest request, even if the session has already ended the request.
void World::reply(int type)
{
    if (m_backend.requests.empty())
        return;
    m_session.handleReply(m_backend.requests.back().token, UssdReply{type, "text"});
    m_isReplied = m_inFlight && !m_isCancelled;
}

void World::cancel()
{
    const int ended = m_backend.ended;
    check(m_session.cancel(m_backend) == m_inFlight, "only a request in flight is cancelled");
    check(m_backend.ended == ended + (m_inFlight ? 1 : 0), "the device learns of the cancellation");
    m_isCancelled = m_inFlight;
}

/// Starts the delivery of the next event, up to the first call-back.
bool World::startDelivery()
{
    if (m_events.empty() || m_runningDelivery)
        return false;
    const Event event = std::move(m_events.front());
    m_events.pop_front();
    if (!event.beforeDelivery())
        return true;
    int type = 0;
    std::memcpy(&type, event.data.get(), sizeof type);
    m_runningDelivery = event.afterDelivery;
    deliver(type);
    return true;
}

void World::deliver(int type)
{
    check(m_inFlight, "a response belongs to a request in flight");
    if (m_isCancelled)
        check(type == TKSV_FAILURE_CANCELLED, "a late reply to a cancelled request is dropped");
    else
        check(m_isReplied && type <= UssdWaitsForAnswer, "the response is the device's reply");
    m_failure = m_isCancelled ? TKSV_FAILURE_CANCELLED : TKSV_FAILURE_NONE;
    expectFailure(m_failure);
    endRequest();
}

bool World::endDelivery()
{
    if (!m_runningDelivery)
        return false;
    std::exchange(m_runningDelivery, nullptr)(true);
    expectFailure(m_failure);
    return true;
}

void World::endRequest()
{
    m_inFlight = m_isCancelled = m_isReplied = false;
}

void World::expectFailure(TKSV_Failure reason)
{
    check(m_session.lastFailure().reason == reason,
          "the last failure is that of the newest request");
}

/// Delivers all remaining events. Every request that the device or a cancellation has ended must
/// then have received a response.
void World::finish()
{
    do
        endDelivery();
    while (startDelivery());
    check(!m_inFlight || (!m_isReplied && !m_isCancelled), "every outcome reaches the client");
}

/** Tries all orders of steps until a rule is violated. */
class Walk
{
public:
    bool from(int depth);
    QByteArray story() const;
    int orders() const { return m_orders; }

private:
    bool replay();

    std::vector<Step> m_steps;
    const char *m_broken = nullptr;
    int m_orders = 0;
};

bool Walk::from(int depth)
{
    if (!replay())
        return !m_broken; // an impossible step does not count as a violation
    for (int i = 0; depth > 0 && i < STEP_COUNT; ++i) {
        m_steps.push_back(Step(i));
        if (!from(depth - 1))
            return false;
        m_steps.pop_back();
    }
    return true;
}

/// Repeats all steps from the start. Returns false if the last step is not possible or violates a
/// rule.
bool Walk::replay()
{
    World world;
    for (const Step step : m_steps) {
        if (!world.take(step))
            return false;
    }
    world.finish();
    ++m_orders;
    m_broken = world.broken();
    return !m_broken;
}

QByteArray Walk::story() const
{
    QByteArray story;
    for (const Step step : m_steps)
        story += QByteArray(STEP_NAMES[step]) + "; ";
    return story + "broken: " + (m_broken ? m_broken : "no rule");
}

} // namespace

class SdkSessionWalk : public QObject
{
    Q_OBJECT
private slots:
    void everyRequestHasOneOutcome();
};

void SdkSessionWalk::everyRequestHasOneOutcome()
{
    Walk walk;
    QVERIFY2(walk.from(DEPTH), walk.story().constData());
    QVERIFY(walk.orders() > 100000); // proves that the search was not cut short
}

QTEST_APPLESS_MAIN(SdkSessionWalk)
#include "sdk_session_walk_test.moc"
