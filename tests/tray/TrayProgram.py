# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The probe program (trayProbe.cpp) on a private desktop."""
import os
import pathlib
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / 'desktop'))
from desktop import wait_until  # noqa: E402

PROBE = pathlib.Path(os.environ['QM_BIN']) / 'trayProbe'


class TrayProgram:
    """Commands go in as lines, events come out as lines."""

    def __init__(self, desktop, env=None):
        self._commands = desktop.folder / f'commands-{id(self)}'
        os.mkfifo(self._commands)
        self.program = desktop.start([PROBE, self._commands], env)
        self.wait_line('ready')

    def send(self, line):
        """Returns once the program has carried it out."""
        done = f'done {line.split()[0]}'
        before = self.lines().count(done)
        self._commands.write_text(line + '\n')
        wait_until(lambda: self.lines().count(done) > before, f'{line!r} to be carried out')

    def quit(self):
        self._commands.write_text('quit\n')
        return self.program.wait(5)

    def lines(self):
        if not self.program.alive:
            raise AssertionError(f'the program has ended: {self.program.errors()[-2000:]}')
        return self.program.output().splitlines()

    def events(self):
        return [line for line in self.lines() if line != 'ready' and not line.startswith('done ')]

    def wait_line(self, line):
        wait_until(lambda: line in self.lines(), f'the line {line!r}')
