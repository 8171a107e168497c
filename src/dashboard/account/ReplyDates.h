#ifndef REPLYDATES_H
#define REPLYDATES_H

#include <QDate>

#include <optional>

#include "ReplyText.h"

namespace Dashboard
{

/// Returns the last day of the account's validity that a reply tells, or nothing if the reply
/// leaves a doubt.
std::optional<QDate> readValidity(const ReplyText &text);

} // namespace Dashboard

#endif
