# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

# cmake --install: what belongs to an installed viewer, below any prefix. The executable and the
# launcher of the archiver lie in one private folder, since the viewer looks for it beside itself;
# the command is a link.
include(GNUInstallDirs)

set(private "${CMAKE_INSTALL_LIBEXECDIR}/wavorin")
install(TARGETS wavorin archiver RUNTIME DESTINATION "${private}")
file(RELATIVE_PATH executable
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBEXECDIR}/wavorin/wavorin")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/install")
file(CREATE_LINK "${executable}" "${CMAKE_BINARY_DIR}/install/wavorin" SYMBOLIC)
install(FILES "${CMAKE_BINARY_DIR}/install/wavorin" DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS wavorin-convert RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

set(linux "${PROJECT_SOURCE_DIR}/resources/linux")
install(FILES "${linux}/wavorin.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${linux}/wavorin.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${linux}/wavorin-mime.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages" RENAME wavorin.xml)
install(FILES "${linux}/wavorin.1" "${linux}/wavorin-convert.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")

set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
foreach(size 16 24 32 48 64 128)
    install(FILES "${PROJECT_SOURCE_DIR}/resources/images/logo_${size}.png"
        DESTINATION "${icons}/${size}x${size}/apps" RENAME wavorin.png)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/resources/images/logo.png"
    DESTINATION "${icons}/256x256/apps" RENAME wavorin.png)
install(FILES "${PROJECT_SOURCE_DIR}/resources/svg/logo.svg"
    DESTINATION "${icons}/scalable/apps" RENAME wavorin.svg)

install(FILES "${linux}/copyright" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
foreach(document manual formats convert)
    install(FILES "${PROJECT_SOURCE_DIR}/docs/${document}.md" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/pictures" DESTINATION "${CMAKE_INSTALL_DOCDIR}"
    FILES_MATCHING PATTERN "*.png")
file(GLOB examples "${PROJECT_SOURCE_DIR}/examples/earth-fault.*")
install(FILES ${examples} DESTINATION "${CMAKE_INSTALL_DOCDIR}/examples")
