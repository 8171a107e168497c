/*
 * The entry points for the plug-in loader. Qt 4 looks up the two functions below by name and
 * compares the verification data with the data of its own build. In Qt 5 and later,
 * qt_plugin_instance() is generated from the meta data of the class, and the loader reads this meta
 * data instead.
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
    // Qt 4's loader also searches the library file for this string without loading the library.
    static const char data[] = USSD_VERIFICATION_DATA;
    return data;
}

USSD_QT4_PLUGIN_INSTANCE(CUSSDUIPluginImpl)
