#ifndef REPLYVOLUMES_H
#define REPLYVOLUMES_H

#include <optional>

#include "ReplyReading.h"
#include "ReplyText.h"

namespace Dashboard
{

/// Returns the remaining data volume in the reply, or no value if the reply does not contain an
/// unambiguous volume.
std::optional<DataVolume> readVolume(const ReplyText &text);

/// Returns the size of a volume such as "1.8 GB" in bytes, or -1 if the string is not a volume.
qint64 bytesOf(const QString &volume);

} // namespace Dashboard

#endif
