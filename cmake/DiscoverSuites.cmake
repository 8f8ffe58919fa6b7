# SPDX-License-Identifier: Apache-2.0
# Script: lists the test suites of a GoogleTest program and writes a ctest file with one test for
# each suite and locale, so that `ctest -R Crossings` runs that suite and a failure names it.
#
# cmake -D PROGRAM=... -D EMULATOR=... -D NAME=... -D OUTPUT=... -P DiscoverSuites.cmake
#   PROGRAM  the test program
#   EMULATOR the program that runs it, if it is for another system
#   NAME     the folder of src/ that it tests; the test of a suite is NAME.Suite
#   OUTPUT   the file to write; uses variables that tarsil_test sets
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0
          ${EMULATOR} ${PROGRAM} --gtest_list_tests
  OUTPUT_VARIABLE listing
  COMMAND_ERROR_IS_FATAL ANY)
# A suite starts a line and ends with a point; its tests are indented.
string(REGEX MATCHALL "(^|\n)[^ \n][^\n.]*\\." suites "${listing}")
if(NOT suites)
  message(FATAL_ERROR "${PROGRAM} lists no test suite.")
endif()
set(content "")
set(command "\"${PROGRAM}\"")
if(EMULATOR)
  set(command "\"${EMULATOR}\" ${command}")
endif()
foreach(suite IN LISTS suites)
  string(REGEX REPLACE "^\n|\\.$" "" suite "${suite}")
  foreach(locale IN ITEMS "" _comma_locale)
    string(APPEND content
           "add_test([=[${NAME}.${suite}${locale}]=] ${command} \"--gtest_filter=${suite}.*\")\n"
           "set_tests_properties([=[${NAME}.${suite}${locale}]=] PROPERTIES ENVIRONMENT \"\${tarsil_environment${locale}}\")\n")
  endforeach()
endforeach()
file(WRITE ${OUTPUT} "${content}")
