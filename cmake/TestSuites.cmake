# SPDX-License-Identifier: MIT
# Included by CTest for a program whose tests share a display: adds one test for each test suite of the
# program PROGRAM, in the order of its list. Sets NAME/SUITE, with TIMEOUT seconds for the whole suite.
execute_process(COMMAND "${PROGRAM}" --gtest_list_tests
    OUTPUT_VARIABLE listing RESULT_VARIABLE result ERROR_QUIET)
if(NOT result EQUAL 0)
    add_test("${NAME}_NOT_BUILT" "${PROGRAM}") # fails, as it should
    return()
endif()
string(REGEX MATCHALL "(^|\n)[A-Za-z][A-Za-z0-9_/]*\\." suites "${listing}")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "[\n.]" "" suite "${suite}")
    add_test("${NAME}/${suite}" "${PROGRAM}" "--gtest_filter=${suite}.*")
    set_tests_properties("${NAME}/${suite}" PROPERTIES TIMEOUT "${TIMEOUT}" WORKING_DIRECTORY "${FOLDER}")
endforeach()
