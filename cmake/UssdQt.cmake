# Defines the same target names for all Qt versions: ussd::qtcore, ussd::qtwidgets (the whole GUI) and
# ussd::qttest.
add_library(ussd_qtcore INTERFACE)
add_library(ussd_qtwidgets INTERFACE)
add_library(ussd_qttest INTERFACE)

if(USSD_QT_VERSION EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Test)
    target_link_libraries(ussd_qtcore INTERFACE Qt5::Core)
    target_link_libraries(ussd_qtwidgets INTERFACE Qt5::Widgets)
    target_link_libraries(ussd_qttest INTERFACE Qt5::Test)
    find_program(USSD_LRELEASE NAMES lrelease lrelease-qt5 HINTS /usr/lib/qt5/bin REQUIRED)
elseif(USSD_QT_VERSION EQUAL 4)
    find_package(Qt4 4.6 REQUIRED QtCore QtGui)
    target_link_libraries(ussd_qtcore INTERFACE Qt4::QtCore)
    target_link_libraries(ussd_qtwidgets INTERFACE Qt4::QtGui)
    find_program(USSD_LRELEASE NAMES lrelease-qt4 lrelease REQUIRED)
    set(USSD_BUILD_TESTS OFF)
    set(USSD_BUILD_BENCHMARKS OFF)
else()
    message(FATAL_ERROR "USSD_QT_VERSION is '${USSD_QT_VERSION}'; expected 5 or 4")
endif()
# Forbids implicit conversions between QString and char *, whose encoding differs between Qt 4 and Qt 5.
target_compile_definitions(ussd_qtcore INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
target_link_libraries(ussd_qtwidgets INTERFACE ussd_qtcore)
target_link_libraries(ussd_qttest INTERFACE ussd_qtcore)
# Targets that use GLib are compiled with -pthread. All tests need the same option, because they share
# precompiled headers.
target_compile_options(ussd_qttest INTERFACE -pthread)
add_library(ussd::qtcore ALIAS ussd_qtcore)
add_library(ussd::qtwidgets ALIAS ussd_qtwidgets)
add_library(ussd::qttest ALIAS ussd_qttest)
