#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""clang-tidy over sources that are named on standard input:  scripts/tidy.py BUILD-FOLDER [CHECKS]

Most of clang-tidy's time goes into headers, read again for every source. So sources with the same compiler options are
read a dozen at a time, as one text. Such a text only ever acquits: whenever something is found in it, its halves are
read, down to the single source, whose findings are what counts.
"""
import collections
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

CONFIGURATION = pathlib.Path(__file__).resolve().parent.parent / ".clang-tidy"
TOGETHER = 12
# What a source keeps to itself: names in lines without indent of a namespace without name, short names, main().
PRIVATE = re.compile(r"^namespace \{\n(.*?)^\} // namespace\n", re.MULTILINE | re.DOTALL)
PRIVATE_NAME = re.compile(r"^(?!using [\w:]+;)[^\s}/#].*?\b(\w+)(?: final)? ?(?:[({=;]|: )", re.MULTILINE)
OTHER_NAME = re.compile(r"^(?:namespace (?=\w+ = )|int (?=main\())(\w+)", re.MULTILINE)


def options(entry):
    """The compiler's arguments without what belongs to the one source."""
    arguments = shlex.split(entry["command"])
    output = arguments.index("-o")
    kept = arguments[:output] + arguments[output + 2 :]
    return [argument for argument in kept if argument not in ("-c", entry["file"]) and "_autogen" not in argument]


def batches(database, names):
    by_options = collections.defaultdict(list)
    for entry in database:
        if os.path.relpath(entry["file"]) in names:
            by_options[tuple(options(entry))].append(entry["file"])
    for compiler, files in by_options.items():
        for start in range(0, len(files), TOGETHER):
            yield compiler, files[start : start + TOGETHER]


def private_names(text):
    return {name for part in PRIVATE.findall(text) for name in PRIVATE_NAME.findall(part)} | set(
        OTHER_NAME.findall(text))


def as_one_text(files):
    """A name that several of them keep to themselves gets the number of its source."""
    texts = [pathlib.Path(file).read_text() for file in files]
    uses = collections.Counter(name for text in texts for name in private_names(text))
    for number, (file, text) in enumerate(zip(files, texts)):
        met = [name for name in private_names(text) if uses[name] > 1]
        if met:
            text = re.sub(rf"\b({'|'.join(met)})\b", rf"\g<1>{number}", text)
        yield f'#line 1 "{file}"\n{text}'


class Tidy:
    def __init__(self, checks, folder):
        self._checks = checks
        self._folder = folder

    def findings(self, batch):
        """What clang-tidy says of each of the sources, empty where there is nothing to say."""
        compiler, files = batch
        if len(files) == 1:
            return self._run(files[0], compiler)
        text = self._folder / f"{files[0].replace('/', '-')}-{len(files)}.cpp"
        text.write_text("".join(as_one_text(files)))
        if not self._run(text, compiler):
            return ""
        half = len(files) // 2
        return self.findings((compiler, files[:half])) + self.findings((compiler, files[half:]))

    def _run(self, source, compiler):
        ran = subprocess.run(
            ["clang-tidy", "--quiet", f"--checks={self._checks}", f"--config-file={CONFIGURATION}", str(source), "--",
             *compiler[1:]], capture_output=True, text=True, check=False)
        return "" if ran.returncode == 0 else ran.stdout + ran.stderr


def main():
    build, checks = (sys.argv[1:] + [""])[:2]
    names = set(sys.stdin.read().split())
    database = json.loads((pathlib.Path(build) / "compile_commands.json").read_text())
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = "".join(pool.map(Tidy(checks, pathlib.Path(folder)).findings, batches(database, names)))
    sys.stdout.write(found)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
