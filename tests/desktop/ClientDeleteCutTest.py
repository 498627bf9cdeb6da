# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The line to the server is cut while the real client deletes all entries: what its user sees and can do."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from delete_question import DeleteQuestion  # noqa: E402
from relay import WRITE, Relay  # noqa: E402
from samba import Samba  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402
from site_folder import BIN, database, mailbox_folder  # noqa: E402

CALLS = 5


class DeleteCutTest(DeleteQuestion, SceneTest):
    def setUp(self):
        super().setUp()
        self.line = Relay(Samba(self.desktop, self.share).port)
        self.addCleanup(self.line.close)

    def delete_with_cut_at(self, write):
        """Until the error dialog stands there."""
        for number in (FIRST, SECOND):
            self.add_calls(number, CALLS)
        self.write_settings((FIRST, SECOND), share=self.line.address)
        self.client = Client(self.desktop)
        self.client.open()
        self.client.wait_rows(CALLS)
        self.ask()
        self.line.cut_at(WRITE, write)
        self.answer_ok()
        self.line.wait_for_it()
        self.desktop.wait_for(lambda: 'ab_ToolClick' in self.log(), 'the failure to be reported', 20)
        self.assertIn('57', self.log())

    def answer(self, button):
        self.desktop.wait_for(lambda: self.client.answer_error(button), 'the error dialog', 20)

    def sounds(self):
        return sorted(mailbox_folder(self.share, FIRST).glob('*.wav'))

    def check(self):
        self.assertIn('sound', self.desktop.run([str(BIN / 'qmjet'), 'check', database(self.share, FIRST)]))

    def test_before_the_switch_the_entries_stay_and_trying_again_deletes_them(self):
        self.delete_with_cut_at(2)
        self.assertEqual(len(self.calls_by_mdbtools(FIRST)), CALLS)
        self.check()
        self.assertTrue(self.sounds())
        self.answer('^Try again$')
        self.client.wait_rows(0, 30)
        self.assertEqual(self.calls_by_mdbtools(FIRST), [])
        self.assertEqual(self.sounds(), [])
        self.check()
        self.assertEqual(self.log().count('ab_ToolClick'), 1)

    def test_ignored_the_entries_and_their_messages_stay(self):
        self.delete_with_cut_at(1)
        sounds = self.sounds()
        self.answer('^Ignore$')
        self.desktop.wait_for(lambda: self.client.row_count() == CALLS, 'the list to be there', 20)
        self.assertEqual(len(self.calls_by_mdbtools(FIRST)), CALLS)
        self.assertEqual(self.sounds(), sounds)
        self.check()


if __name__ == '__main__':
    unittest.main(verbosity=2)
