#include "ReplyLimit.h"

#include <QByteArray>

namespace
{

const char VARIABLE[] = "USSD_REPLY_TIMEOUT_MS";
const int STANDARD = 30000;

} // namespace

int replyLimit()
{
    const int chosen = qgetenv(VARIABLE).toInt();
    return chosen > 0 ? chosen : STANDARD;
}

void setReplyLimit(int milliseconds)
{
    if (qgetenv(VARIABLE).isEmpty())
        qputenv(VARIABLE, QByteArray::number(milliseconds));
}
