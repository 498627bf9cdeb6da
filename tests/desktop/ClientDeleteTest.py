# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client deletes all entries of a mailbox on a demo share, by keyboard and mouse; also by SMB alone.

Pictures of the question and of the emptied list are left in pictures/delete/ beside the programs' folder.
"""
import sys
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from delete_question import DeleteQuestion  # noqa: E402
from samba import Samba  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402
from site_folder import BIN, database, mailbox_folder  # noqa: E402

PICTURES = BIN.parent / 'pictures' / 'delete'


class DeleteTest(DeleteQuestion, SceneTest):
    language = 'en'

    def start_client(self):
        """Over two mailboxes with five calls each and their messages, the first one's list shown."""
        for number in (FIRST, SECOND):
            self.add_calls(number, 5)
            (mailbox_folder(self.share, number) / 'LOUD.WAV').write_bytes(b'RIFF')
        self.write_settings((FIRST, SECOND))
        self.client = Client(self.desktop)
        self.client.open()
        self.client.wait_rows(5)

    def ask(self):
        super().ask()
        self.picture('question')

    def sounds(self, number):
        return sorted(path for path in mailbox_folder(self.share, number).iterdir()
                      if path.suffix.lower() == '.wav')

    def picture(self, name):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.desktop.screenshot(PICTURES / f'{self.language}-{name}.png')

    def test_ok_empties_the_log_and_takes_its_messages_along(self):
        self.start_client()
        self.assertTrue(self.sounds(FIRST))
        others = self.keep(SECOND), self.sounds(SECOND)
        self.ask()
        self.answer_ok()
        self.client.wait_rows(0)
        self.picture('emptied')
        self.assertEqual(self.calls_by_mdbtools(FIRST), [])
        self.assertEqual(self.sounds(FIRST), [])
        self.assertEqual((self.keep(SECOND), self.sounds(SECOND)), others)
        self.assertIn('sound', self.desktop.run([str(BIN / 'qmjet'), 'check', database(self.share, FIRST)]))

    def test_the_server_goes_on_with_the_next_number(self):
        self.start_client()
        self.ask()
        self.answer_ok()
        self.client.wait_rows(0)
        self.add_calls(FIRST, 6)  # one more than were counted last: that one is announced
        self.client.wait_popup(1)
        self.assertEqual([call['ID'] for call in self.calls_by_mdbtools(FIRST)],
                         [str(number) for number in range(6, 12)])

    def test_return_cancels_and_changes_nothing(self):
        self.start_client()
        before = self.keep(FIRST), self.sounds(FIRST)
        self.ask()
        self.desktop.key('Return')
        self.desktop.wait_for(lambda: not self.is_asked(), 'the question to close')
        self.assertEqual((self.keep(FIRST), self.sounds(FIRST)), before)
        self.assertEqual(self.client.row_count(), 5)


class GermanDeleteTest(DeleteTest):
    lang = 'de_DE.UTF-8'
    language = 'de'
    menu = ('alt+b', 'l')
    question = 'Sind Sie sicher, dass Sie alle Einträge löschen möchten?'


class SmbDeleteTest(DeleteTest):
    language = 'smb'

    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share)

    def write_settings(self, numbers, **settings):
        super().write_settings(numbers, share=self.samba.address, **settings)


if __name__ == '__main__':
    unittest.main(verbosity=2)
