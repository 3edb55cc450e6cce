# SPDX-License-Identifier: GPL-3.0-or-later
# Lays the public headers out as a host includes them, as <ZNCoreEditor/...>.
#   cmake -D FROM=src -D TO=.../include/ZNCoreEditor -P StageHeaders.cmake
# Public is a header that exports something, one of numbers and records that is named here, and what
# these include; a room's folder stays, and an include is written with the library's folder in front.
cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE sources RELATIVE ${FROM} ${FROM}/*.h)
# Numbers and records alone, which a host works with.
set(waiting control/Analysis.h control/Completion.h control/EngineLooks.h control/EngineModes.h
    control/ExpressionCheck.h control/LongLine.h control/Recording.h control/Selections.h control/SqlStyles.h
    docview/ViewCommandNumbers.h platform/base/Units.h platform/docview/CommandIds.h platform/docview/CreateContext.h)
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

# write_header(NAME TEXT): leaves one that is as it should be, so that nobody is compiled anew.
function(write_header name text)
    set(before)
    if(EXISTS ${TO}/${name})
        file(READ ${TO}/${name} before)
    endif()
    if(NOT text STREQUAL before)
        file(WRITE ${TO}/${name} "${text}")
    endif()
endfunction()

foreach(header IN LISTS public)
    file(READ ${FROM}/${header} text)
    string(REGEX REPLACE "#include \"([^\"]+)\"" "#include \"ZNCoreEditor/\\1\"" text "${text}")
    write_header(${header} "${text}")
endforeach()

# Where a host begins, without the name of a room: the face for plain Qt, and the control behind it
# with the names of its modes.
set(ZNCoreEditorWidget editing/ZNCoreEditorWidget)
set(ZNCoreEditorWidget_is "The editor for hosts in plain Qt.")
set(Control control/EngineModes editing/ZNCoreEditorControlEx)
set(Control_is "The control behind it, with the names of its modes.")
foreach(name IN ITEMS ZNCoreEditorWidget Control)
    set(text "// SPDX-License-Identifier: GPL-3.0-or-later\n/// \\file\n/// ${${name}_is}\n#pragma once\n")
    string(APPEND text "#if __cplusplus < 202002L\n#error \"ZNCoreEditor needs C++20: -std=c++20\"\n#endif\n")
    foreach(header IN LISTS ${name})
        string(APPEND text "#include \"ZNCoreEditor/${header}.h\" // IWYU pragma: export\n")
    endforeach()
    write_header(${name}.h "${text}")
endforeach()

# What is public no longer. Version.h is made by the configuration.
file(GLOB_RECURSE staged RELATIVE ${TO} ${TO}/*.h ${TO}/*.def)
list(REMOVE_ITEM staged ${public} Version.h ZNCoreEditorWidget.h Control.h)
foreach(header IN LISTS staged)
    file(REMOVE ${TO}/${header})
endforeach()
