# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

# Builds for 64-bit Windows on Linux. The libraries come from script/windows deps, the tools that run during
# the build from this system.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

get_filename_component(WAVORIN_WINDOWS_TREE "${CMAKE_CURRENT_LIST_DIR}/../.cache/windows/deps" ABSOLUTE)
set(CMAKE_PREFIX_PATH "${WAVORIN_WINDOWS_TREE}/qt5" "${WAVORIN_WINDOWS_TREE}/fftw3")
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# lrelease and lupdate read and write the same files on every system.
file(GLOB linguist "/usr/lib/*-linux-gnu/cmake/Qt5LinguistTools")
set(Qt5LinguistTools_DIR "${linguist}" CACHE PATH "Package of the tools for translations")

# One file that needs nothing but Windows, without symbols: they take thirty times its room with the tests.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s")
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tests/windows/run")
