# SPDX-License-Identifier: GPL-3.0-or-later
# A room is a static library of the .cpp files in its folder, main.cpp excepted; it links only the rooms that it may see.

# tally_room(NAME [LINK room...]): a logic room, plain C++ on the standard library.
function(tally_room name)
    cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(tally_${name} STATIC ${sources})
    target_include_directories(tally_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(tally_${name} PRIVATE tally_flags)
    foreach(room ${arg_LINK})
        target_link_libraries(tally_${name} PUBLIC tally_${room})
    endforeach()
endfunction()

# tally_qt_room(NAME [LINK room...] [QT library...]): the same on Qt, with the shared precompiled header.
function(tally_qt_room name)
    cmake_parse_arguments(arg "" "" "LINK;QT" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(tally_${name} STATIC ${sources})
    set_target_properties(tally_${name} PROPERTIES AUTOMOC ON)
    target_include_directories(tally_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(tally_${name} PRIVATE tally_qt_flags PUBLIC Qt6::Widgets ${arg_QT})
    target_precompile_headers(tally_${name} REUSE_FROM tally_qt_pch)
    foreach(room ${arg_LINK})
        target_link_libraries(tally_${name} PUBLIC tally_${room})
    endforeach()
endfunction()

# tally_tests(NAME [LINK target...]): one test program of the .cpp files in the current folder.
# Each test runs in its own process, offscreen, with a home of its own, and may take a minute.
function(tally_tests name)
    cmake_parse_arguments(arg "QT" "" "LINK;ENVIRONMENT" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    if(NOT sources)
        return()
    endif()
    add_executable(${name}_tests ${sources})
    target_link_libraries(${name}_tests PRIVATE ${arg_LINK} tally_test_support GTest::gmock)
    if(arg_QT)
        set_target_properties(${name}_tests PROPERTIES AUTOMOC ON)
        target_link_libraries(${name}_tests PRIVATE tally_qt_flags tally_qt_test_main Qt6::Widgets Qt6::Test)
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
        PROPERTIES TIMEOUT 60
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;LC_ALL=C.UTF-8;UBSAN_OPTIONS=print_stacktrace=1;${arg_ENVIRONMENT}")
endfunction()
