/*
 * A device SDK that accepts all calls, never calls back and does not start threads. The fuzzers use
 * it for code that only registers call-backs. $USSD_FUZZ_USER_FOLDER specifies the user data
 * directory.
 */
#include "tksv.h"

#include <algorithm>

#include <QString>

extern "C" {

long TKSV_USSDSrv_Request(TKSV_USSDRequest *, int *)
{
    return 0;
}

long TKSV_USSDSrv_Release(int *)
{
    return 0;
}

long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback)
{
    return 0;
}

long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback)
{
    return 0;
}

long TKSV_DevSrv_RegisterDevInitEventCallback(TKSV_EventCallback)
{
    return 0;
}

long TKSV_DevSrv_UnRegisterDevInitEventCallback(TKSV_EventCallback)
{
    return 0;
}

long TKSV_SMSSrv_RegCallBack(TKSV_EventCallback)
{
    return 0;
}

long TKSV_SMSSrv_UnRegCallBack(TKSV_EventCallback)
{
    return 0;
}

long TKSV_SMSSrv_CreateSMSRecord(TKSV_SMSRecord *record, const unsigned short *,
                                 const unsigned short *)
{
    *record = nullptr;
    return 1;
}

long TKSV_SMSSrv_SendMsg(TKSV_SMSRecord)
{
    return 1;
}

long TKSV_SMSSrv_ReleaseSMSRecord(TKSV_SMSRecord)
{
    return 1;
}

long TKSV_GetUserDataDirectory(unsigned short **directory)
{
    const QString folder = QString::fromLocal8Bit(qgetenv("USSD_FUZZ_USER_FOLDER"));
    *directory = new unsigned short[static_cast<size_t>(folder.length()) + 1]();
    std::copy_n(folder.utf16(), folder.length(), *directory);
    return 0;
}
}
