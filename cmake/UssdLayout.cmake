# The installation layout, which follows the Filesystem Hierarchy Standard. The build tree has the
# same layout as the installation prefix, so that paths relative to a library are valid in both.
# There is one exception: the installation contains links to the configuration files, whereas the
# build tree contains copies.
include(GNUInstallDirs)

set(USSD_PACKAGE ussd-dashboard)
set(USSD_LIB_DIR ${CMAKE_INSTALL_LIBDIR})
set(USSD_HOST_DIR ${CMAKE_INSTALL_LIBDIR}/${USSD_PACKAGE}) # returned by GetPluginLibraryPath()
set(USSD_PLUGIN_DIR ${USSD_HOST_DIR}/plugins/USSDUIPlugin)
set(USSD_SHARE_DIR ${CMAKE_INSTALL_DATAROOTDIR}/${USSD_PACKAGE})
set(USSD_CONFIG_DIR ${CMAKE_INSTALL_SYSCONFDIR}/${USSD_PACKAGE})
file(RELATIVE_PATH USSD_SHARE_FROM_LIB /prefix/${USSD_LIB_DIR} /prefix/${USSD_SHARE_DIR})

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${USSD_LIB_DIR})
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/archives)

# The run path is relative, so that the installation can be moved. It is stored as RUNPATH (not
# RPATH), so that LD_LIBRARY_PATH can select another device SDK library.
file(RELATIVE_PATH USSD_LIB_FROM_BIN /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${USSD_LIB_DIR})
file(RELATIVE_PATH USSD_LIB_FROM_PLUGIN /prefix/${USSD_PLUGIN_DIR} /prefix/${USSD_LIB_DIR})

# ussd_copy_data(TARGET DESTINATION FILE...): copies the files to DESTINATION in the build tree. The
# files are not installed.
function(ussd_copy_data target destination)
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
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${copies})
endfunction()

# ussd_add_data(TARGET DESTINATION FILE...): installs the files to DESTINATION, a path relative to
# the prefix, and copies them to the same relative path in the build tree.
function(ussd_add_data target destination)
    ussd_copy_data(${target} ${destination} ${ARGN})
    install(FILES ${ARGN} DESTINATION ${destination})
endfunction()

# ussd_add_configuration(TARGET DESTINATION FILE...): installs the files to USSD_CONFIG_DIR, where
# an administrator can edit them, and creates links to them in DESTINATION. In the build tree,
# DESTINATION contains copies of the files.
function(ussd_add_configuration target destination)
    ussd_copy_data(${target} ${destination} ${ARGN})
    install(FILES ${ARGN} DESTINATION ${USSD_CONFIG_DIR})
    # A relative link remains valid if the prefix is moved.
    set(folder ${USSD_CONFIG_DIR})
    if(NOT IS_ABSOLUTE ${folder})
        file(RELATIVE_PATH folder /prefix/${destination} /prefix/${folder})
    endif()
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/links)
    foreach(file IN LISTS ARGN)
        cmake_path(GET file FILENAME name)
        file(CREATE_LINK ${folder}/${name} ${PROJECT_BINARY_DIR}/links/${name} SYMBOLIC)
        install(FILES ${PROJECT_BINARY_DIR}/links/${name} DESTINATION ${destination})
    endforeach()
endfunction()
