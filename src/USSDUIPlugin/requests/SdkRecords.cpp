#include "SdkRecords.h"

#include <cstring>

static_assert(sizeof(unsigned short) == sizeof(QChar), "a UTF-16 unit is a QChar");

namespace SdkRecords
{

int commandBytes(const QString &command)
{
    return command.length() * static_cast<int>(sizeof(QChar));
}

bool encodeRequest(const QString &command, TKSV_USSDRequest &request)
{
    std::memset(&request, 0, sizeof(request));
    const int bytes = commandBytes(command);
    if (bytes > TKSV_USSD_MAX_COMMAND_BYTES)
        return false;
    request.length = static_cast<unsigned int>(bytes);
    std::memcpy(request.text, command.utf16(), static_cast<size_t>(bytes));
    return true;
}

QString textFromUnits(const unsigned short *units)
{
    if (!units)
        return QString();
    int length = 0;
    while (length < MOST_UNITS && units[length] != 0)
        ++length;
    // Copy the code units unchanged. QString::fromUtf16() would interpret a byte-order mark.
    return QString(reinterpret_cast<const QChar *>(units), length);
}

QString responseText(const void *record)
{
    return textFromUnits(static_cast<const TKSV_USSDResponse *>(record)->text);
}

int responseType(const void *record)
{
    return static_cast<const TKSV_USSDResponse *>(record)->type;
}

SmsSendResult smsSendResult(const void *record)
{
    const TKSV_SMSSendResult *raw = static_cast<const TKSV_SMSSendResult *>(record);
    SmsSendResult result = {raw->result == 0, raw->result, textFromUnits(raw->number),
                            textFromUnits(raw->text)};
    return result;
}

int smsStatus(const void *record)
{
    return record ? static_cast<const TKSV_SMSStatus *>(record)->status : 0;
}

} // namespace SdkRecords
