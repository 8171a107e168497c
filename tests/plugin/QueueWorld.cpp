#include "QueueWorld.h"

#include <tuple>

namespace
{

enum Way { Accepted, Refused, TooLong, WayCount };

unsigned bit(int command)
{
    return 1u << command;
}

bool isQuery(const USSDCmdOrResp &command)
{
    return command.component == COMPONENT_PREPOST_QUERY;
}

bool isNotOfServices(const USSDCmdOrResp &command)
{
    return command.component != COMPONENT_USSD_SMS;
}

bool isNeverKept(const USSDCmdOrResp &)
{
    return false;
}

/// Returns a command whose text is a single letter that represents its number.
USSDCmdOrResp commandOf(int number, int component)
{
    static const QString letters = QString::fromLatin1("-abcdefgh");
    return USSDCmdOrResp(static_cast<_COMPONENT>(component), letters.mid(number, 1));
}

int numberOf(const USSDCmdOrResp &command)
{
    return command.command.at(0).unicode() - 'a' + 1;
}

template <typename Names>
constexpr int lengthOf(const Names &names)
{
    return int(sizeof(names) / sizeof(names[0]));
}

} // namespace

const QueueWorld::StepEntry QueueWorld::STEPS[] = {
    {"-", nullptr},
    {"append", &QueueWorld::append},
    {"count", &QueueWorld::count},
    {"mark the head as sent", &QueueWorld::markSent},
    {"hand over", &QueueWorld::handOver},
    {"remove the refused head", &QueueWorld::removeRefused},
    {"arm the timer", &QueueWorld::armTimer},
    {"look for a quick reply", &QueueWorld::lookForQuickReply},
    {"disarm the timer", &QueueWorld::disarmTimer},
    {"claim for a reply", &QueueWorld::claimForReply},
    {"stop the timer", &QueueWorld::stopTimer},
    {"remove the answered head", &QueueWorld::removeAnswered},
    {"the timer runs out", &QueueWorld::runOut},
    {"look up the head", &QueueWorld::lookUpHead},
    {"stop the timer that ran out", &QueueWorld::stopRunOutTimer},
    {"look for a reply", &QueueWorld::lookForReply},
    {"claim for the time-out", &QueueWorld::claimForTimeOut},
    {"remove the head that timed out", &QueueWorld::removeTimedOut},
    {"claim for the device event", &QueueWorld::claimForFailure},
    {"clear all", &QueueWorld::clearAll},
    {"release", &QueueWorld::release},
    {"keep queries", &QueueWorld::keepQueries},
    {"keep all but services", &QueueWorld::keepAllButServices},
    {"stop any timer", &QueueWorld::stopAnyTimer},
    {"close the gate", &QueueWorld::closeGate},
    {"delete the logic and clear", &QueueWorld::deleteLogic},
};

// ---- events --------------------------------------------------------------------------------

const char *QueueWorld::nameOf(Event event)
{
    static const char *const names[] = {"send a query",   "send from the general window",
                                        "send a service", "reply",
                                        "time-out",       "cancel",
                                        "device gone",    "clear queued",
                                        "clear services", "destroy"};
    static_assert(lengthOf(names) == EventCount, "one name for each event");
    return names[event];
}

const char *QueueWorld::nameOf(Thread thread)
{
    static const char *const names[] = {"GUI", "GUI, inside", "reply 1", "reply 2", "device"};
    static_assert(lengthOf(names) == ThreadCount, "one name for each thread");
    return names[thread];
}

/// Returns true if an event can start on the GUI thread. While the time-out signal is being
/// emitted, its receivers may make any call and may run an event loop.
bool QueueWorld::canStartOnGui() const
{
    return isIdle(Gui) || (m_calls[Gui].next == RemoveTimedOut && isIdle(GuiInside));
}

bool QueueWorld::canStart(Event event) const
{
    switch (event) {
    case Reply:
        return m_gateIsOpen && (isIdle(FirstReply) || isIdle(SecondReply));
    case DeviceGone:
        return m_gateIsOpen && isIdle(Device);
    case TimeOut:
        return canStartOnGui() && m_timer.isArmed;
    default:
        return canStartOnGui();
    }
}

QueueWorld::Thread QueueWorld::threadFor(Event event) const
{
    if (event == Reply)
        return isIdle(FirstReply) ? FirstReply : SecondReply;
    if (event == DeviceGone)
        return Device;
    return isIdle(Gui) ? Gui : GuiInside;
}

void QueueWorld::start(Event event)
{
    static const Step firstSteps[] = {
        Append,  Append,          Append,      ClaimForReply,      RunOut,
        Release, ClaimForFailure, KeepQueries, KeepAllButServices, StopAnyTimer};
    static_assert(lengthOf(firstSteps) == EventCount, "one step for each event");
    const Thread thread = threadFor(event);
    m_calls[thread].next = firstSteps[event];
    if (event <= SendServices)
        m_calls[thread].component = COMPONENT_PREPOST_QUERY + event;
    run(thread, 0);
}

// ---- steps ---------------------------------------------------------------------------------

bool QueueWorld::canRun(Thread thread) const
{
    if (thread == Gui && !isIdle(GuiInside))
        return false;
    switch (m_calls[thread].next) {
    case Idle:
        return false;
    case HandOver:
        return !m_isHandingOver;
    case DeleteLogic:
        return isIdle(FirstReply) && isIdle(SecondReply) && isIdle(Device);
    default:
        return true;
    }
}

bool QueueWorld::isBusy() const
{
    for (const Call &call : m_calls) {
        if (call.next != Idle)
            return true;
    }
    return false;
}

int QueueWorld::ways(Thread thread) const
{
    return m_calls[thread].next == HandOver ? int(WayCount) : 1;
}

const char *QueueWorld::nextStep(Thread thread) const
{
    return STEPS[m_calls[thread].next].name;
}

void QueueWorld::run(Thread thread, int way)
{
    static_assert(lengthOf(STEPS) == StepCount, "one entry for each step");
    m_way = way;
    Call &call = m_calls[thread];
    const auto run = STEPS[call.next].run;
    (this->*run)(call);
    m_isSilent = m_isSilent && m_queue.count() != 0;
    compareLists();
    checkOutcomes();
    checkRest();
}

/// Continues with `step` if `holds` is true. Otherwise, the call ends.
void QueueWorld::goOn(Call &call, bool holds, Step step)
{
    if (holds)
        call.next = step;
    else
        call = Call();
}

// ---- rules ---------------------------------------------------------------------------------

void QueueWorld::expect(bool holds, const char *rule)
{
    if (!holds && !m_failure)
        m_failure = rule;
}

void QueueWorld::compareLists()
{
    const QList<USSDCmdOrResp> &commands = m_queue.commands();
    bool same = commands.count() == int(m_model.entries.size());
    for (int i = 0; same && i < commands.count(); ++i)
        same = numberOf(commands.at(i)) == m_model.entries[size_t(i)].command;
    expect(same, "the queue holds the commands of the model");
}

/// Returns the commands that are still in use: in the queue, by a call, or by the timer.
unsigned QueueWorld::heldCommands() const
{
    unsigned commands = m_timer.isArmed ? bit(m_timer.command) : 0;
    for (const QueueModel::Entry &entry : m_model.entries)
        commands |= bit(entry.command);
    for (const Call &call : m_calls)
        commands |= bit(call.command) | bit(call.timedCommand);
    return commands & ~bit(0);
}

void QueueWorld::checkOutcomes()
{
    const unsigned all = bit(m_lastCommand + 1) - bit(1);
    expect((m_answered | m_refused | m_dropped | heldCommands()) == all, "no command is lost");
}

/// Checks the head while no call is in progress. In this state, only a time-out can remove the
/// head, so a time-out must be running. The exception is a head behind a command that was refused
/// or too long, which deliberately has no time-out.
void QueueWorld::checkRest()
{
    if (isBusy() || m_model.entries.empty())
        return;
    expect(m_model.isOpen(m_model.head()), "no head stays claimed");
    expect(m_isSilent || (m_timer.isArmed && m_model.awaitsReply(m_timer.command)),
           "the head gets an outcome");
}

// ---- sending -------------------------------------------------------------------------------

/// Appends the command. If the logic object does not exist, constructs it first.
void QueueWorld::append(Call &call)
{
    if (!m_gateIsOpen)
        m_timer = Timer();
    m_gateIsOpen = true;
    m_queue.append(commandOf(++m_lastCommand, call.component));
    m_model.append(m_lastCommand, call.component);
    call = Call();
    call.next = Count;
}

void QueueWorld::count(Call &call)
{
    goOn(call, m_queue.count() == 1, MarkSent);
}

void QueueWorld::markSent(Call &call)
{
    CommandQueue::Head head;
    const bool marked = m_queue.markHeadSent(head);
    const int expected = m_model.markHeadSent();
    expect(marked == (expected != 0), "one thread sends a head");
    expect(!marked || numberOf(head.command) == expected, "the head is sent");
    call = Call();
    call.command = expected;
    call.number = head.number;
    goOn(call, marked, HandOver);
}

void QueueWorld::handOver(Call &call)
{
    const bool isOpen = m_queue.startHandOver(call.number);
    expect(isOpen == m_model.startHandOver(call.command),
           "a head that is gone or claimed is not sent");
    call.next = MarkSent;
    if (!isOpen)
        return;
    m_isHandingOver = true;
    m_isSilent = m_way != Accepted;
    call.next = m_way == Accepted ? ArmTimer : RemoveRefused;
    if (m_way == TooLong)
        return;
    expect(!(m_handed & bit(call.command)), "a command is sent once");
    m_handed |= bit(call.command);
}

void QueueWorld::endHandOver(Call &call)
{
    m_isHandingOver = false;
    call = Call();
}

void QueueWorld::removeHead(const Call &call)
{
    m_queue.removeHead(call.number);
    m_model.remove(call.command);
}

void QueueWorld::removeRefused(Call &call)
{
    removeHead(call);
    m_refused |= bit(call.command);
    endHandOver(call);
}

void QueueWorld::armTimer(Call &call)
{
    m_timer.isArmed = true;
    m_timer.command = call.command;
    m_timer.number = call.number;
    call.arming = ++m_timer.arming;
    call.next = LookForQuickReply;
}

void QueueWorld::lookForQuickReply(Call &call)
{
    const bool awaits = m_queue.awaitsReply(call.number);
    expect(awaits == m_model.awaitsReply(call.command),
           "a head awaits a reply until it is claimed");
    call.next = DisarmTimer;
    if (awaits)
        endHandOver(call);
}

void QueueWorld::disarmTimer(Call &call)
{
    if (m_timer.arming == call.arming)
        m_timer.isArmed = false;
    endHandOver(call);
}

// ---- outcomes ------------------------------------------------------------------------------

/// Claims the head. The same thread then announces the answer, which is part of this step.
CommandQueue::Claim QueueWorld::claim(Call &call, ClaimFunction function, quint64 number,
                                      int expected)
{
    CommandQueue::Head head;
    const CommandQueue::Claim result = (m_queue.*function)(head, number);
    const bool claimed = result == CommandQueue::Claimed;
    expect(claimed == (expected != 0), "one thread claims a head, and it is the one that is meant");
    expect(!claimed || numberOf(head.command) == expected, "the head is claimed");
    expect(!(m_answered & bit(expected)), "a command is answered once");
    m_answered |= bit(expected) & ~bit(0);
    call.command = expected;
    call.number = head.number;
    return result;
}

/// Claims the head for a reply or a time-out. If the device has not received the head, the claim
/// must fail.
CommandQueue::Claim QueueWorld::claimInFlight(Call &call, quint64 number, int expected)
{
    const bool waits = m_model.waitsForHandOver();
    const CommandQueue::Claim result =
        claim(call, &CommandQueue::claimHeadInFlight, number, expected);
    expect(waits == (result == CommandQueue::WaitsForHandOver),
           "a command that is about to be sent is not answered");
    return result;
}

void QueueWorld::claimForReply(Call &call)
{
    const CommandQueue::Claim result = claimInFlight(call, 0, m_model.claimHeadInFlight());
    goOn(call, result != CommandQueue::ClaimedByOther, StopTimer);
}

void QueueWorld::stopTimer(Call &call)
{
    if (m_timer.number <= call.number)
        m_timer.isArmed = false;
    goOn(call, call.command != 0, RemoveAnswered);
}

void QueueWorld::removeAnswered(Call &call)
{
    removeHead(call);
    call = Call();
    call.next = MarkSent;
}

void QueueWorld::runOut(Call &call)
{
    call.arming = m_timer.arming;
    call.next = LookUpHead;
}

void QueueWorld::lookUpHead(Call &call)
{
    call.command = m_model.head();
    call.number = m_queue.headNumber();
    call.next = StopRunOutTimer;
}

void QueueWorld::stopRunOutTimer(Call &call)
{
    const bool isArmed = m_timer.isArmed && m_timer.arming == call.arming;
    call.timedCommand = m_timer.command;
    call.timedNumber = m_timer.number;
    goOn(call, isArmed, LookForReply);
    if (isArmed)
        m_timer.isArmed = false;
}

void QueueWorld::lookForReply(Call &call)
{
    const bool awaits = m_queue.awaitsReply(call.timedNumber);
    expect(awaits == m_model.awaitsReply(call.timedCommand),
           "a head awaits a reply until it is claimed");
    goOn(call, awaits, ClaimForTimeOut);
}

void QueueWorld::claimForTimeOut(Call &call)
{
    const bool isHead = call.command != 0 && call.command == m_model.head();
    claimInFlight(call, call.number, isHead ? m_model.claimHeadInFlight() : 0);
    expect(call.command == 0 || call.command == call.timedCommand ||
               (m_dropped & bit(call.timedCommand)),
           "a time-out answers its own command, or what stands behind one that was dropped");
    call.timedCommand = 0;
    call.timedNumber = 0;
    goOn(call, call.command != 0, RemoveTimedOut);
}

/// Removes the head after all receivers of the time-out signal have returned.
void QueueWorld::removeTimedOut(Call &call)
{
    if (!call.logicIsGone)
        removeHead(call);
    const bool isThere = !call.logicIsGone;
    call = Call();
    goOn(call, isThere, MarkSent);
}

void QueueWorld::claimForFailure(Call &call)
{
    const CommandQueue::Claim result =
        claim(call, &CommandQueue::claimHead, 0, m_model.claimHead());
    call = Call();
    goOn(call, result != CommandQueue::Empty, ClearAll);
}

// ---- dropping ------------------------------------------------------------------------------

void QueueWorld::drop(bool (*keep)(const USSDCmdOrResp &))
{
    m_model.keepOnly([this, keep](const QueueModel::Entry &entry) {
        const bool isKept = keep(commandOf(entry.command, entry.component));
        m_dropped |= isKept ? 0 : bit(entry.command);
        return isKept;
    });
}

void QueueWorld::clearAll(Call &call)
{
    m_queue.clear();
    drop(isNeverKept);
    call = Call();
}

/// Ends the session on the device, without changing the queue or the timer.
void QueueWorld::release(Call &call)
{
    call = Call();
}

void QueueWorld::keepQueries(Call &call)
{
    m_queue.keepOnly(isQuery);
    drop(isQuery);
    call = Call();
}

void QueueWorld::keepAllButServices(Call &call)
{
    m_queue.keepOnly(isNotOfServices);
    drop(isNotOfServices);
    call = Call();
}

void QueueWorld::stopAnyTimer(Call &call)
{
    m_timer.isArmed = false;
    call.next = CloseGate;
}

void QueueWorld::closeGate(Call &call)
{
    m_gateIsOpen = false;
    call.next = DeleteLogic;
}

/// Deletes the logic object. No other call is in progress or can start at this step.
void QueueWorld::deleteLogic(Call &call)
{
    m_timer.isArmed = false;
    clearAll(call);
    m_calls[Gui].logicIsGone = m_calls[Gui].next == RemoveTimedOut;
}

// ---- key -----------------------------------------------------------------------------------

/// Packs values of a few bits each into a key.
class QueueWorld::KeyWriter
{
public:
    void write(quint64 value, size_t bits)
    {
        if (m_used + bits > 64 * m_key.size() || value >> bits != 0)
            qFatal("the key is too short");
        const size_t part = m_used / 64;
        const size_t offset = m_used % 64;
        m_key[part] |= value << offset;
        if (offset + bits > 64)
            m_key[part + 1] |= value >> (64 - offset);
        m_used += bits;
    }
    const Key &key() const { return m_key; }

private:
    Key m_key = {{0, 0, 0, 0}};
    size_t m_used = 0;
};

QueueWorld::Oldest QueueWorld::oldestCompared() const
{
    Oldest oldest = {m_lastCommand + 1, m_queue.headNumber()};
    const auto look = [&oldest](int command, quint64 number) {
        if (command != 0)
            oldest.command = qMin(oldest.command, command);
        if (number != 0)
            oldest.number = qMin(oldest.number, number);
    };
    look(m_model.head(), 0);
    if (m_timer.isArmed)
        look(m_timer.command, m_timer.number);
    for (const Call &call : m_calls) {
        look(call.command, call.number);
        look(call.timedCommand, call.timedNumber);
    }
    return oldest;
}

/// Returns a key that is equal for states with the same future behaviour. Only the order of numbers
/// and of commands matters, so the key contains their distances from the newest number or command.
/// A mark that is older than all numbers with which it can be compared always gives the same
/// result. A command that is no longer in use does not appear in the key, because its outcome has
/// already been checked.
QueueWorld::Key QueueWorld::key() const
{
    KeyWriter writer;
    const Oldest oldest = oldestCompared();
    const CommandQueue::Marks &marks = m_queue.marks();
    writer.write(marks.current - qMax(marks.sent, oldest.number - 1), 4);
    writer.write(marks.current - qMax(marks.handed, oldest.number - 1), 4);
    writer.write(marks.current - qMax(marks.claimed, oldest.number - 1), 4);
    writer.write(quint64(m_lastCommand + 1 - qMax(m_model.lastClaimed, oldest.command - 1)), 4);
    writer.write(m_isHandingOver, 1);
    writer.write(m_gateIsOpen, 1);
    writer.write(m_isSilent, 1);
    writer.write(m_timer.isArmed, 1);
    if (m_timer.isArmed)
        writeHead(writer, m_timer.command, m_timer.number);
    writeCommands(writer);
    writeCalls(writer);
    return writer.key();
}

void QueueWorld::writeHead(KeyWriter &writer, int command, quint64 number) const
{
    writer.write(command == 0 ? 0 : quint64(m_lastCommand + 1 - command), 4);
    writer.write(number == 0 ? 0 : m_queue.headNumber() + 1 - number, 4);
}

void QueueWorld::writeCommands(KeyWriter &writer) const
{
    writer.write(m_model.entries.size(), 4);
    for (const QueueModel::Entry &entry : m_model.entries) {
        writer.write(quint64(m_lastCommand + 1 - entry.command), 4);
        writer.write(quint64(entry.component - COMPONENT_PREPOST_QUERY), 2);
        writer.write(quint64(entry.sent), 1);
        writer.write(quint64(entry.handed), 1);
        writer.write(quint64(entry.claimed), 1);
    }
    const unsigned held = heldCommands();
    for (int command = 1; command <= m_lastCommand; ++command) {
        if (!(held & bit(command)))
            continue;
        writer.write(m_handed >> command & 1, 1);
        writer.write(m_answered >> command & 1, 1);
        writer.write(m_dropped >> command & 1, 1);
        writer.write(m_refused >> command & 1, 1);
    }
}

/// Writes the calls of all threads. The two reply threads are interchangeable, so their calls are
/// written in a fixed order.
void QueueWorld::writeCalls(KeyWriter &writer) const
{
    const Call &first = m_calls[FirstReply];
    const Call &second = m_calls[SecondReply];
    const bool inOrder = std::tie(first.next, first.command, first.number) <=
                         std::tie(second.next, second.command, second.number);
    writeCall(writer, m_calls[Gui]);
    writeCall(writer, m_calls[GuiInside]);
    writeCall(writer, m_calls[Device]);
    writeCall(writer, inOrder ? first : second);
    writeCall(writer, inOrder ? second : first);
}

void QueueWorld::writeCall(KeyWriter &writer, const Call &call) const
{
    writer.write(call.next, 5);
    if (call.next == Idle)
        return;
    writeHead(writer, call.command, call.number);
    writeHead(writer, call.timedCommand, call.timedNumber);
    writer.write(call.arming == 0 ? 0 : call.arming == m_timer.arming ? 1 : 2, 2);
    writer.write(call.logicIsGone, 1);
}
