#ifndef POSTPAIDREPLY_H
#define POSTPAIDREPLY_H

#include <QString>

/// Returns true if the network's reply to the detection code indicates a postpaid SIM. If the
/// pattern is "\d" (including the quotes), a reply with a digit of any script indicates a prepaid
/// SIM. With any other pattern, a SIM is prepaid only if the reply equals the pattern.
bool isPostpaidReply(const QString &reply, const QString &returnPattern);

#endif
