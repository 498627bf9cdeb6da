# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   qm_library(NAME [QT] SOURCES … [LINKS …])            one static library per folder
#   qm_program(NAME [QT] SOURCES … [LINKS …])            one program in build/<preset>/bin
#   qm_test(NAME [QT] [ALONE] SOURCES … [LINKS …] [LABELS …])    one GoogleTest program, a CTest entry per test
#
# QT switches on moc, rcc and Qt's strict defines. A test with QT brings its own main() (it needs an
# application object); any other gets GoogleTest's. Tests without LABELS are labelled "unit".
# Nothing else runs beside a test that is ALONE.

include(GoogleTest)

function(qm_settings_for_ name is_qt)
  target_link_libraries(${name} PUBLIC ${ARGN} qm_settings)
  if(is_qt)
    target_link_libraries(${name} PUBLIC qm_qt_settings)
    # moc 6.4 stumbles over libstdc++'s <concepts>, which <compare> brings in: it is told to pass over it.
    set_target_properties(${name} PROPERTIES
      AUTOMOC ON AUTORCC ON AUTOMOC_MOC_OPTIONS "-D_GLIBCXX_CONCEPTS")
  endif()
endfunction()

function(qm_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "QT" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${arg_SOURCES})
  qm_settings_for_(${name} ${arg_QT} ${arg_LINKS})
endfunction()

function(qm_program name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "QT" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  qm_settings_for_(${name} ${arg_QT} ${arg_LINKS})
endfunction()

function(qm_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "QT;ALONE" "" "SOURCES;LINKS;LABELS")
  add_executable(${name} ${arg_SOURCES})
  qm_settings_for_(${name} ${arg_QT} ${arg_LINKS} GTest::gmock)
  if(NOT arg_QT)
    target_link_libraries(${name} PUBLIC GTest::gtest_main)
  endif()
  if(NOT arg_LABELS)
    set(arg_LABELS unit)
  endif()
  gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
    PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 120 RUN_SERIAL "$<BOOL:${arg_ALONE}>")
endfunction()

# qm_provocations(SOURCES … [LINKS …]) adds a subsystem's provocations (tests/errors/Provocation.h) to the test
# that walks the list of all procedures.
function(qm_provocations)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "SOURCES;LINKS")
  list(TRANSFORM arg_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  target_sources(procedure_tests PRIVATE ${arg_SOURCES})
  target_link_libraries(procedure_tests PUBLIC ${arg_LINKS})
endfunction()
