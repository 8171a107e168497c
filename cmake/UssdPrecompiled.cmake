# Precompiled headers. Most of the time of a compilation goes into the headers of Qt, of GLib and of the
# C++ library, so targets that are compiled alike share one precompiled copy of them:
#
#   ussd_add_precompiled_headers(KIND LEVEL [HIDDEN] HEADERS... LIBRARIES...)
#   ussd_use_precompiled_headers(TARGET KIND)
#
# The targets of one kind have the same language level (LEVEL), visibility (HIDDEN) and Qt modules
# (LIBRARIES). The compiler refuses the headers to a target that differs (-Winvalid-pch). A source file
# includes what it uses all the same: the presets quick and tidy do without these headers.

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

# A library with nothing in it but the headers. It has no definitions of its own, since the compiler
# wants to find each of them again where the headers are used.
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
