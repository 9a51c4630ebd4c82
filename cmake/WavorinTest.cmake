# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

add_library(wavorin_test_options INTERFACE)
target_include_directories(wavorin_test_options INTERFACE "${PROJECT_SOURCE_DIR}/tests/support")
# Tests are compiled far more often than their own code takes time.
set(optimisation -O0)
if(WAVORIN_SANITIZE)
    set(optimisation -O1) # sanitizers make tests slow enough
endif()
target_compile_options(wavorin_test_options INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:${optimisation}>)
if(WAVORIN_HAS_GOLD AND NOT WAVORIN_SANITIZE)
    target_link_options(wavorin_test_options INTERFACE -fuse-ld=gold)
endif()
if(WAVORIN_QUICK_BUILD)
    wavorin_precompiled(wavorin_test_headers
        HEADERS <QtTest> LIBRARIES wavorin_test_options Qt5::Test)
    wavorin_precompiled(wavorin_widget_test_headers
        HEADERS <QtTest> ${wavorin_common_widgets} LIBRARIES wavorin_test_options Qt5::Test Qt5::Widgets)
endif()

# What the names of the toolkit's variables begin with. Wine hands them on under names of its own, and without
# a display the toolkit finds no fonts on Windows but those of a folder that is named to it. The archiver lies
# where the search path leads, not beside the tests: there Windows finds it first, whatever a test puts in its place.
set(wavorin_toolkit QT_)
set(wavorin_test_programs "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
if(WIN32)
    set(wavorin_test_programs "${CMAKE_BINARY_DIR}/test-bin")
    set(wavorin_toolkit WINEQT_)
    set(wavorin_test_fonts "${CMAKE_BINARY_DIR}/fonts")
    file(GLOB fonts /usr/share/fonts/truetype/dejavu/DejaVuSans*.ttf
        /usr/share/fonts/truetype/liberation/LiberationSans-*.ttf)
    file(COPY ${fonts} DESTINATION "${wavorin_test_fonts}")
endif()

# Compiles an executable of the tests, with the libraries it links, as fast as may be.
function(wavorin_test_executable name)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF
        RUNTIME_OUTPUT_DIRECTORY "${wavorin_test_programs}")
    target_link_libraries(${name} PRIVATE wavorin_options wavorin_test_options Qt5::Test ${ARGN})
    set(windowed FALSE)
    if(ARGN MATCHES "plot|label|dialogs|app|hosts")
        set(windowed TRUE)
    endif()
    if(WIN32 AND windowed)
        qt5_import_plugins(${name} INCLUDE Qt5::QOffscreenIntegrationPlugin)
        target_link_libraries(${name} PRIVATE wavorin_plugins wavorin_test_plugins)
    endif()
    if(WAVORIN_QUICK_BUILD)
        if(windowed)
            target_precompile_headers(${name} REUSE_FROM wavorin_widget_test_headers)
        else()
            target_precompile_headers(${name} REUSE_FROM wavorin_test_headers)
        endif()
    endif()
endfunction()

# A QtTest executable of one unit: wavorin_test(tst_<unit> LIBRARIES ... [PATHS] [UNIX] [COST seconds])
# Its source is tst_<unit>.cpp in the current folder. It includes tst_<unit>.moc, for which moc reads no
# headers but those of our interfaces; what is shared with other tests and needs moc is in the libraries of
# tests/support. PATHS defines SOURCE_DIR and TEST_OUTPUT_DIR, the project's folder and the one for what a
# test leaves to look at.
# UNIX leaves a test out on Windows, for what only other systems have; docs/windows.md says what.
# Tests that take some seconds name them as their COST: the longest begin first. They have the label "slow".
# It runs without a display, in UTC and in the C locale, with settings and data folders of its own.
function(wavorin_test name)
    cmake_parse_arguments(arg "PATHS;UNIX" "COST" "LIBRARIES" ${ARGN})
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "wavorin_test does not know '${arg_UNPARSED_ARGUMENTS}'")
    endif()
    if(arg_UNIX AND WIN32)
        return()
    endif()
    set(label slow)
    if(NOT arg_COST)
        set(arg_COST 0)
        set(label quick)
    endif()
    set(source "${CMAKE_CURRENT_SOURCE_DIR}/${name}.cpp")
    set(interfaces ${PROJECT_SOURCE_DIR}/plot ${PROJECT_SOURCE_DIR}/dialogs ${PROJECT_SOURCE_DIR}/dialogs/label)
    list(TRANSFORM interfaces PREPEND -I)
    set(moc "${CMAKE_CURRENT_BINARY_DIR}/${name}.moc")
    add_custom_command(OUTPUT "${moc}"
        COMMAND Qt5::moc -DQ_OS_$<IF:$<BOOL:${WIN32}>,WIN,UNIX> ${interfaces} "${source}" -o "${moc}"
        DEPENDS "${source}" VERBATIM)
    add_executable(${name} "${source}" "${moc}")
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    wavorin_test_executable(${name} ${arg_LIBRARIES})
    if(arg_PATHS)
        target_compile_definitions(${name} PRIVATE
            TEST_OUTPUT_DIR="${CMAKE_BINARY_DIR}/test-output"
            SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    file(MAKE_DIRECTORY "${home}" "${CMAKE_BINARY_DIR}/test-output")
    set(platform "${wavorin_toolkit}QPA_PLATFORM=offscreen")
    if(WIN32)
        string(APPEND platform ";${wavorin_toolkit}ASSUME_STDERR_HAS_CONSOLE=1" # or nothing is said
            ";${wavorin_toolkit}QPA_FONTDIR=${wavorin_test_fonts}"
            ";WINEPATH=Z:${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        COST ${arg_COST}
        LABELS ${label}
        ENVIRONMENT "${platform};TZ=UTC;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0;TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/tsan.supp")
endfunction()
