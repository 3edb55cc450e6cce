# SPDX-License-Identifier: GPL-3.0-or-later
# Finds QScintilla for Qt 6, which ships neither a CMake configuration nor a pkg-config file.
# Gives the target QScintilla::QScintilla.
find_path(QScintilla_INCLUDE_DIR Qsci/qsciscintillabase.h
          PATH_SUFFIXES qt6 x86_64-linux-gnu/qt6 ${CMAKE_LIBRARY_ARCHITECTURE}/qt6)
find_library(QScintilla_LIBRARY NAMES qscintilla2_qt6)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(QScintilla
                                  REQUIRED_VARS QScintilla_LIBRARY QScintilla_INCLUDE_DIR)

if(QScintilla_FOUND AND NOT TARGET QScintilla::QScintilla)
    add_library(QScintilla::QScintilla UNKNOWN IMPORTED)
    set_target_properties(QScintilla::QScintilla PROPERTIES
        IMPORTED_LOCATION "${QScintilla_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${QScintilla_INCLUDE_DIR}")
    target_link_libraries(QScintilla::QScintilla INTERFACE Qt6::Widgets Qt6::PrintSupport)
endif()
