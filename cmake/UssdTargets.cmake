# Functions that add the different kinds of targets. All targets use the same warnings, C++
# standard, symbol visibility, sanitizers and output folders.
#
#   ussd_add_core_library(NAME SOURCES... LIBRARIES...)     the host core library
#   ussd_add_sdk_library(NAME SOURCES... LIBRARIES...)      a device SDK library (no Qt)
#   ussd_add_plugin_code(NAME SOURCES... LIBRARIES...)      the plug-in's code, for plug-in and tests
#   ussd_add_plugin(NAME SOURCES... LIBRARIES...)           the plug-in itself
#   ussd_add_program(NAME SOURCES... LIBRARIES...)          a program for users
#   ussd_set_up_example(NAME)                               an example, whose folder can also be built
#                                                           against an installation; not installed

# The C++ standard of the plug-in and its libraries, which must also compile with Qt 4. Folders
# whose code requires Qt 5.15 or later set another standard at the start of their CMakeLists.txt.
if(USSD_QT_VERSION EQUAL 6)
    set(USSD_CXX_STANDARD 17) # required by the headers of Qt 6
else()
    set(USSD_CXX_STANDARD 14)
endif()

# Sets the properties and options that all targets of this project share.
function(ussd_set_up target)
    set_target_properties(
        ${target}
        PROPERTIES CXX_STANDARD ${USSD_CXX_STANDARD}
                   CXX_STANDARD_REQUIRED ON
                   CXX_EXTENSIONS OFF
                   POSITION_INDEPENDENT_CODE ON
                   BUILD_RPATH_USE_ORIGIN ON)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    if(USSD_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_link_options(${target} PRIVATE -Wl,--enable-new-dtags)
    if(NOT USSD_BUILD_FUZZERS) # clang links sanitizers only into programs
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    if(USSD_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${USSD_SANITIZE} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${USSD_SANITIZE})
    endif()
endfunction()

# Links the compiler's runtime library statically. Loading libstdc++.so takes a millisecond and
# almost a megabyte, which is a third of the start-up cost of a small program.
function(ussd_link_runtime_statically target)
    if(NOT USSD_SANITIZE)
        target_link_options(${target} PRIVATE -static-libstdc++ -static-libgcc)
    endif()
endfunction()

# Optimises the target for size, for programs that mostly wait for the user. Linux loads nearly all
# pages of a program at the start. The presets that build quickly or for debugging keep their own
# optimisation level.
function(ussd_optimise_for_size target)
    if(NOT CMAKE_CXX_FLAGS_RELWITHDEBINFO MATCHES "-O1")
        target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-Os>)
    endif()
endfunction()

function(ussd_hide_symbols target)
    set_target_properties(${target} PROPERTIES C_VISIBILITY_PRESET hidden CXX_VISIBILITY_PRESET hidden
                                               VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# ussd_install_library(TARGET PACKAGE FOLDER): installs a library whose CMake package is installed
# by ussd_add_development_files(). FOLDER is the folder of its headers.
function(ussd_install_library target package folder)
    install(
        TARGETS ${target}
        EXPORT ${package}
        LIBRARY DESTINATION ${USSD_LIB_DIR}
        INCLUDES
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endfunction()

function(ussd_add_core_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} SHARED ${arg_SOURCES})
    ussd_set_up(${name})
    ussd_hide_symbols(${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ON VERSION 1 SOVERSION 1 INSTALL_RPATH "$ORIGIN")
    target_include_directories(
        ${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src/core/common>
                       $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src/compat>)
    foreach(library IN LISTS arg_LIBRARIES)
        target_link_libraries(${name} PUBLIC $<BUILD_INTERFACE:${library}>)
    endforeach()
    foreach(library IN LISTS USSD_QT_TARGETS)
        target_link_libraries(${name} PUBLIC $<INSTALL_INTERFACE:${library}>)
    endforeach()
    ussd_install_library(${name} UssdUiPlugin ussd-ui-plugin)
endfunction()

function(ussd_add_sdk_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} SHARED ${arg_SOURCES})
    ussd_set_up(${name})
    ussd_hide_symbols(${name})
    set_target_properties(${name} PROPERTIES OUTPUT_NAME tksv INSTALL_RPATH "$ORIGIN")
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src/sdk>)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
endfunction()

function(ussd_add_plugin_code name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    ussd_set_up(${name})
    ussd_hide_symbols(${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src/USSDUIPlugin)
    target_link_libraries(${name} PUBLIC ${arg_LIBRARIES})
    ussd_use_precompiled_headers(${name} plugin)
endfunction()

function(ussd_add_plugin name)
    cmake_parse_arguments(arg "" "EXPORTS" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} MODULE ${arg_SOURCES})
    ussd_set_up(${name})
    ussd_hide_symbols(${name})
    # The version script also hides symbols from the headers of the C++ standard library, which
    # would otherwise be exported.
    target_link_options(${name} PRIVATE -Wl,--version-script=${arg_EXPORTS} -Wl,--gc-sections)
    set_target_properties(
        ${name}
        PROPERTIES AUTOMOC ON
                   LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${USSD_PLUGIN_DIR}
                   LINK_DEPENDS ${arg_EXPORTS}
                   INSTALL_RPATH "$ORIGIN/${USSD_LIB_FROM_PLUGIN}")
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    ussd_use_precompiled_headers(${name} plugin)
    install(TARGETS ${name} LIBRARY DESTINATION ${USSD_PLUGIN_DIR})
endfunction()

function(ussd_add_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    ussd_set_up(${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ON INSTALL_RPATH "$ORIGIN/${USSD_LIB_FROM_BIN}")
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()

function(ussd_set_up_example name)
    ussd_set_up(${name})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/examples)
endfunction()
