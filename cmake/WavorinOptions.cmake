# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

include(CheckLinkerFlag)

# What every target of this project is compiled with; all of them link wavorin_options.
add_library(wavorin_options INTERFACE)
target_compile_features(wavorin_options INTERFACE cxx_std_17)
target_compile_definitions(wavorin_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_FOREACH
    QT_NO_URL_CAST_FROM_STRING)
target_compile_options(wavorin_options INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual>
    # The toolkit's own macros take no further arguments, as the next standard allows.
    $<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wno-gnu-zero-variadic-macro-arguments -Wreserved-identifier>)
if(WAVORIN_WERROR)
    target_compile_options(wavorin_options INTERFACE
        $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Werror>)
endif()
if(WAVORIN_SANITIZE)
    set(sanitizers -fsanitize=${WAVORIN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(wavorin_options INTERFACE ${sanitizers})
    target_link_options(wavorin_options INTERFACE ${sanitizers})
endif()
if(WAVORIN_FUZZ)
    # What the toolkit is handed is not instrumented, so the check of vtables and function types has no say there.
    # Callbacks for every comparison would come mostly from the sanitizers' own checks, and halve the speed.
    set(sanitizers -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow
        -fno-sanitize-coverage=trace-cmp
        -fno-sanitize=vptr,function -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(wavorin_options INTERFACE ${sanitizers})
    target_link_options(wavorin_options INTERFACE ${sanitizers})
endif()
set(CMAKE_CXX_EXTENSIONS OFF)

# Headers that many sources include, compiled once for those that reuse them:
# wavorin_precompiled(<name> HEADERS ... LIBRARIES ...)
# Not where WAVORIN_QUICK_BUILD is off: there every source must name what it includes.
function(wavorin_precompiled name)
    cmake_parse_arguments(arg "" "" "HEADERS;LIBRARIES" ${ARGN})
    file(GENERATE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp" CONTENT "")
    add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    target_link_libraries(${name} PRIVATE wavorin_options ${arg_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()
check_linker_flag(CXX -fuse-ld=gold WAVORIN_HAS_GOLD)
if(WAVORIN_QUICK_BUILD)
    if(WAVORIN_HAS_GOLD AND NOT WAVORIN_SANITIZE)
        target_link_options(wavorin_options INTERFACE -fuse-ld=gold)
    endif()
    # What many sources include, not whole modules of the toolkit: every source pays for each template that
    # a precompiled header uses.
    set(wavorin_common <QDateTime> <QDir> <QFile> <QStringList> <QVector> <algorithm> <cmath> <memory>)
    set(wavorin_common_widgets ${wavorin_common} <QApplication> <QColorDialog> <QComboBox> <QFileDialog>
        <QLabel> <QLineEdit> <QMainWindow> <QPainter> <QScrollBar>)
    wavorin_precompiled(wavorin_core_headers HEADERS ${wavorin_common} LIBRARIES Qt5::Core)
    wavorin_precompiled(wavorin_widget_headers HEADERS ${wavorin_common_widgets} LIBRARIES Qt5::Widgets)
endif()

# Of a static toolkit every target would compile a source for each plugin. These are compiled once, for
# programs with windows to link; tests take the platform without a display besides.
if(WIN32)
    function(wavorin_plugins name)
        add_library(${name} OBJECT)
        foreach(plugin ${ARGN})
            get_target_property(source ${plugin} INTERFACE_SOURCES)
            target_sources(${name} PRIVATE "${source}")
        endforeach()
        target_link_libraries(${name} PRIVATE Qt5::Core)
        set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    endfunction()
    wavorin_plugins(wavorin_plugins
        Qt5::QWindowsIntegrationPlugin Qt5::QWindowsVistaStylePlugin Qt5::QGifPlugin Qt5::QICOPlugin)
    wavorin_plugins(wavorin_test_plugins Qt5::QOffscreenIntegrationPlugin)
    set_property(TARGET ${Qt5Gui_PLUGINS} ${Qt5Widgets_PLUGINS} PROPERTY INTERFACE_SOURCES)
endif()

# A library of one folder: wavorin_library(<name> SOURCES ... [PUBLIC ...] [PRIVATE ...])
# Only its own folder is exported as include directory, so that an include that points to a higher
# layer does not compile.
function(wavorin_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE wavorin_options ${arg_PRIVATE})
    if(WAVORIN_COVERAGE AND name MATCHES "recording|plot")
        target_compile_options(${name} PRIVATE --coverage -O0)
        target_link_options(${name} PUBLIC --coverage)
    elseif(WAVORIN_QUICK_BUILD AND "Qt5::Widgets" IN_LIST arg_PUBLIC)
        target_precompile_headers(${name} REUSE_FROM wavorin_widget_headers)
    elseif(WAVORIN_QUICK_BUILD AND "Qt5::Core" IN_LIST arg_PUBLIC)
        target_precompile_headers(${name} REUSE_FROM wavorin_core_headers)
    endif()
endfunction()
