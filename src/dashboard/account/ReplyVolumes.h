#ifndef REPLYVOLUMES_H
#define REPLYVOLUMES_H

#include <optional>

#include "ReplyReading.h"
#include "ReplyText.h"

namespace Dashboard
{

/// Returns the remaining volume of data that a reply tells, or nothing if the reply leaves a doubt.
std::optional<DataVolume> readVolume(const ReplyText &text);

/// Returns the bytes of a volume such as "1.8 GB", or -1 if the string is not a volume.
qint64 bytesOf(const QString &volume);

} // namespace Dashboard

#endif
