# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

# cpack -G DEB: a Debian package of what cmake --install puts below /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wavorin)
set(CPACK_PACKAGE_VENDOR Norvale)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Norvale <support@norvale.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.norvale.example")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# One of the three kinds of recordings cannot be opened without an archiver.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "7zip | p7zip-full")
# The Chinese user interface needs a font that a bare system lacks.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer for disturbance recordings of protection relays")
set(CPACK_PACKAGE_DESCRIPTION
"Wavorin is a viewer for protection engineers. It shows what happened in a
power system, when, and how large it was.

It opens COMTRADE recordings of the 1999 layout with ASCII samples, device
packages that contain one, and text exports. The converter that comes with
it turns other COMTRADE recordings, binary ones and single files, into such.

Analog channels are drawn as waveforms and digital channels as bands over
one time axis, as primary, secondary or per-unit values. Cursors, phasor
diagrams and spectra measure them; a part of a recording can be saved as a
new one.")
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianDocuments.cmake")

include(CPack)
