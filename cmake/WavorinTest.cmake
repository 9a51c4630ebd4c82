# A QtTest executable of one unit: wavorin_test(tst_<unit> LIBRARIES ... [SOURCES ...])
# Its source is tst_<unit>.cpp in the current folder; further sources may be added. It runs without a
# display, in UTC and in the C locale, with settings and data folders of its own.
function(wavorin_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "LIBRARIES;SOURCES" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support")
    target_compile_definitions(${name} PRIVATE
        TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
        TEST_OUTPUT_DIR="${CMAKE_BINARY_DIR}/test-output"
        SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE wavorin_options Qt5::Test ${arg_LIBRARIES})
    add_test(NAME ${name} COMMAND ${name})
    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    file(MAKE_DIRECTORY "${home}" "${CMAKE_BINARY_DIR}/test-output")
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")
endfunction()
