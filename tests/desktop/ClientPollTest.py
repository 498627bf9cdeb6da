# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the real client makes of calls that come and go while it polls every second.

"Nothing was announced" is proved by the next announcement, which counts everything since the last one; no
test waits for time to pass.
"""
import sys
import unittest

sys.dont_write_bytecode = True
from client import SHOW, X  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402


class PollTest(SceneTest):
    def test_announces_only_what_came_after_the_start(self):
        client = self.start({FIRST: 12})
        self.add_calls(FIRST, 3)
        self.assertEqual(client.wait_popup(3), 'You have  3  new calls')
        client.wait_rows(15)

    def test_adds_up_calls_that_come_while_the_popup_stands(self):
        client = self.start({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.add_calls(FIRST, 2)
        client.wait_popup(5)

    def test_shows_the_popup_again_at_every_poll(self):
        client = self.start({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        place = client.wait_popup_window().rect
        self.desktop.run(['xdotool', 'windowmove', client.wait_popup_window().id, 100, 100])
        self.desktop.wait_for(lambda: client.wait_popup_window().rect == place,
                              'the popup to be back in its corner')
        self.assertEqual(client.popup_text(), 'You have  3  new calls')

    def test_x_hides_the_popup_and_begins_the_count_anew(self):
        client = self.start({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        client.click_link(X)
        client.wait_no_popup()
        self.assertIsNone(client.window())
        self.add_calls(FIRST, 1)
        client.wait_popup(1)

    def test_show_opens_the_list_with_the_new_calls(self):
        client = self.start({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        client.click_link(SHOW)
        client.wait_no_popup()
        self.desktop.wait_active('Quillamar Calls')
        client.wait_rows(15)

    def test_counts_again_only_beyond_the_size_before_the_log_was_emptied(self):
        client = self.start({FIRST: 12, SECOND: 1})
        self.empty(FIRST)
        self.add_calls(FIRST, 12)
        self.add_calls(SECOND, 1)
        client.wait_popup(1)
        client.click_link(X)
        client.wait_no_popup()
        self.add_calls(FIRST, 2)
        client.wait_popup(2)

    def test_two_mailboxes_make_one_announcement(self):
        client = self.start({FIRST: 3, SECOND: 3})
        self.add_calls(FIRST, 2)
        self.add_calls(SECOND, 5)
        self.assertEqual(client.wait_popup(7), 'You have  7  new calls')

    def test_ten_thousand_calls_that_come_at_once_are_one_announcement(self):
        client = self.start({FIRST: 12})
        self.make_mailbox(SECOND, 12 + 10_000)
        self.replace(FIRST, self.keep(SECOND))
        client.wait_popup(10_000)
        client.click_link(SHOW)
        client.wait_rows(12 + 10_000)
        self.add_calls(FIRST, 1)
        client.wait_popup(1)

    def test_a_server_that_logs_as_fast_as_it_can_is_counted_to_the_last_call(self):
        client = self.start({FIRST: 12})
        self.add_calls(FIRST, 100)
        client.wait_popup(100)

    def test_the_close_box_hides_the_window_and_polling_goes_on(self):
        client = self.start({FIRST: 12})
        client.open()
        client.hide()
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.assertTrue(client.alive)
        self.assertEqual(len(self.desktop.tray.icons()), 1)

    def test_the_popup_takes_no_focus_when_it_comes_nor_when_it_is_clicked(self):
        client = self.start({FIRST: 12})
        self.desktop.start(['xev', '-name', 'typing'])
        self.desktop.wait_active('typing')
        before = self.desktop.windows.activations()
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        client.click_link(X)
        client.wait_no_popup()
        self.assertEqual(self.desktop.windows.activations(), before)

    def test_the_popup_stands_above_the_panel_at_the_right_edge(self):
        client = self.start({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.desktop.wait_for(lambda: self.corner(client) == (1024, 768 - self.desktop.tray.panel().height),
                              f'the popup in its corner, not {self.corner(client)}')

    @staticmethod
    def corner(client):
        x, y, width, height = client.wait_popup_window().rect
        return x + width, y + height

    def test_the_popup_survives_the_panel(self):
        client = self.start({FIRST: 12})
        self.desktop.tray.stop()
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.desktop.tray.start('trayer')
        client.wait_docked()


if __name__ == '__main__':
    unittest.main(verbosity=2)
