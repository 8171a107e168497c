# Functions that add coverage-guided fuzzers. The fuzzers use libFuzzer of clang, and are built with
# the fuzz preset.
#
#   ussd_add_fuzzer(NAME RUNS NUMBER MAX_LENGTH BYTES SOURCES... LIBRARIES... [DICTIONARY FILE])
#
# Adds the program NAME, which can run for any length of time, and a test with the same name, which
# tries RUNS inputs with a fixed random seed. The folder corpus/NAME contains the initial inputs and
# all inputs that have caused a failure in the past.

set(USSD_FUZZ_SECONDS_FOR_ONE_INPUT 20)

function(ussd_add_fuzzer name)
    cmake_parse_arguments(arg "" "RUNS;MAX_LENGTH;DICTIONARY" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    ussd_set_up(${name})
    set_target_properties(${name} PROPERTIES CXX_STANDARD 17 RUNTIME_OUTPUT_DIRECTORY
                                                             ${PROJECT_BINARY_DIR}/tests/bin)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    set(options -max_len=${arg_MAX_LENGTH} -timeout=${USSD_FUZZ_SECONDS_FOR_ONE_INPUT})
    if(arg_DICTIONARY)
        list(APPEND options -dict=${CMAKE_CURRENT_SOURCE_DIR}/${arg_DICTIONARY})
    endif()
    ussd_add_to_labels(${name} fuzz)
    ussd_add_script_test(${name} COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/fixed_runs.sh
                         $<TARGET_FILE:${name}> ${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name}
                         ${arg_RUNS} ${options} LABELS fuzz)
    # The parameters that scripts/fuzz.sh passes to the fuzzer.
    file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/tests/fuzz/${name}.options
         CONTENT "$<JOIN:${options},\n>\n")
endfunction()
