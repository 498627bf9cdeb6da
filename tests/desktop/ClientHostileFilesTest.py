# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A mailbox's database is replaced by something else between two polls.

The sound mailbox beside it is polled after the damaged one: a call there that is announced, with nothing
added, proves that a poll went past the damage without a false count. The total only grows, so a false count
at any time would be in the last announcement, too.
"""
import random
import sys
import unittest

sys.dont_write_bytecode = True
from scene import FIRST, SECOND, SceneTest  # noqa: E402


class HostileFilesTest(SceneTest):
    def setUp(self):
        super().setUp()
        self.client = self.start({FIRST: 12, SECOND: 1})
        self.sound = self.keep(FIRST)

    def goes_past(self, damage):
        damage()
        self.add_calls(SECOND, 1)
        self.client.wait_popup_past_errors(1)
        self.replace(FIRST, self.sound)
        self.add_calls(SECOND, 1)
        self.client.wait_popup_past_errors(2)
        self.add_calls(FIRST, 2)
        self.client.wait_popup_past_errors(4)
        self.assertTrue(self.client.alive)

    def test_empty_file(self):
        self.goes_past(lambda: self.replace(FIRST, b''))

    def test_half_a_file(self):
        self.goes_past(lambda: self.replace(FIRST, self.sound[:len(self.sound) // 2]))

    def test_header_only(self):
        self.goes_past(lambda: self.replace(FIRST, self.sound[:4096]))

    def test_random_bytes(self):
        self.goes_past(lambda: self.replace(FIRST, random.Random(1).randbytes(len(self.sound))))

    def test_random_bytes_behind_a_sound_header(self):
        noise = random.Random(2).randbytes(len(self.sound) - 4096)
        self.goes_past(lambda: self.replace(FIRST, self.sound[:4096] + noise))

    def test_zeros_behind_a_sound_header(self):
        self.goes_past(lambda: self.replace(FIRST, self.sound[:4096] + bytes(len(self.sound) - 4096)))

    def test_missing(self):
        self.goes_past(lambda: self.replace(FIRST, None))

    def test_folder_in_its_place(self):
        self.goes_past(lambda: self.replace_by_folder(FIRST))


if __name__ == '__main__':
    unittest.main(verbosity=2)
