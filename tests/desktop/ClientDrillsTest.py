# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client through what happens to servers and shares. Each drill ends with right counts and no report."""
import os
import sys
import time
import unittest

sys.dont_write_bytecode = True
from client import OPEN, Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from drill_scene import DrillScene  # noqa: E402
from scene import FIRST  # noqa: E402
from site_folder import mailbox_folder  # noqa: E402


class ServerDrillTest(DrillScene):
    def test_killed_and_restarted_while_the_list_is_read(self):
        self.make_mailbox(FIRST, 20000)
        self.write_settings((FIRST,))
        client = Client(self.desktop)
        wait_until(lambda: self.samba.log_ons('NT_STATUS_OK') > 0, 'the client to log on', 60)
        self.samba.kill()
        self.samba.start()
        client.open()
        client.wait_rows(20000, seconds=90)
        client.hide()
        calls = 20000 + self.announce_calls(client, seconds=90)
        client.wait_rows(calls, seconds=60)
        self.reports_nothing()

    def test_killed_and_restarted_between_polls_over_and_over(self):
        client, calls = self.start_counting({FIRST: 12})
        for _ in range(4):
            self.samba.kill()
            self.add_calls(FIRST, 1)
            self.samba.start()
        client.wait_rows(calls + 4, seconds=90)
        client.wait_popup(4, seconds=30)
        self.reports_nothing()

    def test_connections_are_cut(self):
        client, calls = self.start_counting({FIRST: 12})
        self.samba.cut_connections()
        self.counts_on(client, calls)

    def test_stopped_for_half_a_minute_in_which_the_window_answers(self):
        client, calls = self.start_counting({FIRST: 12})
        self.samba.stop()
        end = time.monotonic() + 30
        client.open()
        while time.monotonic() < end:
            self.assertEqual(client.row_count(), calls)
        client.hide()
        self.samba.go_on()
        self.counts_on(client, calls)


class ShareDrillTest(DrillScene):
    def test_made_read_only(self):
        client, calls = self.start_counting({FIRST: 12})
        self.samba.restart_with('read only = yes')
        self.counts_on(client, calls)

    def test_permission_taken_away_and_given_back(self):
        client, calls = self.start_counting({FIRST: 12})
        self.samba.restart_with('invalid users = root')
        self.wait_question()
        self.desktop.key('Escape')
        self.samba.restart_with('')
        self.counts_on(client, calls)

    def test_folder_renamed_and_named_back(self):
        client, calls = self.start_counting({FIRST: 12})
        folder = mailbox_folder(self.share, FIRST)
        away = folder.with_name('away')
        os.rename(folder, away)
        self.wait_asked(client)
        os.rename(away, folder)
        self.counts_on(client, calls)

    def test_share_without_its_folder_of_mailboxes_at_the_start(self):
        os.rename(self.share / 'MBX', self.share / 'away')
        self.write_settings((FIRST,))
        client = Client(self.desktop)
        client.choose(OPEN)
        os.rename(self.share / 'away', self.share / 'MBX')
        self.make_mailbox(FIRST, 12)
        client.wait_rows(12, seconds=60)
        self.reports_nothing()


if __name__ == '__main__':
    unittest.main(verbosity=2)
