/*
 * The entry points that a plug-in loader looks up. Qt 4 finds the two functions below by name and
 * compares the verification data with the data of its own build. Qt 5 and later generate
 * qt_plugin_instance() from the meta data of the class, and their loaders read this meta data
 * instead.
 */
#include <QtPlugin>

#include "QtCompat.h"
#include "USSDUIPluginImpl.h"

#define USSD_VERIFICATION_DATA                                                                     \
    "pattern=QT_PLUGIN_VERIFICATION_DATA\n"                                                        \
    "version=4.6.2\n"                                                                              \
    "debug=false\n"                                                                                \
    "buildkey=" USSD_QT4_BUILD_KEY

#define USSD_ENTRY_POINT extern "C" __attribute__((visibility("default")))

USSD_ENTRY_POINT const char *qt_plugin_query_verification_data();

const char *qt_plugin_query_verification_data()
{
    // Qt 4's loader also searches the library file for this text without loading the library.
    static const char data[] = USSD_VERIFICATION_DATA;
    return data;
}

USSD_QT4_PLUGIN_INSTANCE(CUSSDUIPluginImpl)
