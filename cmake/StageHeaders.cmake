# SPDX-License-Identifier: GPL-3.0-or-later
# Lays the public headers out as a host includes them, as <ZNCoreEditor/...>.
#   cmake -D FROM=src -D TO=.../include/ZNCoreEditor -P StageHeaders.cmake
# Public is a header that exports something, and what it includes; a room's folder stays, and an
# include of another room is written with the library's folder in front.
cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE sources RELATIVE ${FROM} ${FROM}/*.h)
set(waiting)
foreach(header IN LISTS sources)
    file(STRINGS ${FROM}/${header} exports REGEX "ZN_API" LIMIT_COUNT 1)
    if(exports)
        list(APPEND waiting ${header})
    endif()
endforeach()

set(public)
while(waiting)
    list(POP_FRONT waiting header)
    if(header IN_LIST public)
        continue()
    endif()
    list(APPEND public ${header})
    file(STRINGS ${FROM}/${header} lines REGEX "^#include \"")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
        list(APPEND waiting ${included})
    endforeach()
endwhile()

foreach(header IN LISTS public)
    file(READ ${FROM}/${header} text)
    string(REGEX REPLACE "#include \"([^\"]+)\"" "#include \"ZNCoreEditor/\\1\"" text "${text}")
    set(before)
    if(EXISTS ${TO}/${header})
        file(READ ${TO}/${header} before)
    endif()
    if(NOT text STREQUAL before)
        file(WRITE ${TO}/${header} "${text}")
    endif()
endforeach()

# Where a host in plain Qt begins, without the name of a room.
set(face ${TO}/ZNCoreEditorWidget.h)
if(NOT EXISTS ${face})
    file(WRITE ${face} "#include \"ZNCoreEditor/editing/ZNCoreEditorWidget.h\" // IWYU pragma: export\n")
endif()

# What is public no longer. Version.h is made by the configuration.
file(GLOB_RECURSE staged RELATIVE ${TO} ${TO}/*.h ${TO}/*.def)
list(REMOVE_ITEM staged ${public} Version.h ZNCoreEditorWidget.h)
foreach(header IN LISTS staged)
    file(REMOVE ${TO}/${header})
endforeach()
