# ussd_add_benchmark(NAME SOURCES... LIBRARIES...): a program that prints rows of figures. It is
# built with everything else and run by benchmarks/run only.
function(ussd_add_benchmark name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    ussd_set_up(${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY
                                                        ${PROJECT_BINARY_DIR}/benchmarks)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/benchmarks)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
endfunction()
