#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""with_desktop.py [--tray none|trayer|tint2|sni] [--size WxH[,MONITORS]] [--lang LOCALE] [--no-wm]
                -- COMMAND…

Runs a command on a private desktop (X server, session bus, window manager, notification area, temporary
home) and gives its exit code. Everything ends with the command, and if this program is killed.
"""
import argparse
import os
import pathlib
import signal
import subprocess
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from desktop import Desktop, DesktopError, die_with_parent  # noqa: E402


def arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--tray', choices=['none', 'trayer', 'tint2', 'sni'], default='none')
    parser.add_argument('--size', default='1280x800', help='of one monitor, and how many of them: 1024x768,2')
    parser.add_argument('--lang', default='C.UTF-8')
    parser.add_argument('--no-wm', action='store_true', help='no window manager')
    parser.add_argument('command', nargs='+')
    return parser.parse_args()


def main():
    chosen = arguments()
    size, _, monitors = chosen.size.partition(',')
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        signal.signal(number, lambda caught, _: sys.exit(128 + caught))
    try:
        with Desktop(size, int(monitors or 1), chosen.lang, chosen.tray, not chosen.no_wm) as desktop:
            # The command keeps our own input, output and working directory.
            command = subprocess.Popen(chosen.command, env=desktop.env, cwd=os.getcwd(),
                                       preexec_fn=die_with_parent)
            try:
                code = command.wait()
            finally:
                command.kill()
                command.wait()
    except (DesktopError, OSError) as error:
        print(f'with_desktop.py: {error}', file=sys.stderr)
        return 125
    return code if code >= 0 else 128 - code


sys.exit(main())
