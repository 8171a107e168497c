#ifndef PLUGINCONTRACT_H
#define PLUGINCONTRACT_H

#include <cstddef>

/**
 * The constants and the record that the host and the plug-in exchange. They are part of the binary
 * interface and must not change, because the host and the plug-in may be built at different times.
 */
namespace PluginContract
{

/// The identifier for which IBasePlugin::QueryInterface() returns the USSD service (IUSSD).
const int USSD_SERVICE = 4097;

// Events that the host sends with INotify::Notify(). Both parameters are always 0.
const unsigned int EVENT_LANGUAGE_CHANGED = 320; ///< the language of Change::tr() has changed
const unsigned int EVENT_CHECK_SIM = 579;        ///< the SIM was replaced or became readable

/// The message that the plug-in sends with INotifyService::Notify(). The first parameter is the
/// address of a PrePostRecord. The second parameter is 0.
const unsigned int MESSAGE_PRE_POST_INFO = 384;

} // namespace PluginContract

/**
 * The result of the prepaid/postpaid query. The plug-in owns the record, which is valid only during
 * the call to INotifyService::Notify(). A host must copy the values that it needs. The order and
 * the size of the fields are part of the binary interface.
 */
struct PrePostRecord {
    bool bInUse = false;    ///< true if the configuration enables the query
    bool bPostPaid = false; ///< true if the SIM is postpaid; meaningless if `result` is 0
    int result = 0; ///< 1 if the query was sent; 0 if it was not sent or not answered in time
};

static_assert(sizeof(bool) == 1 && sizeof(int) == 4, "the record is made of these two sizes");
static_assert(offsetof(PrePostRecord, bInUse) == 0, "offset in the record of the message");
static_assert(offsetof(PrePostRecord, bPostPaid) == 1, "offset in the record of the message");
static_assert(offsetof(PrePostRecord, result) == 4, "offset in the record of the message");
static_assert(sizeof(PrePostRecord) == 8, "size of the record of the message");

#endif
