#include "ReplyTimeout.h"

#include <QByteArray>

namespace Formats
{

namespace
{

const char VARIABLE[] = "USSD_REPLY_TIMEOUT_MS";

} // namespace

int replyTimeout()
{
    const int chosen = qgetenv(VARIABLE).toInt();
    return chosen > 0 ? chosen : STANDARD_REPLY_TIMEOUT;
}

void setReplyTimeout(int milliseconds)
{
    if (qgetenv(VARIABLE).isEmpty())
        qputenv(VARIABLE, QByteArray::number(milliseconds));
}

} // namespace Formats
