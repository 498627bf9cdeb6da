# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A D-Bus program of ours beside the test: questions and answers as lines of JSON, one at a time."""
import json
import pathlib
import select
import subprocess

from .processes import DesktopError, Program

# python3-gi belongs to the system's interpreter, whichever one runs the test.
PYTHON = '/usr/bin/python3'


class QuestionProcess:
    def __init__(self, script, env, folder, logs):
        path = pathlib.Path(__file__).with_name(script)
        self._program = Program([PYTHON, '-B', path], env, folder, logs, stdin=subprocess.PIPE,
                                stdout=subprocess.PIPE)
        self.pid = self._program.pid

    def ask(self, question, seconds=15, **values):
        pipes = self._program.popen
        try:
            pipes.stdin.write(json.dumps({'ask': question, **values}).encode() + b'\n')
            pipes.stdin.flush()
        except OSError:
            raise DesktopError(f'the program has ended: {self._program.errors()[-500:]}') from None
        if not select.select([pipes.stdout], [], [], seconds)[0]:
            raise DesktopError(f'{question}: no answer within {seconds:g} s')
        line = pipes.stdout.readline()
        if not line:
            raise DesktopError(f'{question}: {self._program.errors()[-500:]}')
        answer = json.loads(line)
        if 'error' in answer:
            raise DesktopError(f'{question}: {answer["error"]}')
        return answer['value']

    def end(self):
        self._program.popen.stdin.close()
        self._program.end()
        self._program.popen.stdout.close()
