/* The records' layout in this build; compiled for 32 and for 64 bits, and never run. */
#include <stddef.h>

#include "tksv.h"

#define CHECK(name, condition) typedef char name[(condition) ? 1 : -1]

CHECK(request_size, sizeof(TKSV_USSDRequest) == 372);
CHECK(request_length, offsetof(TKSV_USSDRequest, length) == 0);
CHECK(request_length_size, sizeof(((TKSV_USSDRequest *)0)->length) == 4);
CHECK(request_text, offsetof(TKSV_USSDRequest, text) == 4);
CHECK(request_text_size, sizeof(((TKSV_USSDRequest *)0)->text) == 368);
CHECK(response_type, offsetof(TKSV_USSDResponse, type) == 0);
CHECK(response_reserved, offsetof(TKSV_USSDResponse, reserved) == 4);
CHECK(response_text, offsetof(TKSV_USSDResponse, text) == 8);
CHECK(sms_result, offsetof(TKSV_SMSSendResult, result) == 16);
CHECK(sms_status, offsetof(TKSV_SMSStatus, status) == 0);

#if EXPECTED_BITS == 32
CHECK(pointer, sizeof(void *) == 4);
CHECK(sms_number, offsetof(TKSV_SMSSendResult, number) == 84);
CHECK(sms_text, offsetof(TKSV_SMSSendResult, text) == 88);
#else
CHECK(pointer, sizeof(void *) == 8);
CHECK(sms_number, offsetof(TKSV_SMSSendResult, number) == 88);
CHECK(sms_text, offsetof(TKSV_SMSSendResult, text) == 96);
#endif
