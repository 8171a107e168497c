#ifndef POSTPAIDREPLY_H
#define POSTPAIDREPLY_H

#include <QString>

/// Returns true if `reply`, the network's reply to the detection code, means a postpaid SIM. With
/// the pattern "\d", quotes included, a reply that contains a digit of any script means prepaid.
/// With any other pattern, only a reply that equals the pattern means prepaid.
bool isPostpaidReply(const QString &reply, const QString &returnPattern);

#endif
