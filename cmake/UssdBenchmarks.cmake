# Functions that add benchmarks. A complete build also builds the benchmarks. They are run only by
# benchmarks/run.
#
#   ussd_add_benchmark(NAME SOURCES... LIBRARIES...)   a program that prints measurements
#   ussd_add_helper(NAME SOURCES... LIBRARIES...)      another program that the benchmarks use
#   ussd_list_benchmarks()                             writes the benchmark names for benchmarks/run
#
# The "benchmarks" target builds all benchmarks and helpers.
add_custom_target(benchmarks)

function(ussd_add_helper name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    ussd_set_up(${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY
                                                        ${PROJECT_BINARY_DIR}/benchmarks)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/benchmarks)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    add_dependencies(benchmarks ${name})
endfunction()

function(ussd_add_benchmark name)
    ussd_add_helper(${name} ${ARGN})
    set_property(GLOBAL APPEND PROPERTY USSD_BENCHMARKS ${name})
endfunction()

function(ussd_list_benchmarks)
    get_property(names GLOBAL PROPERTY USSD_BENCHMARKS)
    list(JOIN names "\n" lines)
    file(WRITE ${PROJECT_BINARY_DIR}/benchmarks/programs.txt "${lines}\n")
endfunction()
