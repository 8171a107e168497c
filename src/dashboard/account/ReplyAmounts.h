#ifndef REPLYAMOUNTS_H
#define REPLYAMOUNTS_H

#include <optional>

#include "Money.h"
#include "ReplyText.h"

namespace Dashboard
{

/// Returns the balance that a reply tells, or nothing if the reply leaves a doubt.
std::optional<Money> readBalance(const ReplyText &text);

} // namespace Dashboard

#endif
