#ifndef POSTPAIDREPLY_H
#define POSTPAIDREPLY_H

#include <QString>

/// Returns true if `reply`, the network's reply to the detection code, means a postpaid SIM. If the
/// pattern is "\d" (with the quotes), a reply that contains a digit of any script means prepaid.
/// With any other pattern, only a reply that equals the pattern means prepaid.
bool isPostpaidReply(const QString &reply, const QString &returnPattern);

#endif
