# ussd_add_translations(TARGET FILE.ts...): compiles each language file, appends its checksum and
# installs the result. The build tree contains the result under the same relative path. The core
# library treats language files without a checksum as damaged.
set(USSD_SEAL_TRANSLATION ${CMAKE_CURRENT_LIST_DIR}/seal_translation.sh)

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
            COMMAND sh ${USSD_SEAL_TRANSLATION} ${qm}
            DEPENDS ${source} ${USSD_SEAL_TRANSLATION}
            VERBATIM)
        list(APPEND compiled ${qm})
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${compiled})
    install(FILES ${compiled} DESTINATION ${USSD_SHARE_DIR}/translations)
endfunction()
