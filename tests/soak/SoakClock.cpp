#include "SoakClock.h"

#include <atomic>

#include "requests/ReplyTimer.h"
#include "sim/SimulatorClock.h"

namespace
{

std::atomic<qint64> g_now(0);

tksv::SimulatorClock::Time networkTime()
{
    return tksv::SimulatorClock::Time(std::chrono::milliseconds(g_now.load()));
}

} // namespace

namespace SoakClock
{

void install()
{
    ReplyTimer::setClock(&now);
    tksv::SimulatorClock::setSource(&networkTime);
}

void advance(int milliseconds)
{
    g_now += milliseconds;
    tksv::SimulatorClock::notifyJump();
}

qint64 now()
{
    return g_now;
}

} // namespace SoakClock
