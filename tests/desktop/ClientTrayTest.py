# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client's icon in panels of both kinds, what its clicks do, and that it returns with its panel."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import CLOSE, TITLE, Client  # noqa: E402
from scene import FIRST, SceneTest  # noqa: E402

OPTIONS = '^Options$'
QUESTION = '^Delete All Items$'
ABOUT = '^About Quillamar Client$'


class EmbeddedTest(SceneTest):
    def test_only_a_double_click_shows_the_window(self):
        client = self.start({FIRST: 3})
        x, y = client.wait_docked().center
        before = self.desktop.windows.activations()
        self.desktop.click(x + 5, y, button=2)
        self.desktop.click(x - 5, y)
        self.add_calls(FIRST, 1)
        client.wait_popup(1)  # what the clicks led to would have come before
        self.assertIsNone(client.window())
        self.assertEqual(self.desktop.windows.activations(), before)
        self.desktop.click(x + 5, y, double=True)
        self.desktop.wait_active(TITLE)
        client.wait_rows(4)

    def test_returns_when_its_panel_is_started_again(self):
        client = self.start({FIRST: 3})
        for _ in range(2):
            self.desktop.tray.stop()
            self.desktop.tray.start('trayer')
            client.wait_docked()
        client.open()
        client.wait_rows(3)
        client.choose(CLOSE)
        self.assertEqual(client.process.wait(15), 0)
        self.assertEqual(client.process.errors(), '')

    def test_goes_over_to_a_panel_of_the_other_kind(self):
        client = self.start({FIRST: 3})
        self.desktop.tray.stop()
        self.desktop.tray.start('sni')
        self.desktop.wait_for(self.desktop.tray.icons, 'the item to be registered', 30)
        self.desktop.tray.notifier.ask('activate')
        self.desktop.wait_active(TITLE, 15)
        client.wait_rows(3)


class NotifierTest(SceneTest):
    tray = 'sni'

    def test_returns_when_its_panel_is_started_again(self):
        self.start_listed()
        for _ in range(2):
            self.desktop.tray.stop()
            self.desktop.tray.start('sni')
            self.desktop.wait_for(self.desktop.tray.icons, 'the item to be registered', 30)
        self.open_list()

    def start_listed(self):
        self.add_calls(FIRST, 3)
        self.write_settings([FIRST])
        self.client = Client(self.desktop)
        self.desktop.wait_for(self.desktop.tray.icons, 'the item to be registered', 30)

    def choose(self, label):
        self.desktop.tray.notifier.ask('choose', label=label)

    def windows(self):
        """Titles of the client's visible windows."""
        return sorted(w.title for w in self.desktop.windows.all() if w.pid == self.client.process.pid)

    def open_list(self):
        self.choose('View Call Log')
        self.desktop.wait_active(TITLE, 15)
        self.client.wait_rows(3)

    def test_an_activation_and_the_menu_show_the_window(self):
        self.start_listed()
        self.desktop.tray.notifier.ask('activate')
        self.desktop.wait_active(TITLE, 15)
        self.client.wait_rows(3)
        self.client.hide()
        self.open_list()

    def test_settings_while_the_settings_are_up_bring_them_to_the_front(self):
        self.start_listed()
        self.choose('Settings')
        first = self.desktop.wait_active(OPTIONS, 15)
        self.desktop.start(['xev', '-name', 'other'])
        self.desktop.windows.ask_to_activate(self.desktop.wait_window('other'))
        self.desktop.wait_active('other')
        self.choose('Settings')
        self.assertEqual(self.desktop.wait_active(OPTIONS, 15).id, first.id)
        self.assertEqual(self.windows(), ['Options'])

    def test_about_while_a_question_is_up_leaves_the_question(self):
        self.start_listed()
        self.open_list()
        self.desktop.key('alt+e', 'd')
        question = self.desktop.wait_active(QUESTION, 15)
        self.choose('About Quillamar')
        self.assertEqual(self.desktop.wait_active(QUESTION, 15).id, question.id)
        self.assertIsNone(self.desktop.windows.find(ABOUT))
        self.desktop.key('Escape')
        self.desktop.wait_active(TITLE, 15)
        self.assertEqual(self.client.row_count(), 3)
        self.choose('About Quillamar')
        self.desktop.wait_active(ABOUT, 15)

    def test_close_while_a_question_is_up_answers_it_with_cancel_and_ends(self):
        self.start_listed()
        self.open_list()
        self.desktop.key('alt+e', 'd')
        self.desktop.wait_active(QUESTION, 15)
        self.choose('Close Quillamar Client')
        self.assertEqual(self.client.process.wait(15), 0)
        self.assertEqual(len(self.calls_by_mdbtools(FIRST)), 3)
        self.desktop.wait_for(lambda: not self.desktop.tray.icons(), 'the item to go')

    def test_close_ends_while_the_settings_are_up(self):
        self.start_listed()
        self.choose('Settings')
        self.desktop.wait_active(OPTIONS, 15)
        self.choose('Close Quillamar Client')
        self.assertEqual(self.client.process.wait(15), 0)
        self.assertEqual(self.client.process.errors(), '')


if __name__ == '__main__':
    unittest.main(verbosity=2)
