# SPDX-License-Identifier: GPL-3.0-or-later
# Texts of people's languages: translations/NAME_LANGUAGE.ts, worked on with Qt Linguist.

# zn_add_translations(TARGET NAME): makes the catalogues of that name, and puts them into the target, where
# :/NAME/i18n/NAME_LANGUAGE.qm is one.
function(zn_add_translations target name)
    if(NOT ZN_TRANSLATIONS)
        return()
    endif()
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/${name}_*.ts)
    set(folder ${PROJECT_BINARY_DIR}/translations)
    set(catalogues)
    foreach(source IN LISTS sources)
        get_filename_component(stem ${source} NAME_WE)
        set(catalogue ${folder}/${stem}.qm)
        add_custom_command(OUTPUT ${catalogue}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
            COMMAND Qt6::lrelease -silent ${source} -qm ${catalogue}
            DEPENDS ${source}
            COMMENT "Making ${stem}.qm")
        list(APPEND catalogues ${catalogue})
    endforeach()
    qt_add_resources(${target} ${name}_translations PREFIX /${name}/i18n BASE ${folder} FILES ${catalogues})
endfunction()
