/*
 * The entry points for the plug-in loader. Qt 4 looks up the two functions below by name and
 * compares the verification data with the data of its own build. In Qt 5 and later,
 * qt_plugin_instance() is generated from the meta data of the class, and the loader reads this meta
 * data instead. The build key of a library that was built with Qt 5 or later is one that no Qt 4
 * has. Therefore, a Qt 4 host refuses the library with an error message.
 */
#include <QtPlugin>

#include "QtCompat.h"
#include "USSDUIPluginImpl.h"

#define USSD_VERIFICATION_DATA                                                                     \
    "pattern=QT_PLUGIN_VERIFICATION_DATA\n"                                                        \
    "version=4.6.2\n"                                                                              \
    "debug=false\n"                                                                                \
    "buildkey=" USSD_BUILD_KEY

#define USSD_ENTRY_POINT extern "C" __attribute__((visibility("default")))

USSD_ENTRY_POINT const char *qt_plugin_query_verification_data();

const char *qt_plugin_query_verification_data()
{
    // Qt 4's loader also searches the library file for this string without loading the library.
    static const char data[] = USSD_VERIFICATION_DATA;
    return data;
}

USSD_QT4_PLUGIN_INSTANCE(CUSSDUIPluginImpl)
