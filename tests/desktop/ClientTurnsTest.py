# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The turns of the real client's event loop, and what its user still gets, while a server does not answer."""
import sys
import time
import unittest

sys.dont_write_bytecode = True
from client import CLOSE, CONFIG, TITLE, Client  # noqa: E402
from options import Options  # noqa: E402
from play_scene import FAILED, PlayScene  # noqa: E402
from samba import Samba  # noqa: E402
from scene import FIRST, SECOND  # noqa: E402
from site_folder import program  # noqa: E402
from smb_scene import SmbScene  # noqa: E402

LONGEST = 200  # milliseconds
SECONDS = 10  # several requests and their pauses
SOON = 2  # seconds in which the user's own window and the end of the program come


class Turns:
    """Measures the client that is started next."""

    def __init__(self, desktop):
        self._file = desktop.folder / 'turns'
        self._from = 0
        desktop.env |= {'LD_PRELOAD': str(program('libqm_turns.so')), 'QM_TURNS': str(self._file)}
        self._env = desktop.env

    def begin(self):
        """From now on; what is started later is not measured."""
        for name in ('LD_PRELOAD', 'QM_TURNS'):
            self._env.pop(name, None)
        lines = self._lines()
        if lines[0] != 'measuring':
            raise AssertionError(f'nothing is measured: {lines}')
        self._from = len(lines)

    def longest(self):
        return max(map(int, self._lines()[self._from:]), default=0)

    def _lines(self):
        """Other programs that were started before begin() tell their beginning, and may tell turns of their own."""
        return self._file.read_text(encoding='ascii').splitlines()


class ShareTurnsTest(SmbScene):
    def setUp(self):
        super().setUp()
        for number in (FIRST, SECOND):
            self.add_calls(number, 12)
        self.write_settings((FIRST, SECOND))
        self.turns = Turns(self.desktop)
        self.client = Client(self.desktop)
        self.client.open()
        self.client.wait_rows(12)

    def stop_server(self):
        self.samba.stop()
        self.turns.begin()

    def has_turned_quickly(self):
        self.assertLessEqual(self.turns.longest(), LONGEST)

    def test_while_it_polls(self):
        self.stop_server()
        time.sleep(SECONDS)
        self.has_turned_quickly()

    def test_while_it_loads_a_list(self):
        self.stop_server()
        self.client.click_tab('Service')
        time.sleep(SECONDS)
        self.has_turned_quickly()

    def test_while_it_looks_for_mailboxes(self):
        self.stop_server()
        self.client.choose(CONFIG)
        Options(self.client).window()
        time.sleep(SECONDS)
        self.has_turned_quickly()

    def test_the_window_hides_while_a_list_is_loaded(self):
        self.stop_server()
        self.client.click_tab('Service')
        began = time.monotonic()
        self.client.hide()
        self.assertLess(time.monotonic() - began, SOON)

    def test_it_ends_while_a_list_is_loaded(self):
        self.stop_server()
        self.client.click_tab('Service')
        began = time.monotonic()
        self.client.open_menu()
        self.assertLess(time.monotonic() - began, SOON)
        began = time.monotonic()
        self.desktop.key(*['Down'] * CLOSE, 'Return')
        self.assertEqual(self.client.process.wait(SOON), 0)


class PlayTurnsTest(PlayScene):
    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share)
        self.addCleanup(self.samba.go_on)  # a stopped process does not end

    def server_address(self):
        return self.samba.address

    def test_while_a_message_is_wanted(self):
        turns = Turns(self.desktop)
        self.client = self.start_client()
        row, _ = self.row_of_message()
        self.samba.stop()
        turns.begin()
        self.client.double_click(row)
        self.message_box(f'(The audio file could not be found.|{FAILED})')
        self.assertLessEqual(turns.longest(), LONGEST)


if __name__ == '__main__':
    unittest.main(verbosity=2)
