#ifndef POSTPAIDREPLY_H
#define POSTPAIDREPLY_H

#include <QString>

/// Returns true if `reply`, the network's reply to the detection code, indicates a postpaid SIM. If
/// the pattern is "\d" (including the quotes), a reply that contains a digit of any script
/// indicates a prepaid SIM. With any other pattern, only a reply that equals the pattern indicates
/// a prepaid SIM.
bool isPostpaidReply(const QString &reply, const QString &returnPattern);

#endif
