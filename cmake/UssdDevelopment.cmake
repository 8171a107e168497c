# Functions that install the files required for building against a library: headers, a pkg-config
# file and a CMake package. All paths in these files are relative, so that the installation can be
# moved.
#
#   ussd_add_development_files(TARGET PACKAGE NAME PKG_CONFIG NAME DESCRIPTION TEXT FOLDER NAME
#                              HEADERS FILE... [REQUIRES PKG-CONFIG-NAME...] [VARIABLE NAME=VALUE])
#
# PACKAGE is the package name for find_package(). The package defines the target PACKAGE::TARGET.
# The template of the package is in cmake/packages. FOLDER is the folder of the headers. VARIABLE
# adds a variable to the pkg-config file.
include(CMakePackageConfigHelpers)

set(USSD_PKG_CONFIG_DIR ${USSD_LIB_DIR}/pkgconfig)
file(RELATIVE_PATH USSD_PREFIX_FROM_PKG_CONFIG /prefix/${USSD_PKG_CONFIG_DIR} /prefix)

# The Qt modules that the public headers of the core library use.
if(USSD_QT_VERSION EQUAL 4)
    set(USSD_QT_TARGETS Qt4::QtGui)
    set(USSD_QT_MODULES QtGui)
elseif(USSD_QT_VERSION EQUAL 5)
    set(USSD_QT_TARGETS Qt5::Widgets)
    set(USSD_QT_MODULES Qt5Widgets)
else()
    set(USSD_QT_TARGETS Qt6::Widgets Qt6::Core5Compat)
    set(USSD_QT_MODULES Qt6Widgets Qt6Core5Compat)
endif()

function(ussd_add_development_files target)
    cmake_parse_arguments(arg "" "PACKAGE;PKG_CONFIG;DESCRIPTION;FOLDER;VARIABLE" "HEADERS;REQUIRES" ${ARGN})
    set(folder ${CMAKE_INSTALL_INCLUDEDIR}/${arg_FOLDER})
    set(package_dir ${USSD_LIB_DIR}/cmake/${arg_PACKAGE})
    set(generated ${PROJECT_BINARY_DIR}/packages)

    install(FILES ${arg_HEADERS} DESTINATION ${folder})
    install(
        EXPORT ${arg_PACKAGE}
        NAMESPACE ${arg_PACKAGE}::
        DESTINATION ${package_dir}
        FILE ${arg_PACKAGE}Targets.cmake)
    configure_package_config_file(
        ${PROJECT_SOURCE_DIR}/cmake/packages/${arg_PACKAGE}Config.cmake.in
        ${generated}/${arg_PACKAGE}Config.cmake
        INSTALL_DESTINATION ${package_dir}
        PATH_VARS USSD_HOST_DIR
        NO_CHECK_REQUIRED_COMPONENTS_MACRO)
    write_basic_package_version_file(${generated}/${arg_PACKAGE}ConfigVersion.cmake
                                     COMPATIBILITY SameMinorVersion)
    install(FILES ${generated}/${arg_PACKAGE}Config.cmake ${generated}/${arg_PACKAGE}ConfigVersion.cmake
            DESTINATION ${package_dir})

    list(JOIN arg_REQUIRES " " requires)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/packages/library.pc.in ${generated}/${arg_PKG_CONFIG}.pc @ONLY)
    install(FILES ${generated}/${arg_PKG_CONFIG}.pc DESTINATION ${USSD_PKG_CONFIG_DIR})
endfunction()
