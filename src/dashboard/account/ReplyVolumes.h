#ifndef REPLYVOLUMES_H
#define REPLYVOLUMES_H

#include <optional>

#include "ReplyReading.h"
#include "ReplyText.h"

namespace Dashboard
{

/// Returns the remaining volume of data that a reply tells, or nothing if the reply leaves a doubt.
std::optional<DataVolume> readVolume(const ReplyText &text);

} // namespace Dashboard

#endif
