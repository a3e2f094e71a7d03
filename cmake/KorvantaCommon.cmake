# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT

# One interface target carries what every target of ours is built with, so that warnings, sanitizers
# and Qt's strictness are said once.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(KORVANTA_CCACHE ccache)
if(KORVANTA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${KORVANTA_CCACHE}")
endif()

add_library(zol_common INTERFACE)
target_compile_options(zol_common INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlaps inside std::string's operator+ that are not there (GCC bug 105651).
    target_compile_options(zol_common INTERFACE -Wno-restrict)
endif()
target_compile_definitions(zol_common INTERFACE
    # GLib's headers use "signals" as a name, so Qt's keywords are off everywhere.
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
    QT_USE_QSTRINGBUILDER
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(zol_common INTERFACE
    "${PROJECT_SOURCE_DIR}/src")

if(KORVANTA_SANITIZE)
    target_compile_options(zol_common INTERFACE
        -fsanitize=${KORVANTA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zol_common INTERFACE -fsanitize=${KORVANTA_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The instrumented code sets off GCC's flow warnings where there is nothing; the release
        # build holds them.
        target_compile_options(zol_common INTERFACE
            -Wno-stringop-overflow -Wno-array-bounds -Wno-maybe-uninitialized)
    endif()
endif()

# zol_library(NAME SOURCES ... LINKS ...): a static library of one floor of a subsystem. What it
# links is the whole of what it may include; the layer check holds the includes against it.
function(zol_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    add_library(korvanta::${name} ALIAS ${name})
    target_link_libraries(${name} PUBLIC zol_common ${ARG_LINKS})
endfunction()

# zol_add_test(NAME SOURCES ... LINKS ...): one GoogleTest program a subsystem. Every test
# case is a ctest entry of its own, found at test time; tests run without a display. LINKS names what
# is tested and where main comes from (GTest::gmock_main, or zol_gui_test_main for a
# QGuiApplication).
function(zol_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE zol_common ${ARG_LINKS} GTest::gmock)
    target_include_directories(${name} PRIVATE
        "${PROJECT_SOURCE_DIR}/tests" "${PROJECT_BINARY_DIR}/generated")
    include(GoogleTest)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 120)
endfunction()

# A display server without a display; where there is one, windows are tested on it as well. Once is
# enough: what sanitizers find they find without it.
find_program(KORVANTA_XVFB_RUN xvfb-run)

# zol_add_window_test(NAME [ON_X11] SOURCES ... LINKS ...): one Qt Test program of windows, driven by
# mouse and keys without a display. Its cases run in one process, as starting one costs more than a
# case. ON_X11 is for those of the whole program: a widget by itself is no active window where no
# window manager makes it one, and there its pixels lie with the display server.
function(zol_add_window_test name)
    cmake_parse_arguments(ARG "ON_X11" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE zol_common ${ARG_LINKS} Qt6::Test)
    target_include_directories(${name} PRIVATE
        "${PROJECT_SOURCE_DIR}/tests" "${PROJECT_BINARY_DIR}/generated")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 240)
    if(ARG_ON_X11 AND KORVANTA_XVFB_RUN AND NOT KORVANTA_SANITIZE)
        add_test(NAME ${name}_on_x11 COMMAND "${KORVANTA_XVFB_RUN}" -a
            -s "-screen 0 1600x1200x24" $<TARGET_FILE:${name}>)
        # One display server at a time: they choose their numbers by looking for a free one.
        set_tests_properties(${name}_on_x11 PROPERTIES
            ENVIRONMENT "QT_QPA_PLATFORM=xcb;LC_ALL=C.UTF-8" TIMEOUT 240 RESOURCE_LOCK xvfb)
    endif()
endfunction()
