# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Deletes a call log on a real smbd whose disk fails at every single call, or whose share is taken away."""
import errno
import mmap
import struct
import sys
import unittest

sys.dont_write_bytecode = True
from deletion_scene import (CALLS, DISK_FULL, FILE_ACCESS_ERROR, NO_PATH, PERMISSION_DENIED,  # noqa: E402
                            DeletionScene)
from site_folder import BIN  # noqa: E402


class FailingDisk:
    """The numbers that smbd shares with FailingDisk.cpp, which is preloaded into it; see there."""

    def __init__(self, path):
        path.write_bytes(bytes(24))
        with open(path, 'r+b') as file:
            self._numbers = mmap.mmap(file.fileno(), 24)
        self.env = {'LD_PRELOAD': str(BIN / 'libfailing_disk.so'), 'FAILING_DISK': str(path)}

    def fail(self, at, error=0, calls=1, half=False):
        self._numbers[:] = struct.pack('6i', 0, at, calls, error, half, 0)

    @property
    def calls(self):
        return struct.unpack('6i', self._numbers)[0]

    @property
    def failed(self):
        return struct.unpack('6i', self._numbers)[5]


class DiskTest(DeletionScene):
    def start_server(self):
        self.disk = FailingDisk(self.desktop.folder / 'disk')
        self.desktop.env |= self.disk.env
        samba = super().start_server()
        for name in self.disk.env:
            del self.desktop.env[name]
        return samba

    def fail_everywhere(self, error, expected, **how):
        self.assertEqual(self.delete(self.samba.port), (0, ''))
        calls, outcomes, left = self.disk.calls, {}, {0: 0, CALLS: 0}
        self.assertGreater(calls, 20)
        for number in range(1, calls + 1):
            with self.subTest(call=number):
                self.fill()
                self.disk.fail(number, error, **how)
                number_told, description = self.delete(self.samba.port)
                self.assertGreater(self.disk.failed, 0)
                outcomes[number_told] = outcomes.get(number_told, 0) + 1
                self.assertIn(number_told, expected, description)
                self.disk.fail(0)
                left[self.expect_whole()] += 1
                self.expect_deleted_by('again')
        print(f'{calls} calls to the disk, {errno.errorcode[error]} at each {how}: '
              f'errors {outcomes}, calls left {left}')
        self.assertTrue(left[0] and left[CALLS], left)

    def test_a_full_disk(self):
        self.fail_everywhere(errno.ENOSPC, (DISK_FULL,), half=True)

    def test_an_input_or_output_error(self):
        self.fail_everywhere(errno.EIO, (FILE_ACCESS_ERROR,))

    def test_a_permission_that_is_missing(self):
        self.fail_everywhere(errno.EACCES, (PERMISSION_DENIED,))

    def test_a_disk_that_fails_from_there_on(self):
        self.fail_everywhere(errno.EIO, (FILE_ACCESS_ERROR,), calls=1_000_000)


class ShareTest(DeletionScene):
    def change_before_the_commit(self, line, expected):
        self.assertEqual(self.tell('delete', self.samba.port), (0, ''))
        self.fill()
        self.assertEqual(self.tell('pause', self.samba.port), (0, ''))
        self.samba.restart_with(line)
        error, description = self.tell('again')
        self.assertIn(error, expected, description)
        self.assertEqual(self.database.read_bytes(), self.full)
        self.samba.restart_with('')
        self.expect_deleted_by('again')

    def test_made_read_only_before_the_commit(self):
        self.change_before_the_commit('read only = yes', (PERMISSION_DENIED,))

    def test_refused_to_the_user_before_the_commit(self):
        self.change_before_the_commit('invalid users = root', (PERMISSION_DENIED,))

    def test_gone_before_the_commit(self):
        self.change_before_the_commit('available = no', (NO_PATH,))


if __name__ == '__main__':
    unittest.main(verbosity=2)
