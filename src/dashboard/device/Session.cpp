#include "Session.h"

#include "tksv_device.h"

namespace Dashboard
{

bool Session::isInFlight() const
{
    return state == TKSV_SESSION_IN_FLIGHT;
}

bool Session::waitsForAnswer() const
{
    return state == TKSV_SESSION_WAITS_FOR_ANSWER;
}

Session readSession()
{
    TKSV_SessionInfo info = {};
    TKSV_Device_GetSession(&info);
    Session session;
    session.state = info.state;
    session.requests = info.requestCount;
    session.request = QString::fromUtf8(info.request);
    return session;
}

} // namespace Dashboard
