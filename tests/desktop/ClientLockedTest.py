# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Another process holds a mailbox's database while the real client polls it.

The other mailbox is polled after the held one: a call there that is announced proves that a poll went past it.
"""
import contextlib
import fcntl
import os
import socket
import struct
import sys
import unittest

sys.dont_write_bytecode = True
from ClientSmbTest import SmbScene  # noqa: E402
from client import SHOW  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402
from site_folder import SERVER, database, program  # noqa: E402

USER_LOCKS = 0x10000001  # of the lock file, one byte a user
USERS = 255
LOG_ON, OPEN = 1, 5
NOBODY_ELSE = 3


def text(words):
    return struct.pack('<I', len(words)) + words


def request(verb, path, mode=0, handle=0, number=0, data=b''):
    """As docs/share-protocol.md has it."""
    return struct.pack('<BBIIQ', verb, mode, handle, number, 0) + text(path.encode()) + text(data)


class SmbLockTest(SmbScene):
    @contextlib.contextmanager
    def held(self, number):
        """Open for somebody on the network who shares it with nobody, as one who changes it has it."""
        ours, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        with ours:
            holder = self.desktop.start(['sh', '-c', f'exec "$0" 3<&{theirs.fileno()}', program('qmshare')],
                                        pass_fds=(theirs.fileno(),))
            theirs.close()
            self.ask(ours, request(LOG_ON, '127.0.0.1', number=self.samba.port, data=3 * text(b'')))
            name = rf'\\{SERVER}\Quillamar_0$\MBX\{number}\qmLog.mdb'
            self.ask(ours, request(OPEN, name, mode=NOBODY_ELSE, handle=1))
            yield
        holder.wait(10)

    def ask(self, channel, words):
        channel.settimeout(30)
        channel.send(words)
        stage, failure = struct.unpack_from('<BI', channel.recv(1 << 17))
        self.assertEqual((stage, failure), (0, 0))

    def test_a_mailbox_that_cannot_be_opened_is_passed_over_and_counted_again_later(self):
        client, calls = self.start_counting({FIRST: 12, SECOND: 3})
        with self.held(FIRST):
            self.add_calls(FIRST, 3)
            self.add_calls(SECOND, 1)
            client.wait_popup(1, seconds=60)
            client.click_link(SHOW)
            client.wait_rows(0)
            self.assertFalse(client.ignore_errors())
        client.wait_popup(3, seconds=60)
        client.click_link(SHOW)
        client.wait_rows(calls + 3)


class FolderLockTest(SceneTest):
    """In a folder of this machine reading takes no locks, so that no lock keeps it out."""

    @contextlib.contextmanager
    def held(self, number):
        """By somebody who has it to himself."""
        with open(database(self.share, number).with_suffix('.ldb'), 'wb') as file:
            fcntl.lockf(file, fcntl.LOCK_EX | fcntl.LOCK_NB, USERS, USER_LOCKS, os.SEEK_SET)
            yield

    def test_a_locked_database_is_counted_and_listed_all_the_same(self):
        client = self.start({FIRST: 12})
        self.make_mailbox(SECOND, 15)
        with self.held(FIRST):
            self.replace(FIRST, self.keep(SECOND))
            client.wait_popup(3)
            client.wait_rows(15)
            self.assertFalse(client.ignore_errors())


if __name__ == '__main__':
    unittest.main(verbosity=2)
