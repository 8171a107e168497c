#include "SoakClock.h"

#include <atomic>

#include "requests/ReplyTimer.h"
#include "sim/SimulatorClock.h"

namespace
{

std::atomic<qint64> g_now(0);

Tksv::SimulatorClock::Time networkTime()
{
    return Tksv::SimulatorClock::Time(std::chrono::milliseconds(g_now.load()));
}

} // namespace

namespace SoakClock
{

void install()
{
    ReplyTimer::setClock(&now);
    Tksv::SimulatorClock::setSource(&networkTime);
}

void advance(int milliseconds)
{
    g_now += milliseconds;
    Tksv::SimulatorClock::notifyJump();
}

qint64 now()
{
    return g_now;
}

} // namespace SoakClock
