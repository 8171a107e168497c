#ifndef REPLYDATES_H
#define REPLYDATES_H

#include <QDate>

#include <optional>

#include "ReplyText.h"

namespace Dashboard
{

/// Returns the last day of the account's validity according to the reply, or no value if the reply
/// does not contain an unambiguous date.
std::optional<QDate> readValidity(const ReplyText &text);

} // namespace Dashboard

#endif
