# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

# Icon, manifest and version of a program of ours.
function(wavorin_describe program description)
    set(resources "${CMAKE_BINARY_DIR}/install/${program}.rc")
    configure_file("${PROJECT_SOURCE_DIR}/resources/windows/program.rc.in" "${resources}" @ONLY)
    target_sources(${program} PRIVATE "${resources}")
endfunction()
wavorin_describe(wavorin "Wavorin, ${PROJECT_DESCRIPTION}")
wavorin_describe(wavorin-convert "Wavorin, converter of disturbance recordings")

# cmake --install for Windows: one folder that runs where it stands, with the archiver beside the
# viewer. script/windows makes the packages of it.
install(TARGETS wavorin wavorin-convert RUNTIME DESTINATION .)
install(PROGRAMS "${WAVORIN_WINDOWS_TREE}/7z/7za.exe" DESTINATION . RENAME 7z.exe)
configure_file("${WAVORIN_WINDOWS_TREE}/7z/7za.exe" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/7z.exe" COPYONLY)

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION . RENAME LICENSE.txt)
# An archive may have been built from another list than this tree's, and an old one does not tell.
set(list "${WAVORIN_WINDOWS_TREE}/sources")
if(NOT EXISTS "${list}")
    set(list "${PROJECT_SOURCE_DIR}/tools/windows/sources")
endif()
file(READ "${list}" sources)
string(REGEX REPLACE "([^ \n]+) ([^ ]+) ([^\n]+)\n" "    \\1 \\2\n" sources "${sources}")
configure_file("${PROJECT_SOURCE_DIR}/resources/windows/README.txt.in" "${CMAKE_BINARY_DIR}/install/README.txt"
    NEWLINE_STYLE CRLF)
install(FILES "${CMAKE_BINARY_DIR}/install/README.txt" DESTINATION .)

# What is linked into the viewer or lies beside it, each with all notices that Debian has collected for it.
foreach(part libqt5core5a:Qt libfftw3-double3:FFTW 7zip:7-Zip mingw-w64-common:MinGW-w64 gcc-mingw-w64-base:GCC)
    string(REPLACE ":" ";" part ${part})
    list(GET part 0 package)
    list(GET part 1 name)
    install(FILES "/usr/share/doc/${package}/copyright" DESTINATION licences RENAME "${name}.txt")
endforeach()
foreach(text GPL-2 GPL-3 LGPL-2.1 LGPL-3)
    install(FILES "/usr/share/common-licenses/${text}" DESTINATION licences RENAME "${text}.txt")
endforeach()

foreach(document manual formats convert)
    install(FILES "${PROJECT_SOURCE_DIR}/docs/${document}.md" DESTINATION docs)
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/pictures" DESTINATION docs FILES_MATCHING PATTERN "*.png")
file(GLOB examples "${PROJECT_SOURCE_DIR}/examples/earth-fault.*")
install(FILES ${examples} DESTINATION examples)
