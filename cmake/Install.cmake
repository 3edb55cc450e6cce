# SPDX-License-Identifier: GPL-3.0-or-later
# What a host gets, as three components: Runtime (the libraries, and the folder with the engine's module
# and the settings beside them), Development (headers, find_package, pkg-config), Tools (the programs).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# What the library looks for: beside itself, or in this folder beside itself. It has the number of the libraries' names, so
# that those of two versions can be installed together.
set(ZN_FOLDER ZNCoreEditor-${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(ZN_INSTALLED_FOLDER ${CMAKE_INSTALL_LIBDIR}/${ZN_FOLDER})
# Where a host's #include <ZNCoreEditor/...> begins.
set(ZN_STAGED_HEADERS ${PROJECT_BINARY_DIR}/include)

# zn_stage_headers(TARGET): the public headers under ZN_STAGED_HEADERS, made with the target.
function(zn_stage_headers target)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/Version.h.in ${ZN_STAGED_HEADERS}/ZNCoreEditor/Version.h @ONLY)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.h ${PROJECT_SOURCE_DIR}/src/*.def)
    set(script ${PROJECT_SOURCE_DIR}/cmake/StageHeaders.cmake)
    set(stamp ${PROJECT_BINARY_DIR}/staged_headers)
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -D FROM=${PROJECT_SOURCE_DIR}/src
                -D TO=${ZN_STAGED_HEADERS}/ZNCoreEditor -P ${script}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${headers} ${script}
        COMMENT "Laying out the public headers")
    add_custom_target(public_headers DEPENDS ${stamp})
    add_dependencies(${target} public_headers)
endfunction()

# What a desktop and a shell know of the programs.
function(zn_install_desktop)
    set(from ${PROJECT_SOURCE_DIR}/packaging)
    install(FILES ${from}/znworkbench.desktop
            DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT Tools)
    install(FILES ${from}/znworkbench.svg
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT Tools)
    install(FILES ${from}/zncoreeditor-mime.xml RENAME zncoreeditor.xml
            DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT Tools)
    install(FILES ${from}/znworkbench.1 ${from}/znscript.1
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Tools)
    install(FILES ${from}/znscript.bash RENAME znscript
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT Tools)
endfunction()

function(zn_install)
    install(TARGETS ZNCoreEditor ZNPlatform EXPORT ZNCoreEditor
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development)
    set_target_properties(ZNCoreEditor ZNPlatform PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS ZNBaseEditor LIBRARY DESTINATION ${ZN_INSTALLED_FOLDER} COMPONENT Runtime)
    set_target_properties(ZNBaseEditor PROPERTIES INSTALL_RPATH "$ORIGIN/..")
    install(FILES ${PROJECT_SOURCE_DIR}/data/ZNCoreEditor.xml ${PROJECT_SOURCE_DIR}/data/Functions.txt
            DESTINATION ${ZN_INSTALLED_FOLDER} COMPONENT Runtime)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/Syntax ${PROJECT_SOURCE_DIR}/data/Schemes
            ${PROJECT_SOURCE_DIR}/data/Templates
            DESTINATION ${ZN_INSTALLED_FOLDER} COMPONENT Runtime
            FILES_MATCHING PATTERN "*.xml" PATTERN "*.txt")
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/docs/licences.md
            DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Runtime)

    # A build need not have made all of the programs.
    foreach(program IN ITEMS znworkbench znscript)
        if(TARGET ${program})
            set_target_properties(${program} PROPERTIES
                INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
            install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
                    COMPONENT Tools OPTIONAL)
        endif()
    endforeach()

    if(ZN_PROGRAMS)
        zn_install_desktop()
    endif()

    # As in the tree, so that one page leads to another.
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/guides DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT Development)
    set(pages framework messages keys versions licences benchmarks)
    list(TRANSFORM pages REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/docs/\\1.md")
    install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT Development)
    install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
            DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Development)
    install(DIRECTORY ${ZN_STAGED_HEADERS}/ZNCoreEditor
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development)
    set(package ${CMAKE_INSTALL_LIBDIR}/cmake/ZNCoreEditor)
    install(EXPORT ZNCoreEditor NAMESPACE ZNCoreEditor:: DESTINATION ${package}
            FILE ZNCoreEditorTargets.cmake COMPONENT Development)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZNCoreEditorConfig.cmake.in
        ${PROJECT_BINARY_DIR}/ZNCoreEditorConfig.cmake INSTALL_DESTINATION ${package})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZNCoreEditorConfigVersion.cmake
                                     COMPATIBILITY SameMinorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/ZNCoreEditorConfig.cmake
                  ${PROJECT_BINARY_DIR}/ZNCoreEditorConfigVersion.cmake
            DESTINATION ${package} COMPONENT Development)

    file(RELATIVE_PATH ZN_PREFIX_FROM_PKGCONFIG /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/zncoreeditor.pc.in
                   ${PROJECT_BINARY_DIR}/zncoreeditor.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/zncoreeditor.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endfunction()
