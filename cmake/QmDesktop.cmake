# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   qm_desktop_test(NAME SCRIPT [SECONDS n] [LABELS …])     a Python script that drives our programs
#   qm_desktop_program_test(TARGET [ARGS …] [SECONDS n])    a test program under with_desktop.py ARGS
#
# Both are labelled "gui"; desktops are private, so such tests run side by side. A script finds the programs
# of the build in the environment variable QM_BIN; it ends with 77 where the machine lacks what it needs.

set(QM_DESKTOP_FOLDER ${CMAKE_SOURCE_DIR}/tests/desktop)
# The system's interpreter: python3-gi belongs to it.
set(QM_PYTHON /usr/bin/python3 -B)

function(qm_desktop_test name script)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "SECONDS" "LABELS")
  if(NOT arg_SECONDS)
    set(arg_SECONDS 120)
  endif()
  add_test(NAME desktop.${name} COMMAND ${QM_PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/${script})
  set_tests_properties(desktop.${name} PROPERTIES
    LABELS "gui;${arg_LABELS}" TIMEOUT ${arg_SECONDS} SKIP_RETURN_CODE 77 ENVIRONMENT "QM_BIN=${CMAKE_BINARY_DIR}/bin")
endfunction()

function(qm_desktop_program_test target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "SECONDS" "ARGS")
  if(NOT arg_SECONDS)
    set(arg_SECONDS 120)
  endif()
  add_test(NAME desktop.${target}
    COMMAND ${QM_PYTHON} ${QM_DESKTOP_FOLDER}/with_desktop.py ${arg_ARGS} -- $<TARGET_FILE:${target}>)
  set_tests_properties(desktop.${target} PROPERTIES LABELS gui TIMEOUT ${arg_SECONDS})
endfunction()
