/*
 * The entry points for the plug-in loader. The loader of Qt 4 looks up the two functions below by
 * name and compares the verification data with that of its own build. In Qt 5 and later, moc
 * generates qt_plugin_instance(), and the loader reads the meta data of the class instead. If the
 * library is built with Qt 5 or later, its build key cannot match that of any Qt 4 build. A Qt 4
 * host therefore rejects the library with an error message.
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
    // The loader of Qt 4 also searches the library file for this string before it loads the
    // library.
    static const char data[] = USSD_VERIFICATION_DATA;
    return data;
}

USSD_QT4_PLUGIN_INSTANCE(CUSSDUIPluginImpl)
