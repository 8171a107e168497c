#ifndef REPLYAMOUNTS_H
#define REPLYAMOUNTS_H

#include <optional>

#include "Money.h"
#include "ReplyText.h"

namespace Dashboard
{

/// Returns the balance in the reply, or no value if the reply does not contain an unambiguous
/// balance.
std::optional<Money> readBalance(const ReplyText &text);

} // namespace Dashboard

#endif
