# Defines targets with the same names for all Qt versions: ussd::qtcore, ussd::qtwidgets (all GUI
# modules) and ussd::qttest.
add_library(ussd_qtcore INTERFACE)
add_library(ussd_qtwidgets INTERFACE)
add_library(ussd_qttest INTERFACE)
# Modules that only the dashboard uses. The dashboard requires Qt 5 or Qt 6.
add_library(ussd_qtdashboard INTERFACE)

if(USSD_QT_VERSION EQUAL 6)
    # Core5Compat provides QRegExp. Patterns in configuration files use the syntax of QRegExp with
    # every Qt version.
    find_package(Qt6 6.4 REQUIRED COMPONENTS Core Core5Compat DBus Gui Sql Svg Widgets Test)
    target_link_libraries(ussd_qtcore INTERFACE Qt6::Core Qt6::Core5Compat)
    target_link_libraries(ussd_qtwidgets INTERFACE Qt6::Widgets)
    # Removes the definitions for QFINDTESTDATA that Qt6::Test adds. These definitions differ for each
    # folder, but tests that share precompiled headers must have identical definitions.
    set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
    target_link_libraries(ussd_qttest INTERFACE Qt6::Test)
    target_link_libraries(ussd_qtdashboard INTERFACE Qt6::DBus Qt6::Sql Qt6::Svg)
    find_program(USSD_LRELEASE_QT6 NAMES lrelease lrelease-qt6 HINTS /usr/lib/qt6/bin NO_DEFAULT_PATH REQUIRED)
    set(USSD_LRELEASE ${USSD_LRELEASE_QT6})
elseif(USSD_QT_VERSION EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core DBus Gui Sql Svg Widgets Test)
    target_link_libraries(ussd_qtcore INTERFACE Qt5::Core)
    target_link_libraries(ussd_qtwidgets INTERFACE Qt5::Widgets)
    target_link_libraries(ussd_qttest INTERFACE Qt5::Test)
    target_link_libraries(ussd_qtdashboard INTERFACE Qt5::DBus Qt5::Sql Qt5::Svg)
    find_program(USSD_LRELEASE NAMES lrelease lrelease-qt5 HINTS /usr/lib/qt5/bin REQUIRED)
elseif(USSD_QT_VERSION EQUAL 4)
    find_package(Qt4 4.6 REQUIRED QtCore QtGui)
    target_link_libraries(ussd_qtcore INTERFACE Qt4::QtCore)
    target_link_libraries(ussd_qtwidgets INTERFACE Qt4::QtGui)
    find_program(USSD_LRELEASE NAMES lrelease lrelease-qt4 HINTS ${QT_BINARY_DIR} REQUIRED)
    set(USSD_BUILD_TESTS OFF)
    set(USSD_BUILD_BENCHMARKS OFF)
else()
    message(FATAL_ERROR "USSD_QT_VERSION is '${USSD_QT_VERSION}'; expected 6, 5 or 4")
endif()
# Qt 4 rejects a plug-in whose build key differs from its own build key, which never ends with "qt5"
# or "qt6". A Qt 4 host therefore never loads a plug-in that was built for Qt 5 or Qt 6.
set(USSD_PLUGIN_BUILD_KEY "${USSD_QT4_BUILD_KEY}")
if(NOT USSD_QT_VERSION EQUAL 4)
    string(APPEND USSD_PLUGIN_BUILD_KEY " qt${USSD_QT_VERSION}")
endif()

# Disable implicit conversions between QString and char *, because Qt 4 and Qt 5 assume different
# encodings.
target_compile_definitions(ussd_qtcore INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
target_link_libraries(ussd_qtwidgets INTERFACE ussd_qtcore)
target_link_libraries(ussd_qttest INTERFACE ussd_qtcore)
# Targets that use GLib are compiled with -pthread. All tests must use the same option, because they
# share precompiled headers.
target_compile_options(ussd_qttest INTERFACE -pthread)
add_library(ussd::qtcore ALIAS ussd_qtcore)
add_library(ussd::qtwidgets ALIAS ussd_qtwidgets)
add_library(ussd::qttest ALIAS ussd_qttest)
add_library(ussd::qtdashboard ALIAS ussd_qtdashboard)
