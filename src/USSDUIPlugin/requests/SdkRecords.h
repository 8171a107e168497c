#ifndef SDKRECORDS_H
#define SDKRECORDS_H

#include <QString>

#include "tksv.h"

/*
 * The device SDK's records and our values: the only place where one becomes the other.
 */
namespace SdkRecords
{

/// Bytes of a command as UTF-16.
int commandBytes(const QString &command);

/// Fills the whole record. Returns false and zeroes the record when the command is longer than
/// TKSV_USSD_MAX_COMMAND_BYTES.
bool encodeRequest(const QString &command, TKSV_USSDRequest &request);

/// A text ends there at the latest, in UTF-16 units: its closing zero may have been forgotten.
const int MOST_UNITS = 1024 * 1024;

/// Text up to the closing zero unit; empty for null.
QString textFromUnits(const unsigned short *units);

/// The text of a response record, which must not be null.
QString responseText(const void *record);
/// Its type; logged only.
int responseType(const void *record);

/// How a short message fared.
struct SmsSendResult {
    bool sent;
    int result;
    QString number;
    QString text;
};

SmsSendResult smsSendResult(const void *record);
/// 0, which is no status, for null.
int smsStatus(const void *record);

} // namespace SdkRecords

#endif
