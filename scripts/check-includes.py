#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks that a folder includes only the folders it may know: the picture of docs/architecture.md."""

import pathlib
import re
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


def main():
    found = list(wrong_includes(pathlib.Path(__file__).resolve().parent.parent))
    print("\n".join(found) if found else "includes: every folder keeps to its directions")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
