# SPDX-License-Identifier: GPL-3.0-or-later
# zn_room(NAME SOURCES... [LINKS...]): one folder of src/ as a static library. A room may include
# what it links and nothing else, so the links are the architecture.
function(zn_room name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(zn_${name} STATIC ${ARG_SOURCES})
    target_include_directories(zn_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(zn_${name} PUBLIC ${ARG_LINKS})
endfunction()

# zn_test(NAME SOURCES... [LINKS...]): a GoogleTest program, run in a random order. It runs without
# a display unless XVFB is given; then it gets a virtual one.
function(zn_test name)
    cmake_parse_arguments(ARG "XVFB" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} source_tree GTest::gmock GTest::gtest)
    set(command $<TARGET_FILE:${name}> --gtest_shuffle --gtest_brief=1)
    if(ARG_XVFB)
        set(command xvfb-run -a -s "-screen 0 1280x1024x24" ${command})
        set(platform xcb)
    else()
        set(platform offscreen)
    endif()
    add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/in-test-home ${command})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
        "QT_QPA_PLATFORM=${platform};UBSAN_OPTIONS=print_stacktrace=1;ASAN_OPTIONS=detect_leaks=1;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")
    if(ARG_TIMEOUT)
        set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
    else()
        set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    endif()
endfunction()
