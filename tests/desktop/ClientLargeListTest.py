# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A hundred thousand calls in the real window: listed, scrolled, and stepped through with the details beside it.

How long each took is printed. The bounds are so wide that only work that grows with the log for every step
exceeds them.
"""
import sys
import time
import unittest

sys.dont_write_bytecode = True
from client import TITLE, Client  # noqa: E402
from details import Details, English  # noqa: E402
from scene import FIRST, SceneTest  # noqa: E402

STEPS = 20
BOUND_SECONDS = 120  # of everything that is measured, one by one


class LargeListTest(SceneTest):
    count = 100_000

    def setUp(self):
        super().setUp()
        self.make_mailbox(FIRST, self.count)
        self.calls = self.calls_by_mdbtools(FIRST)[::-1]
        self.write_settings([FIRST], seconds=600)
        self.client = Client(self.desktop)

    def measure(self, what, work):
        began = time.monotonic()
        work()
        seconds = time.monotonic() - began
        print(f'{self.count} calls, {what}: {seconds:.2f} s', flush=True)
        self.assertLess(seconds, BOUND_SECONDS, what)

    def go(self, key, row):
        self.desktop.key(*key)
        self.desktop.wait_for(lambda: self.client.selected_rows() == [row], f'row {row} to be reached',
                              BOUND_SECONDS)

    def step(self, details, button, rows):
        for row in rows:
            details.press(button)
            details.wait_shown(self.calls[row], BOUND_SECONDS)

    def test_is_scrolled_and_stepped_through(self):
        self.measure('listed, from the start',
                     lambda: (self.client.open(), self.client.wait_rows(self.count, BOUND_SECONDS)))
        self.desktop.wait_active(TITLE)
        self.desktop.click(*self.client.place_of(0))
        self.measure('to the end', lambda: self.go(['End'], self.count - 1))
        self.measure('back to the beginning', lambda: self.go(['Home'], 0))
        self.measure(f'{STEPS} rows down by key', lambda: self.go(['Down'] * STEPS, STEPS))
        self.measure('twenty pages down and up',
                     lambda: self.go(['Next'] * 20 + ['Prior'] * 20 + ['Home'], 0))
        details = Details(self.client, English)
        self.measure('details opened', lambda: (details.open_by_context_menu(0),
                                                details.wait_shown(self.calls[0], BOUND_SECONDS)))
        self.measure(f'{STEPS} steps at the newest call',
                     lambda: self.step(details, English.following, range(1, STEPS + 1)))
        details.close()
        self.desktop.wait_active(TITLE)
        self.go(['End'], self.count - 1)
        self.desktop.key('shift+F10', 'Down', 'Down', 'Return')
        details.wait_shown(self.calls[-1], BOUND_SECONDS)
        self.measure(f'{STEPS} steps at the oldest call',
                     lambda: self.step(details, English.previous, range(self.count - 2, self.count - 2 - STEPS, -1)))


class SmallListTest(LargeListTest):
    """What the same takes in a log of everyday size, for comparison."""

    count = 60


if __name__ == '__main__':
    unittest.main(verbosity=2)
