# SPDX-License-Identifier: MIT
# What all targets of the project have in common, and the functions that define them.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

find_program(QUILLBAY_FAST_LINKER ld.gold) # links a test program four times as fast as the default linker

add_library(quillbay_options INTERFACE)
target_include_directories(quillbay_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_definitions(quillbay_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    QT_NO_FOREACH)
target_compile_options(quillbay_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    # A unity build puts the unnamed namespaces of many files into one, which these two warnings misunderstand.
    $<$<NOT:$<BOOL:${QUILLBAY_UNITY_BUILD}>>:-Wshadow>
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${QUILLBAY_UNITY_BUILD}>>:-Wno-subobject-linkage>
    $<$<BOOL:${QUILLBAY_WARNINGS_AS_ERRORS}>:-Werror>)
if(QUILLBAY_SANITIZERS)
    target_compile_options(quillbay_options INTERFACE
        -fsanitize=${QUILLBAY_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(quillbay_options INTERFACE -fsanitize=${QUILLBAY_SANITIZERS})
endif()

if(QUILLBAY_FUZZERS)
    target_compile_options(quillbay_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quillbay_precompile(NAME): the headers that most rooms include, compiled once. Only optimised unity builds have them, so
# that the others find a missing include.
function(quillbay_precompile name)
    if(QUILLBAY_UNITY_BUILD)
        target_precompile_headers(${name} REUSE_FROM precompiled)
    endif()
endfunction()

if(QUILLBAY_UNITY_BUILD)
    find_package(Qt6 REQUIRED COMPONENTS Core)
    file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/precompiled.cpp" CONTENT "")
    add_library(precompiled OBJECT "${PROJECT_BINARY_DIR}/precompiled.cpp")
    target_link_libraries(precompiled PRIVATE quillbay_options Qt6::Core)
    target_precompile_headers(precompiled PRIVATE
        <QByteArray> <QByteArrayView> <QHash> <QObject> <QString> <QStringList> <QTimer> <QUrl> <QVariant>
        <algorithm> <array> <chrono> <functional> <map> <memory> <optional> <utility> <vector>)
endif()

# quillbay_library(NAME SOURCES file… [LINKS target… [PRIVATE target…]]): the static library of one room.
function(quillbay_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(${name} STATIC ${arg_SOURCES})
    # Most of the compile time goes into Qt's headers; a unity build reads them once for many files.
    set_target_properties(${name} PROPERTIES UNITY_BUILD ${QUILLBAY_UNITY_BUILD} UNITY_BUILD_BATCH_SIZE 16)
    target_link_libraries(${name} PUBLIC quillbay_options ${arg_LINKS})
    quillbay_precompile(${name})
endfunction()

# quillbay_program(NAME SOURCES file… [LINKS target…]): an executable in build/<preset>/bin.
function(quillbay_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE quillbay_options ${arg_LINKS})
endfunction()

# quillbay_compile_fast(NAME): code of the tests, not optimised and with the precompiled header that tests share. The code
# under test is optimised.
function(quillbay_compile_fast name)
    set_target_properties(${name} PROPERTIES UNITY_BUILD ${QUILLBAY_UNITY_BUILD} UNITY_BUILD_BATCH_SIZE 10)
    target_compile_options(${name} PRIVATE -O0)
    target_compile_definitions(${name} PRIVATE GTEST_HAS_PTHREAD=1) # as the precompiled header has it
    target_precompile_headers(${name} REUSE_FROM test_precompiled)
endfunction()

# quillbay_test_library(NAME SOURCES file… [LINKS target…]): code that several tests share.
function(quillbay_test_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC quillbay_options Qt6::Core ${arg_LINKS})
    quillbay_compile_fast(${name})
endfunction()

function(quillbay_discover_suites name timeout)
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${name}_suites.cmake")
    file(GENERATE OUTPUT "${script}" CONTENT "\
set(NAME \"${name}\")
set(PROGRAM \"$<TARGET_FILE:${name}>\")
set(FOLDER \"${CMAKE_CURRENT_BINARY_DIR}\")
set(TIMEOUT ${timeout})
include(\"${PROJECT_SOURCE_DIR}/cmake/TestSuites.cmake\")
")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${script}")
endfunction()

# quillbay_test(NAME SOURCES file… [LINKS target…] [HELPERS target…] [TIMEOUT seconds]): a GoogleTest
# binary on the project's harness. Every TEST is a CTest test of its own, except where tests share a display, which takes
# longer to start than most of them run: there it is every test suite. HELPERS are programs that the tests start from the
# folder of the test binary.
function(quillbay_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;LINKS;HELPERS")
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    if(QUILLBAY_SANITIZERS)
        math(EXPR arg_TIMEOUT "${arg_TIMEOUT} * 4")
    endif()
    add_executable(${name} ${arg_SOURCES})
    if(QUILLBAY_UNITY_BUILD AND QUILLBAY_FAST_LINKER)
        target_link_options(${name} PRIVATE -fuse-ld=gold)
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
    target_link_libraries(${name} PRIVATE quillbay_options test_harness GTest::gmock ${arg_LINKS})
    quillbay_compile_fast(${name})
    if(arg_HELPERS)
        add_dependencies(${name} ${arg_HELPERS})
    endif()
    if(test_harness_gui IN_LIST arg_LINKS)
        quillbay_discover_suites(${name} ${arg_TIMEOUT})
    else()
        gtest_discover_tests(${name}
            TEST_PREFIX "${name}/"
            DISCOVERY_MODE PRE_TEST
            PROPERTIES TIMEOUT ${arg_TIMEOUT})
    endif()
endfunction()

# quillbay_test_helper(NAME SOURCES file… [LINKS target…]): a program for tests to start.
function(quillbay_test_helper name)
    quillbay_program(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE Qt6::Core)
    quillbay_compile_fast(${name})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
endfunction()

# quillbay_fuzzer(NAME SOURCES file… [LINKS target…]): a libFuzzer program in build/<preset>/fuzz with its seeds in
# fuzz/seeds/NAME.
function(quillbay_fuzzer name)
    quillbay_program(${name} ${ARGN})
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    if(NOT TARGET fuzzers)
        add_custom_target(fuzzers)
    endif()
    add_dependencies(fuzzers ${name})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/fuzz")
endfunction()
