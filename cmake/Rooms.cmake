# SPDX-License-Identifier: GPL-3.0-or-later
# A room is a static library of the .cpp files in its folder, main.cpp excepted; it links only the rooms that
# src/rooms.txt lets it see. The library of the folder view/forms is tally_view_forms.
set(TALLY_ROOMS_FILE ${CMAKE_SOURCE_DIR}/src/rooms.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${TALLY_ROOMS_FILE})

# The libraries of the rooms that a room may see.
function(tally_seen room result)
    file(STRINGS ${TALLY_ROOMS_FILE} rows REGEX "^${room} ")
    if(NOT rows)
        message(FATAL_ERROR "src/rooms.txt has no line for ${room}")
    endif()
    string(REGEX REPLACE " +" ";" row "${rows}")
    list(REMOVE_AT row 0 1)
    set(seen ${row})
    list(TRANSFORM seen REPLACE "/" "_")
    list(TRANSFORM seen PREPEND tally_)
    set(${result} ${seen} PARENT_SCOPE)
endfunction()

# The library of the current folder, linked with the rooms it may see; its name is left in `library`.
macro(tally_room_library)
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${CMAKE_SOURCE_DIR}/src OUTPUT_VARIABLE room)
    string(REPLACE "/" "_" library tally_${room})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(${library} STATIC ${sources})
    target_include_directories(${library} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    tally_seen(${room} seen)
    target_link_libraries(${library} PRIVATE tally_watched PUBLIC ${seen})
endmacro()

# tally_room([LIBRARY...]): a logic room, plain C++ on the standard library and what is named.
function(tally_room)
    tally_room_library()
    target_link_libraries(${library} PRIVATE tally_flags PUBLIC ${ARGN})
endfunction()

# tally_qt_room([PCH target] [LIBRARY...]): the same on Qt, with the precompiled header of a target, else the shared one.
function(tally_qt_room)
    cmake_parse_arguments(arg "" "PCH" "" ${ARGN})
    if(NOT arg_PCH)
        set(arg_PCH tally_qt_pch)
    endif()
    tally_room_library()
    set_target_properties(${library} PROPERTIES AUTOMOC ON)
    target_link_libraries(${library} PRIVATE tally_qt_flags PUBLIC Qt6::Widgets ${arg_UNPARSED_ARGUMENTS})
    target_precompile_headers(${library} REUSE_FROM ${arg_PCH})
endfunction()

# tally_tests([QT] [LINK target...] [FILTER tests]): one test program of the .cpp files in the current folder, named after it:
# tests/view/forms gives view_forms_tests. It links the room of the same folder, or what LINK names.
# FILTER: the tests to run here, as --gtest_filter takes them; the others have a runner of their own.
# Each test runs in its own process, offscreen, with a home of its own, and may take a minute.
function(tally_tests)
    cmake_parse_arguments(arg "QT" "FILTER" "LINK;ENVIRONMENT" ${ARGN})
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${CMAKE_SOURCE_DIR}/tests OUTPUT_VARIABLE room)
    string(REPLACE "/" "_" name ${room})
    if(NOT arg_LINK)
        set(arg_LINK tally_${name})
    endif()
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    if(NOT sources)
        return()
    endif()
    add_executable(${name}_tests ${sources})
    target_link_libraries(${name}_tests PRIVATE ${arg_LINK} tally_test_support GTest::gmock)
    if(arg_QT)
        set_target_properties(${name}_tests PROPERTIES AUTOMOC ON)
        target_link_libraries(${name}_tests PRIVATE tally_qt_flags tally_qt_test_main tally_qt_test Qt6::Widgets)
        target_precompile_headers(${name}_tests REUSE_FROM tally_qt_test_pch)
    else()
        target_link_libraries(${name}_tests PRIVATE tally_flags GTest::gtest_main)
        target_precompile_headers(${name}_tests REUSE_FROM tally_test_pch)
    endif()
    set(home ${CMAKE_BINARY_DIR}/home)
    gtest_discover_tests(${name}_tests
        DISCOVERY_MODE PRE_TEST
        DISCOVERY_TIMEOUT 60
        WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
        TEST_PREFIX ${name}.
        TEST_FILTER "${arg_FILTER}"
        PROPERTIES TIMEOUT 60
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;LC_ALL=C.UTF-8;UBSAN_OPTIONS=print_stacktrace=1;${arg_ENVIRONMENT}")
endfunction()
