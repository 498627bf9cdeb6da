#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks that a folder includes only the folders it may know, as in the picture of docs/architecture.md, and that no
source includes a header twice."""

import collections
import pathlib
import re
import subprocess
import sys

PLATFORM = ["platform/basic", "platform/registry", "platform/share", "platform/jet", "platform/forms",
            "platform/mediagraph", "platform/shell"]
ALLOWED = {
    "platform/basic": [],
    "platform/registry": ["platform/basic"],
    "platform/share": ["platform/basic"],
    "platform/jet": ["platform/basic", "platform/share"],
    "platform/mediagraph": ["platform/basic", "platform/share"],
    "platform/forms": ["platform/basic"],
    "platform/shell": ["platform/basic"],
    "resources": ["platform/basic"],
    "errors": ["platform/basic", "platform/forms", "platform/shell", "resources"],
    "data": ["platform/basic", "platform/registry", "platform/share", "platform/jet", "platform/forms",
             "resources", "errors"],
    "tray": ["platform/basic", "platform/forms", "platform/shell", "resources", "errors"],
    "audio": ["platform/basic", "platform/registry", "platform/share", "platform/mediagraph", "platform/forms",
              "resources", "errors", "data"],
    "dialogs": ["platform/basic", "platform/registry", "platform/share", "platform/jet", "platform/forms",
                "platform/shell", "resources", "errors", "data"],
    "app": [*PLATFORM, "resources", "errors", "data", "tray", "audio", "dialogs"],
}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
ANY_INCLUDE = re.compile(r'^#include (["<].+[">])', re.MULTILINE)


def folder_of(path, folders):
    return next((f for f in folders if path.startswith(f + "/")), None)


def wrong_includes(root):
    for folder, allowed in ALLOWED.items():
        for source in sorted((root / folder).rglob("*")):
            if source.suffix not in (".cpp", ".h"):
                continue
            for included in INCLUDE.findall(source.read_text(encoding="utf-8")):
                target = folder_of(included, ALLOWED)
                if target is None and not (source.parent / included).exists() and "/" in included:
                    yield f"{source.relative_to(root)}: {included}: no such folder"
                elif target and target != folder and target not in allowed:
                    yield f"{source.relative_to(root)}: {folder} must not include {target}"


def repeated_includes(root):
    listed = subprocess.run(["git", "ls-files", "*.cpp", "*.h"], cwd=root, capture_output=True, text=True, check=True)
    for source in listed.stdout.splitlines():
        counts = collections.Counter(ANY_INCLUDE.findall((root / source).read_text(encoding="utf-8")))
        yield from (f"{source}: {included} is included {count} times" for included, count in counts.items() if count > 1)


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    found = [*wrong_includes(root), *repeated_includes(root)]
    print("\n".join(found) if found else "includes: every folder keeps to its directions")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
