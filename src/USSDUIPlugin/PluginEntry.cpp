/*
 * What a plug-in loader looks up. Qt 4 finds the two functions below by name and compares the text
 * with that of its own build. Qt 5 makes qt_plugin_instance() itself, from the class's meta data,
 * in the same words, and finds its own meta data beside it.
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
    // Qt 4's loader also searches the file for this text without loading it.
    static const char data[] = USSD_VERIFICATION_DATA;
    return data;
}

USSD_QT4_PLUGIN_INSTANCE(CUSSDUIPluginImpl)
