# SPDX-License-Identifier: GPL-3.0-or-later
# What a host developer gets: the libraries with the settings that have to stand beside them, the
# headers, and the package that find_package(ZNCoreEditor) reads.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# One folder for all that the library looks for beside itself.
set(ZN_INSTALLED_LIBRARIES ${CMAKE_INSTALL_LIBDIR}/ZNCoreEditor)
set(ZN_INSTALLED_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/ZNCoreEditor)

function(zn_install)
    install(TARGETS ZNCoreEditor ZNPlatform EXPORT ZNCoreEditor
            LIBRARY DESTINATION ${ZN_INSTALLED_LIBRARIES})
    install(TARGETS ZNBaseEditor LIBRARY DESTINATION ${ZN_INSTALLED_LIBRARIES})
    install(TARGETS znworkbench znscript RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    set_target_properties(znworkbench znscript PROPERTIES
        INSTALL_RPATH "$ORIGIN/../${ZN_INSTALLED_LIBRARIES}")
    install(FILES ${CMAKE_SOURCE_DIR}/data/ZNCoreEditor.xml DESTINATION ${ZN_INSTALLED_LIBRARIES})
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/Syntax ${CMAKE_SOURCE_DIR}/data/Schemes
            DESTINATION ${ZN_INSTALLED_LIBRARIES}
            FILES_MATCHING PATTERN "*.xml")
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/src/ DESTINATION ${ZN_INSTALLED_HEADERS}
            FILES_MATCHING PATTERN "*.h" PATTERN "*.def")

    set(package ${ZN_INSTALLED_LIBRARIES}/cmake)
    install(EXPORT ZNCoreEditor NAMESPACE ZNCoreEditor:: DESTINATION ${package}
            FILE ZNCoreEditorTargets.cmake)
    file(WRITE ${CMAKE_BINARY_DIR}/ZNCoreEditorConfig.cmake
         "include(CMakeFindDependencyMacro)\n"
         "find_dependency(Qt6 6.4 COMPONENTS Core Gui Widgets)\n"
         "include(\${CMAKE_CURRENT_LIST_DIR}/ZNCoreEditorTargets.cmake)\n")
    write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZNCoreEditorConfigVersion.cmake
                                     COMPATIBILITY SameMinorVersion)
    install(FILES ${CMAKE_BINARY_DIR}/ZNCoreEditorConfig.cmake
                  ${CMAKE_BINARY_DIR}/ZNCoreEditorConfigVersion.cmake
            DESTINATION ${package})
endfunction()
