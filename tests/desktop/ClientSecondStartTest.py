# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program is started again while it runs: the first one shows what the user can go on with."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import ABOUT, TITLE, Client  # noqa: E402
from scene import FIRST, SceneTest  # noqa: E402

ABOUT_BOX = '^About '
ERROR_DIALOG = '^Quillamar Client$'


class SecondStartScene(SceneTest):
    def start_again(self):
        second = Client(self.desktop)
        self.assertEqual(second.process.wait(20), 0)

    def wait_shown(self):
        """A window that was just hidden may still be called the active one."""
        self.desktop.wait_window(TITLE)
        self.desktop.wait_active(TITLE)


class SecondStartTest(SecondStartScene):
    def come_over_it(self):
        """Another program's window takes the focus."""
        self.desktop.start(['xev', '-name', 'typing'])
        self.desktop.wait_active('typing')

    def test_shows_the_window_that_was_hidden(self):
        client = self.start({FIRST: 1})
        self.start_again()
        self.wait_shown()
        self.assertTrue(client.alive)
        self.assertEqual(len(self.desktop.tray.icons()), 1)

    def test_brings_an_open_dialog_to_the_front(self):
        client = self.start({FIRST: 1})
        client.choose(ABOUT)
        self.desktop.wait_active(ABOUT_BOX)
        self.come_over_it()
        self.start_again()
        self.desktop.wait_active(ABOUT_BOX)
        self.assertIsNone(client.window())
        self.desktop.key('Escape')
        self.desktop.wait_no_window(ABOUT_BOX)
        self.start_again()
        self.wait_shown()

    def test_brings_an_error_dialog_of_the_start_to_the_front(self):
        self.make_mailbox(FIRST, 3)
        self.write_settings([FIRST], PollInterval='"often"')
        client = Client(self.desktop)
        self.desktop.wait_active(ERROR_DIALOG, seconds=30)
        self.come_over_it()
        self.start_again()
        self.desktop.wait_active(ERROR_DIALOG)
        self.desktop.wait_for(lambda: not client.ignore_errors() and not self.desktop.windows.find(ERROR_DIALOG),
                              'the start to be through with its reports')
        self.start_again()
        self.wait_shown()
        client.wait_rows(3)


class NoTrayTest(SecondStartScene):
    """Nothing on this desktop shows an icon: after a while the window shows itself and is never hidden."""

    tray = 'none'

    def test_shows_the_window_that_the_close_box_minimised(self):
        self.make_mailbox(FIRST, 3)
        self.write_settings([FIRST])
        client = Client(self.desktop)
        self.desktop.wait_window(TITLE, seconds=60)
        client.wait_rows(3)
        client.hide()
        self.start_again()
        self.wait_shown()
        self.assertNotIn('HIDDEN', client.window().states)
        client.wait_rows(3)


if __name__ == '__main__':
    unittest.main(verbosity=2)
