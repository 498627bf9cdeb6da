# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The error dialog of the real client answered by keyboard alone.

"Cancel" leaves the poll before it comes to the second mailbox, so that nothing there is announced as long as
the first one is damaged; "Ignore" goes on with it.
"""
import sys
import unittest

sys.dont_write_bytecode = True
from error_scene import ErrorTest  # noqa: E402
from desktop import wait_until  # noqa: E402
from scene import FIRST, SECOND  # noqa: E402


class KeysTest(ErrorTest):
    def setUp(self):
        super().setUp()
        self.break_client()
        self.add_calls(SECOND, 1)

    def cancels(self, key):
        for count in (2, 3):
            self.key(key)
            self.wait_records(count)
            self.wait_button(self.RETRY)
            self.assertIsNone(self.client.popup_text())
        self.put_right()
        self.key(key)
        self.client.wait_popup(3)

    def put_right(self):
        self.replace(FIRST, self.sound)
        self.add_calls(FIRST, 2)

    def test_escape_cancels(self):
        self.cancels('Escape')

    def test_return_cancels(self):
        self.cancels('Return')

    def test_alt_c_cancels(self):
        self.cancels('alt+c')

    def test_alt_i_ignores(self):
        self.key('alt+i')
        self.client.wait_popup_past_errors(1)

    def test_alt_d_shows_the_details_which_the_next_failure_shows_at_once(self):
        self.key('alt+d')
        self.wait_button('Details <<')
        self.key('Escape')
        self.wait_records(2)
        self.wait_button('Details <<')
        text = wait_until(lambda: self.desktop.objects(self.client.process, 'text', '^Module, Function:$'),
                          'the field of module and function')
        self.assertEqual(len(text), 1)

    def test_tab_and_space_press_a_button(self):
        self.key('shift+Tab', 'shift+Tab', 'space')  # from "Cancel" over "Try again" to "Ignore"
        self.client.wait_popup_past_errors(1)


class RetryKeyTest(ErrorTest):
    def test_alt_t_tries_again(self):
        self.break_first_poll()
        self.replace(FIRST, self.sound)
        self.key('alt+t')
        wait_until(lambda: not self.button(self.CANCEL), 'the dialog to go')
        self.client.open()
        self.client.wait_rows(12)


if __name__ == '__main__':
    unittest.main(verbosity=2)
