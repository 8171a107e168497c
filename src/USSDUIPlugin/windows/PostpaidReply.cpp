#include "PostpaidReply.h"

namespace
{

bool holdsDigit(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i).isDigit())
            return true;
    }
    return false;
}

} // namespace

bool isPostpaidReply(const QString &reply, const QString &returnPattern)
{
    if (returnPattern == QLatin1String("\"\\d\""))
        return !holdsDigit(reply);
    return reply != returnPattern;
}
