# SPDX-License-Identifier: GPL-3.0-or-later
# Warnings, sanitizers, compiler cache and the strict Qt defines, each as one interface target.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Paths are taken relative to the source tree: a second clone then finds what the first one compiled.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 CCACHE_INODECACHE=1 ${CCACHE_PROGRAM})
endif()

# lld links the test programs in a fraction of the default linker's time.
find_program(LLD_PROGRAM ld.lld)
if(LLD_PROGRAM)
    add_link_options(-fuse-ld=lld)
endif()

add_library(tally_flags INTERFACE)
# Warnings are errors where the code is checked. With its optimiser on, gcc 12 warns of sound uses of std::string and
# std::optional, and a user's build must not end there.
target_compile_options(tally_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<CONFIG:Debug>:-Werror>)
# ccache needs this to share precompiled headers.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(tally_flags INTERFACE -fpch-preprocess)
endif()
# Line tables are enough for a back trace and halve the size of what is linked.
string(REPLACE "-g" "-g1" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")

# The sanitizers watch the rooms; what only tests them is compiled as it is, half of the work of a checked build.
add_library(tally_watched INTERFACE)
if(TALLY_SANITIZE)
    target_compile_options(tally_watched INTERFACE
        -fsanitize=${TALLY_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(tally_flags INTERFACE -fsanitize=${TALLY_SANITIZE})
endif()

add_library(tally_qt_flags INTERFACE)
target_link_libraries(tally_qt_flags INTERFACE tally_flags)
target_compile_definitions(tally_qt_flags INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
