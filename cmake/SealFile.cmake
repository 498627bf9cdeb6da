# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   cmake -DFROM=file -DTO=file -P SealFile.cmake
#
# Copies a file and puts its own checksum at its end, so that its reader knows a damaged one
# (platform/shell/help/SealedFile.h).
file(SHA256 ${FROM} checksum)
configure_file(${FROM} ${TO}.new COPYONLY)
file(APPEND ${TO}.new "sealed sha256:${checksum}\n")
file(RENAME ${TO}.new ${TO})
