# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Compiler settings, stated once: every target of ours links qm_settings, every target that sees Qt links
# qm_qt_settings as well.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# It links a test program three times as fast as the compilers' usual linker.
find_program(LLD_PROGRAM ld.lld)
if(LLD_PROGRAM)
  add_link_options(-fuse-ld=lld)
endif()

# On in every preset. Off for whoever builds the program without one: another compiler's false alarm must not
# stop them.
option(QM_WARNINGS_AS_ERRORS "Stop at a compiler's warning" OFF)
set(qm_warnings_as_errors $<$<BOOL:${QM_WARNINGS_AS_ERRORS}>:-Werror>)

add_library(qm_settings INTERFACE)
target_include_directories(qm_settings INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(qm_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough ${qm_warnings_as_errors}
  -fstack-protector-strong)
target_compile_definitions(qm_settings INTERFACE $<$<CONFIG:Release,RelWithDebInfo>:_FORTIFY_SOURCE=2>)

# Enough for a stack with lines in it; compiling takes a fifth less time.
option(QM_LINES_ONLY "Leave out the debugging information about variables and types" OFF)
target_compile_options(qm_settings INTERFACE $<$<BOOL:${QM_LINES_ONLY}>:-g1>)

if(QM_SANITIZE)
  target_compile_options(qm_settings INTERFACE
    -fsanitize=${QM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(qm_settings INTERFACE -fsanitize=${QM_SANITIZE})
endif()

add_library(qm_qt_settings INTERFACE)
target_link_libraries(qm_qt_settings INTERFACE qm_settings)
target_compile_definitions(qm_qt_settings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_USE_QSTRINGBUILDER
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
