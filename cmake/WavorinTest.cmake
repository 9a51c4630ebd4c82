# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

# The headers that nearly all tests include, compiled once for tests with widgets and once for those
# without. Not where WAVORIN_QUICK_TESTS is off: there every source must name what it includes.
function(wavorin_precompiled name)
    file(GENERATE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp" CONTENT "")
    add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    target_link_libraries(${name} PRIVATE wavorin_options wavorin_test_options Qt5::Test ${ARGN})
    list(TRANSFORM ARGN REPLACE "Qt5::(.*)" "<Qt\\1>" OUTPUT_VARIABLE headers)
    target_precompile_headers(${name} PRIVATE <QtTest> ${headers})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

add_library(wavorin_test_options INTERFACE)
if(WAVORIN_QUICK_TESTS)
    target_compile_options(wavorin_test_options INTERFACE
        $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-O1 -g1>)
    wavorin_precompiled(wavorin_test_headers)
    wavorin_precompiled(wavorin_widget_test_headers Qt5::Widgets)
endif()

# A QtTest executable of one unit: wavorin_test(tst_<unit> LIBRARIES ... [SOURCES ...] [PATHS])
# Its source is tst_<unit>.cpp in the current folder; further sources may be added. PATHS defines
# SOURCE_DIR and TEST_OUTPUT_DIR, the project's folder and the one for what a test leaves to look at.
# It runs without a display, in UTC and in the C locale, with settings and data folders of its own.
function(wavorin_test name)
    cmake_parse_arguments(arg "PATHS" "TIMEOUT" "LIBRARIES;SOURCES" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support")
    target_link_libraries(${name} PRIVATE
        wavorin_options wavorin_test_options Qt5::Test ${arg_LIBRARIES})
    if(arg_PATHS)
        target_compile_definitions(${name} PRIVATE
            TEST_OUTPUT_DIR="${CMAKE_BINARY_DIR}/test-output"
            SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    endif()
    if(WAVORIN_QUICK_TESTS)
        if(arg_LIBRARIES MATCHES "plot|label|dialogs|app")
            target_precompile_headers(${name} REUSE_FROM wavorin_widget_test_headers)
        else()
            target_precompile_headers(${name} REUSE_FROM wavorin_test_headers)
        endif()
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    file(MAKE_DIRECTORY "${home}" "${CMAKE_BINARY_DIR}/test-output")
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")
endfunction()
