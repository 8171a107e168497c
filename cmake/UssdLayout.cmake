# The installation layout. The build tree has the same layout as the installation prefix, so that a
# path relative to a library is valid in both.
include(GNUInstallDirs)

set(USSD_PACKAGE ussd-dashboard)
set(USSD_LIB_DIR ${CMAKE_INSTALL_LIBDIR})
set(USSD_HOST_DIR ${CMAKE_INSTALL_LIBDIR}/${USSD_PACKAGE}) # returned by GetPluginLibraryPath()
set(USSD_PLUGIN_DIR ${USSD_HOST_DIR}/plugins/USSDUIPlugin)
set(USSD_SHARE_DIR ${CMAKE_INSTALL_DATAROOTDIR}/${USSD_PACKAGE})
file(RELATIVE_PATH USSD_SHARE_FROM_LIB /prefix/${USSD_LIB_DIR} /prefix/${USSD_SHARE_DIR})

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${USSD_LIB_DIR})
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/archives)

# The run path is relative, so that users can move the installation to another folder. The linker
# writes it as RUNPATH (not RPATH), so that LD_LIBRARY_PATH can select another device SDK library.
file(RELATIVE_PATH USSD_LIB_FROM_BIN /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${USSD_LIB_DIR})
file(RELATIVE_PATH USSD_LIB_FROM_PLUGIN /prefix/${USSD_PLUGIN_DIR} /prefix/${USSD_LIB_DIR})

# ussd_add_data(TARGET DESTINATION FILE...): installs the files to DESTINATION (relative to the
# prefix) and copies them to the same relative folder in the build tree.
function(ussd_add_data target destination)
    set(copies)
    foreach(file IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH file)
        cmake_path(GET file FILENAME name)
        set(copy ${PROJECT_BINARY_DIR}/${destination}/${name})
        add_custom_command(
            OUTPUT ${copy}
            COMMAND ${CMAKE_COMMAND} -E copy ${file} ${copy}
            DEPENDS ${file}
            VERBATIM)
        list(APPEND copies ${copy})
        install(FILES ${file} DESTINATION ${destination})
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${copies})
endfunction()
