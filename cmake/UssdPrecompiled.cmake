# Functions for precompiled headers. Most of the compile time is spent on the headers of Qt, GLib
# and the C++ standard library. Targets with the same compiler options therefore share a precompiled
# copy of these headers:
#
#   ussd_add_precompiled_headers(KIND LEVEL [HIDDEN] HEADERS... LIBRARIES...)
#   ussd_use_precompiled_headers(TARGET KIND)
#
# All targets of a KIND use the same C++ standard (LEVEL), symbol visibility (HIDDEN) and Qt modules
# (LIBRARIES). If the options differ, the compiler rejects the precompiled headers (-Winvalid-pch).
# Source files must still include all headers that they use, because the quick and tidy presets do
# not use precompiled headers.

set(USSD_PRECOMPILED_CXX
    <algorithm> <atomic> <chrono> <functional> <map> <memory> <mutex> <string> <utility> <vector>)
set(USSD_PRECOMPILED_CXX17 ${USSD_PRECOMPILED_CXX} <condition_variable> <deque> <fstream> <optional>)
set(USSD_PRECOMPILED_QT
    <QApplication>
    <QDir>
    <QFile>
    <QGridLayout>
    <QKeyEvent>
    <QLabel>
    <QLineEdit>
    <QList>
    <QMenu>
    <QMessageBox>
    <QPlainTextEdit>
    <QPointer>
    <QPushButton>
    <QRegExp>
    <QString>
    <QStringList>
    <QTableWidget>
    <QTextDocument>
    <QTimer>
    <QVBoxLayout>
    <QXmlStreamReader>)
set(USSD_PRECOMPILED_GLIB <gio/gio.h> <glib.h>)

function(ussd_use_precompiled_headers target kind)
    if(USSD_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM precompiled_for_${kind})
    endif()
endfunction()

# Adds a library that contains only the precompiled headers. It must not have compile definitions,
# because all targets that use the headers would require the same definitions.
function(ussd_add_precompiled_headers kind level)
    cmake_parse_arguments(arg "HIDDEN" "" "HEADERS;LIBRARIES" ${ARGN})
    if(NOT USSD_PRECOMPILED_HEADERS)
        return()
    endif()
    set(name precompiled_for_${kind})
    file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${PROJECT_BINARY_DIR}/${name}.cpp)
    ussd_set_up(${name})
    if(arg_HIDDEN)
        ussd_hide_symbols(${name})
    endif()
    set_target_properties(${name} PROPERTIES CXX_STANDARD ${level})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()
