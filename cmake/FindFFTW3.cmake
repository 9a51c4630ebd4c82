# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later

# FFTW 3 in double precision, as the imported target FFTW3::fftw3. FFTW's own package files are not
# complete in every distribution, so the header and the library are looked for by name.
find_path(FFTW3_INCLUDE_DIR fftw3.h)
find_library(FFTW3_LIBRARY fftw3)
mark_as_advanced(FFTW3_INCLUDE_DIR FFTW3_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(FFTW3 REQUIRED_VARS FFTW3_LIBRARY FFTW3_INCLUDE_DIR)

if(FFTW3_FOUND AND NOT TARGET FFTW3::fftw3)
    add_library(FFTW3::fftw3 UNKNOWN IMPORTED)
    set_target_properties(FFTW3::fftw3 PROPERTIES
        IMPORTED_LOCATION "${FFTW3_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${FFTW3_INCLUDE_DIR}")
endif()
