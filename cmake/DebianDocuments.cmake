# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

# Run by cpack over the installed files: Debian wants manual pages and a list of changes of its own form,
# compressed without time stamps.
set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC) # SOURCE_DATE_EPOCH where that is set
file(WRITE "${share}/doc/wavorin/changelog"
"wavorin (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}.

 -- ${CPACK_DEBIAN_PACKAGE_MAINTAINER}  ${date}
")
execute_process(
    COMMAND gzip -9n "${share}/man/man1/wavorin.1" "${share}/man/man1/wavorin-convert.1"
        "${share}/doc/wavorin/changelog"
    COMMAND_ERROR_IS_FATAL ANY)
