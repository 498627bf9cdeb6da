# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A test's world: a desktop with a tray, a share with mailboxes, the client's settings, the client."""
import contextlib
import csv
import os
import subprocess
import sys
import unittest

from client import Client
from desktop import Desktop
from site_folder import BIN, database, mailbox_folder, program, write_settings

EVIDENCE = BIN.parent / 'artefacts' / 'failed'
FIRST, SECOND = 12, 15
_NAMES = {FIRST: 'Reception', SECOND: 'Service'}


class SceneTest(unittest.TestCase):
    """Each test begins with an empty share; everything ends with the test."""

    lang = 'C.UTF-8'
    size = '1024x768'
    tray = 'trayer'
    accessibility = True

    def setUp(self):
        stack = contextlib.ExitStack()
        self.addCleanup(stack.close)
        self.desktop = stack.enter_context(Desktop(self.size, lang=self.lang, tray=self.tray,
                                                   accessibility=self.accessibility))
        self.addCleanup(self._leave_evidence, self._failures())
        self.share = self.desktop.folder / 'share'
        (self.share / 'MBX').mkdir(parents=True)

    # When it fails

    def run(self, result=None):
        self._result = result
        return super().run(result)

    def _failures(self):
        return len(self._result.errors) + len(self._result.failures)

    def _leave_evidence(self, failures_before):
        """Before the desktop goes: what its screen showed and what the client logged."""
        if self._failures() == failures_before:
            return
        EVIDENCE.mkdir(parents=True, exist_ok=True)
        print('picture:', self.desktop.screenshot(EVIDENCE / f'{self.id()}.png'), file=sys.stderr)
        print('log:', self.log() or 'none', file=sys.stderr)

    def log(self):
        """What the client has logged, '' when it had nothing to log."""
        return ''.join(path.read_text(errors='replace') for path in self.desktop.folder.rglob('qmClient.log'))

    def start(self, calls, **settings):
        """The client over mailboxes with so many calls, {number: calls}: listed, counted, its window hidden."""
        for number, count in calls.items():
            self.make_mailbox(number, count)
        self.write_settings(calls, **settings)
        client = Client(self.desktop)
        client.open()
        client.wait_rows(next(iter(calls.values())))
        client.hide()
        return client

    def start_without_calls(self, line, numbers=(FIRST,), **settings):
        """The client whose list has nothing but a line to show, and is shown."""
        self.write_settings(numbers, **settings)
        client = Client(self.desktop)
        client.open()
        client.wait_line(line)
        return client

    def write_settings(self, numbers, **settings):
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], settings.pop('share', self.share),
                       {number: _NAMES[number] for number in numbers}, **settings)

    # The server's side

    def make_mailbox(self, number, calls):
        mailbox_folder(self.share, number).mkdir()
        run('qmbenchdb', database(self.share, number), calls, '--calls')

    def add_calls(self, number, calls):
        """One after the other, as the server logs them."""
        run('qmdemo', self.share, '--mailbox', number, '--calls', calls, '--every', '0.001')

    def empty(self, number):
        """As the server does it: nothing is left of the old file."""
        emptied = self.desktop.folder / 'emptied.mdb'
        run('qmbenchdb', emptied, 0, '--calls')
        self.replace(number, emptied.read_bytes())

    def replace(self, number, contents):
        """Puts other bytes in the place of a mailbox's database in one step; None takes it away."""
        path = database(self.share, number)
        if path.is_dir():
            path.rmdir()
        if contents is None:
            path.unlink()
            return
        other = path.with_suffix('.new')
        other.write_bytes(contents)
        os.replace(other, path)

    def replace_by_folder(self, number):
        database(self.share, number).unlink()
        database(self.share, number).mkdir()

    def calls_by_mdbtools(self, number):
        """The rows as an independent reader sees them, oldest first."""
        exported = self.desktop.run(['mdb-export', database(self.share, number), 'CallLog'])
        return list(csv.DictReader(exported.splitlines()))

    def keep(self, number):
        return database(self.share, number).read_bytes()


def run(name, *words):
    subprocess.run([program(name), *map(str, words)], check=True, capture_output=True)
