# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Deletes a call log on a real smbd, step by step, for tests in which something fails meanwhile.

Whatever fails must be an error with its number, leave the database whole (all calls or none, and qmjet check finds
nothing wrong), and the step that failed must work when it is tried again.
"""
import subprocess
import unittest

from desktop import Desktop, die_with_parent
from samba import Samba
from site_folder import database, mailbox_folder, program

MAILBOX, CALLS = 7, 30
DEVICE_ERROR, DISK_FULL, PERMISSION_DENIED, FILE_ACCESS_ERROR, NO_PATH = 57, 61, 70, 75, 76


class DeletionScene(unittest.TestCase):
    """A call log on a real smbd, and a program that deletes it step by step as the client's command does."""

    def setUp(self):
        self.desktop = self.enterContext(Desktop(tray='none', wm=False))
        self.share = self.desktop.folder / 'share'
        mailbox_folder(self.share, MAILBOX).mkdir(parents=True)
        self.database = database(self.share, MAILBOX)
        self.run_tool('qmbenchdb', self.database, CALLS, '--calls')
        self.full = self.database.read_bytes()
        self.samba = self.start_server()
        self.deletion = subprocess.Popen([program('smb_deletion')], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                         text=True, bufsize=1, preexec_fn=die_with_parent)
        self.addCleanup(self.end_deletion)

    def start_server(self):
        return Samba(self.desktop, self.share)

    def end_deletion(self):
        self.deletion.stdin.close()
        self.deletion.wait(10)
        self.deletion.stdout.close()

    @staticmethod
    def run_tool(name, *words):
        return subprocess.run([program(name), *map(str, words)], check=False, capture_output=True, text=True)

    def tell(self, *words):
        """The number of the error that comes of a command, and its description."""
        print(*words, file=self.deletion.stdin)
        number, _, description = self.deletion.stdout.readline().strip().partition(' ')
        return int(number), description

    def delete(self, port):
        return self.tell('delete', port)

    def fill(self):
        self.database.write_bytes(self.full)

    def calls(self):
        """How many an independent reader finds."""
        return len(self.desktop.run(['mdb-export', '-H', self.database, 'CallLog']).splitlines())

    def expect_whole(self):
        checked = self.run_tool('qmjet', 'check', self.database)
        self.assertEqual(checked.returncode, 0, checked.stdout + checked.stderr)
        calls = self.calls()
        self.assertIn(calls, (0, CALLS))
        return calls

    def expect_deleted_by(self, *words):
        self.assertEqual(self.tell(*words), (0, ''))
        self.assertEqual(self.expect_whole(), 0)
