# SPDX-License-Identifier: GPL-3.0-or-later
# What every target is built with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

# Programs in bin/, libraries in lib/: the engine module is found beside the platform library.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_BUILD_RPATH "$ORIGIN;$ORIGIN/../lib")
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../lib")

# A designated initializer leaves the other members to their defaults on purpose.
if(ZN_WARNINGS_ARE_ERRORS)
    set(warnings_are_errors -Werror)
endif()
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow ${warnings_are_errors}
                    -Wno-missing-field-initializers)
add_compile_definitions(QT_NO_KEYWORDS)

if(ZN_SANITIZE)
    add_compile_options(-fsanitize=${ZN_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${ZN_SANITIZE})
    # vptr checks need the type information of libraries that are built without it.
    add_compile_options(-fno-sanitize=vptr)
    # GCC takes what the sanitizers add for reads of what nobody has set.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-Wno-maybe-uninitialized)
    endif()
endif()
if(ZN_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_program(ZN_CCACHE ccache)
if(ZN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Paths below the tree do not count, so that one clone finds what another has compiled.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}
        CCACHE_NOHASHDIR=1 ${ZN_CCACHE})
endif()
