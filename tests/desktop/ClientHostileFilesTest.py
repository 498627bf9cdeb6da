# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A mailbox's database is replaced by something else between two polls.

The sound mailbox beside it is polled after the damaged one: a call there that is announced, with nothing
added, proves that a poll went past the damage without a false count. The total only grows, so a false count
at any time would be in the last announcement, too.
"""
import random
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
from scene import FIRST, SECOND, SceneTest, run  # noqa: E402
from site_folder import database  # noqa: E402

PAGE = 4096


def definitions_continued_at(next_page, database):
    """Every table's definition, but the catalog's on page 2, claims to go on at that page (None: at itself)."""
    damaged = bytearray(database)
    for page in range(3, len(database) // PAGE):
        start = page * PAGE
        if damaged[start] == 0x02:
            number = page if next_page is None else next_page
            damaged[start + 4:start + 12] = number.to_bytes(4, 'little') + (3 * PAGE).to_bytes(4, 'little')
    return bytes(damaged)


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

    def test_table_definitions_that_point_outside_the_file(self):
        self.goes_past(lambda: self.damage_definitions(0x00ffffff))

    def test_table_definitions_that_go_on_in_themselves(self):
        self.goes_past(lambda: self.damage_definitions(None))

    def damage_definitions(self, next_page):
        self.replace(FIRST, definitions_continued_at(next_page, self.sound))
        with self.assertRaises(subprocess.CalledProcessError):
            run('qmjet', 'rows', database(self.share, FIRST), 'CallLog')

    def test_missing(self):
        self.goes_past(lambda: self.replace(FIRST, None))

    def test_folder_in_its_place(self):
        self.goes_past(lambda: self.replace_by_folder(FIRST))


if __name__ == '__main__':
    unittest.main(verbosity=2)
