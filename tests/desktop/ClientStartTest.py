# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client from its start to its first list."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import CLOSE, Client  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402

NO_CONNECTION = 'A connection to the server could not be established.'
NO_MAILBOXES = 'There are currently no mailboxes configured.'


class StartTest(SceneTest):
    def test_hides_the_main_window_and_docks_one_icon(self):
        self.make_mailbox(FIRST, 3)
        self.write_settings([FIRST])
        client = Client(self.desktop)
        client.wait_docked()
        self.assertEqual(len(self.desktop.tray.icons()), 1)
        self.assertIsNone(client.window())

    def test_one_mailbox_is_listed_without_tabs(self):
        client = self.start({FIRST: 12})
        client.open()
        self.assertEqual(client.tabs(), [])
        self.assertEqual(client.row_count(), 12)

    def test_two_mailboxes_have_two_tabs_in_their_stored_order(self):
        client = self.start({SECOND: 2, FIRST: 5})
        client.open()
        self.assertEqual(client.tabs(), ['Service', 'Reception'])
        self.assertEqual(client.row_count(), 2)

    def test_lists_the_newest_call_first(self):
        client = self.start({FIRST: 12})
        calls = [row['MessageLength'] + 's' for row in self.calls_by_mdbtools(FIRST)]
        self.assertEqual([row[-1] for row in client.rows()], calls[::-1])

    def test_a_server_that_is_not_there_gives_one_line(self):
        client = self.start_without_calls(NO_CONNECTION, share=self.desktop.folder / 'nowhere')
        self.assertEqual(client.tabs(), [])

    def test_a_server_that_comes_later_is_found_and_nothing_old_announced(self):
        client = self.start_without_calls(NO_CONNECTION, share=self.desktop.folder / 'later')
        self.make_mailbox(FIRST, 12)
        self.share = self.share.rename(self.desktop.folder / 'later')
        client.wait_rows(12)
        self.add_calls(FIRST, 1)
        self.assertEqual(client.wait_popup(), 'You have  1  new calls')

    def test_no_mailboxes_are_said_so(self):
        client = self.start_without_calls(NO_MAILBOXES, numbers=())
        self.assertEqual(client.tabs(), [])
        self.assertFalse(client.ignore_errors())

    def test_text_that_reads_as_a_number_is_a_poll_interval(self):
        client = self.start({FIRST: 1}, PollInterval='"1"')
        self.add_calls(FIRST, 1)
        client.wait_popup(1)

    def test_text_that_is_no_number_is_reported_and_the_usual_interval_kept(self):
        self.make_mailbox(FIRST, 1)
        self.write_settings([FIRST], PollInterval='"often"')
        client = Client(self.desktop)
        client.wait_docked()
        self.desktop.wait_for(client.ignore_errors, 'the error dialog')
        self.desktop.wait_for(lambda: not client.ignore_errors(), 'the error dialog to be answered')
        client.open()
        client.wait_rows(1)
        self.add_calls(FIRST, 1)
        client.wait_popup(1, seconds=30)

    def test_ends_when_the_session_asks_it_to_while_the_start_reports_a_failure(self):
        self.write_settings([FIRST], PollInterval='"often"')
        client = Client(self.desktop)
        client.wait_docked()
        self.desktop.wait_window('^Quillamar Client$', pid=client.process.pid)
        client.process.popen.terminate()
        self.assertEqual(client.process.wait(5), 0)

    def test_close_in_the_menu_ends_the_program(self):
        client = self.start({FIRST: 1})
        client.choose(CLOSE)
        self.assertEqual(client.process.wait(5), 0)
        self.desktop.wait_for(lambda: not self.desktop.tray.icons(), 'the icon to go')

    def test_ends_when_the_session_asks_it_to(self):
        client = self.start({FIRST: 1})
        client.open()
        client.process.popen.terminate()
        self.assertEqual(client.process.wait(5), 0)


class GermanStartTest(SceneTest):
    lang = 'de_DE.UTF-8'

    def test_speaks_german(self):
        client = self.start({FIRST: 12})
        self.assertEqual(client.open().title, 'Quillamar - Anrufe')
        self.add_calls(FIRST, 3)
        self.assertEqual(client.wait_popup(3), 'Sie haben 3 neue Anrufe')
        client.click_link('Anzeigen')
        client.wait_rows(15)

    def test_a_server_that_is_not_there_gives_one_line(self):
        self.start_without_calls('Es konnte keine Verbindung zum Server aufgebaut werden!',
                                 share=self.desktop.folder / 'nowhere')


if __name__ == '__main__':
    unittest.main(verbosity=2)
