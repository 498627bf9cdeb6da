#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Takes the times of compiling out of a help file: undate-help-file.py FILE

The compiler writes the time of the day, in milliseconds, into the file's header and into the first entry of its
#SYSTEM table. No reader needs them, and without them the same pages give the same file, whenever it is built.
"""
import pathlib
import re
import sys

HEADER_TIME = slice(16, 20)
# The table's version, 3; then entry 10, four bytes long, and the compiler's name in entry 9.
SYSTEM_TIME = re.compile(rb'(?s)(?<=\x03\0\0\0\x0a\0\x04\0).{4}(?=\x09\0..HHA Version)')
NO_TIME = bytes(4)


def main(file):
    contents = bytearray(file.read_bytes())
    if contents[:4] != b'ITSF':
        sys.exit(f'{file} is no help file')
    contents[HEADER_TIME] = NO_TIME
    contents, found = SYSTEM_TIME.subn(NO_TIME, contents)
    if found != 1:
        sys.exit(f'{file} has {found} times of its compiling instead of one')
    file.write_bytes(contents)


if __name__ == '__main__':
    main(pathlib.Path(sys.argv[1]))
