# ussd_add_translations(TARGET FILE.ts...): compiles each language file and puts the result where
# the core library looks for it.
function(ussd_add_translations target)
    set(compiled)
    foreach(source IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH source)
        cmake_path(GET source STEM name)
        set(qm ${PROJECT_BINARY_DIR}/${USSD_SHARE_DIR}/translations/${name}.qm)
        add_custom_command(
            OUTPUT ${qm}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/${USSD_SHARE_DIR}/translations
            COMMAND ${USSD_LRELEASE} -silent ${source} -qm ${qm}
            DEPENDS ${source}
            VERBATIM)
        list(APPEND compiled ${qm})
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${compiled})
    install(FILES ${compiled} DESTINATION ${USSD_SHARE_DIR}/translations)
endfunction()
