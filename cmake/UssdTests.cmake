# Functions that add tests. Each test runs without a display, with its own home directory, settings
# and user data folder, in a fixed language, and with a time limit.
#
#   ussd_add_test(NAME SOURCES... [LIBRARIES...] [LABELS...] [ENVIRONMENT...] [FAKE_SDK] [GLIB])
#   ussd_start_first(NAME...)      starts these long tests first, to shorten the total time
#
# With FAKE_SDK, the library path selects the fake device SDK from tests/fakes instead of the real
# device SDK. GLIB is required if a source file includes headers of GLib.

set(USSD_TEST_SECONDS 120)

set(USSD_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen"
    "TKSV_BACKEND=simulator" # prevents tests from using the developer's modem
    "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus"
    "QT_HASH_SEED=0"
    "LC_ALL=C.UTF-8"
    "LANGUAGE=en"
    "ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/sanitizers/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/sanitizers/tsan.supp:second_deadlock_stack=1")

# Sets the environment and the time limit of a test program or a test script.
function(ussd_set_up_test name)
    cmake_parse_arguments(arg "" "" "LABELS;ENVIRONMENT" ${ARGN})
    set(home ${PROJECT_BINARY_DIR}/tests/home/${name})
    file(MAKE_DIRECTORY ${home})
    file(CHMOD ${home} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE) # required for XDG_RUNTIME_DIR
    set_tests_properties(
        ${name}
        PROPERTIES TIMEOUT ${USSD_TEST_SECONDS}
                   LABELS "${arg_LABELS}"
                   WORKING_DIRECTORY ${home}
                   ENVIRONMENT
                   "${USSD_TEST_ENVIRONMENT};HOME=${home};XDG_DATA_HOME=${home}/data;XDG_CONFIG_HOME=${home}/config;XDG_CACHE_HOME=${home}/cache;XDG_RUNTIME_DIR=${home};${arg_ENVIRONMENT}"
    )
endfunction()

# Sets the properties that all test programs share. The test programs are linked with gold, which
# takes a third of the time that the compiler's default linker takes for the other programs.
function(ussd_set_up_test_program name)
    ussd_set_up(${name})
    set_target_properties(${name} PROPERTIES CXX_STANDARD 17 RUNTIME_OUTPUT_DIRECTORY
                                                             ${PROJECT_BINARY_DIR}/tests/bin)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_link_options(${name} PRIVATE -fuse-ld=gold)
    endif()
endfunction()

# Generates NAME_test.moc for each source file NAME_test.cpp. AUTOMOC would start another program
# and compile another file for each test, which takes longer than compiling the test.
function(ussd_run_moc name)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name}_moc)
    foreach(source IN LISTS ARGN)
        if(source MATCHES "([a-z_]+_test)\\.cpp$")
            set(output ${folder}/${CMAKE_MATCH_1}.moc)
            file(MAKE_DIRECTORY ${folder})
            qt_generate_moc(${source} ${output} TARGET ${name})
            target_sources(${name} PRIVATE ${output})
            target_include_directories(${name} PRIVATE ${folder})
        endif()
    endforeach()
endfunction()

# Sets ${result} to the precompiled headers that match the libraries of the test, or to nothing.
function(ussd_precompiled_headers_of_test result glib)
    if(glib)
        set(${result} glib_tests PARENT_SCOPE)
    elseif("ussd_testsupport" IN_LIST ARGN OR "ussd_plugintest" IN_LIST ARGN)
        set(${result} tests PARENT_SCOPE)
    elseif("ussd::qttest" IN_LIST ARGN)
        set(${result} plain_tests PARENT_SCOPE)
    else()
        set(${result} "" PARENT_SCOPE)
    endif()
endfunction()

# For each label, adds the test to the tests_LABEL target, which builds only the tests with this
# label.
function(ussd_add_to_labels name)
    foreach(label IN LISTS ARGN)
        if(NOT TARGET tests_${label})
            add_custom_target(tests_${label})
            add_dependencies(tests_${label} translations plugin_data scenarios)
        endif()
        add_dependencies(tests_${label} ${name})
    endforeach()
endfunction()

function(ussd_add_test name)
    cmake_parse_arguments(arg "FAKE_SDK;GLIB" "" "SOURCES;LIBRARIES;LABELS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    ussd_set_up_test_program(${name})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    ussd_run_moc(${name} ${arg_SOURCES})
    ussd_precompiled_headers_of_test(kind "${arg_GLIB}" ${arg_LIBRARIES})
    if(kind)
        ussd_use_precompiled_headers(${name} ${kind})
    endif()
    ussd_add_to_labels(${name} ${arg_LABELS})
    add_test(NAME ${name} COMMAND ${name})
    if(arg_FAKE_SDK)
        list(APPEND arg_ENVIRONMENT "LD_LIBRARY_PATH=$<TARGET_FILE_DIR:fake_tksv>")
        add_dependencies(${name} fake_tksv)
    endif()
    ussd_set_up_test(${name} LABELS ${arg_LABELS} ENVIRONMENT ${arg_ENVIRONMENT})
endfunction()

# CTest starts the tests in descending order of their running time in the previous run. In the first
# run, CTest uses the COST property instead of the running time.
function(ussd_start_first)
    set_tests_properties(${ARGN} PROPERTIES COST 10)
endfunction()

# ussd_add_script_test(NAME COMMAND... [LABELS...] [ENVIRONMENT...]): adds a test that runs a command.
function(ussd_add_script_test name)
    cmake_parse_arguments(arg "" "" "COMMAND;LABELS;ENVIRONMENT" ${ARGN})
    add_test(NAME ${name} COMMAND ${arg_COMMAND})
    ussd_set_up_test(${name} LABELS ${arg_LABELS} ENVIRONMENT ${arg_ENVIRONMENT})
endfunction()
