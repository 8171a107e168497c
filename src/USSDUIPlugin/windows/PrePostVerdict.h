#ifndef PREPOSTVERDICT_H
#define PREPOSTVERDICT_H

#include <QString>

/// Whether the network's reply to the detection code is that for a postpaid SIM. The pattern "\d",
/// quotes included, finds a prepaid one by any digit, in whatever script; every other pattern by
/// being equal to the reply.
bool isPostpaidReply(const QString &reply, const QString &returnPattern);

#endif
