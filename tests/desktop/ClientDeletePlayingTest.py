# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client deletes all entries of a mailbox while one of its messages is heard; also by SMB alone."""
import os
import pathlib
import sys
import unittest
import wave

sys.dont_write_bytecode = True
from delete_question import DeleteQuestion  # noqa: E402
from desktop.hearing import RATE  # noqa: E402
from play_scene import PlayScene  # noqa: E402
from samba import Samba  # noqa: E402
from site_folder import mailbox_folder  # noqa: E402


def lengthen(path, times):
    with wave.open(str(path)) as file:
        how, frames = file.getparams(), file.readframes(file.getnframes())
    with wave.open(str(path), 'wb') as file:
        file.setparams(how)
        file.writeframes(frames * times)
    return how.nframes * times / how.framerate


class DeletePlayingTest(DeleteQuestion, PlayScene):
    def messages(self, number):
        return sorted(mailbox_folder(self.share, number).glob('*.wav'))

    def start_playing(self):
        """The client in the middle of a message of a minute and more."""
        self.client = self.start_client(mailboxes=2)
        row, self.file = self.row_of_message((9, 12))
        self.seconds = lengthen(self.file, 8)
        self.client.double_click(row)
        self.client.wait_position(3)

    def open_messages(self):
        """What the client and the processes of the server have open of them."""
        found = []
        for link in pathlib.Path('/proc').glob('[0-9]*/fd/*'):
            try:
                target = os.readlink(link)
            except OSError:
                continue
            if target.startswith(str(self.share)) and '.wav' in target:
                found.append(target)
        return found

    def test_a_message_that_is_heard_is_stopped_and_deleted_without_a_word(self):
        self.start_playing()
        others = self.messages(self.numbers[1])
        self.assertTrue(others)
        recording = self.sound.record()
        self.ask()
        self.assertEqual(self.sound.streams(), 1, 'it plays on while the question is up')
        self.answer_ok()
        self.client.wait_rows(0, 30)
        self.assertEqual(self.client.position()[1], '')
        self.assertEqual(self.sound.streams(), 0)
        sound = len(recording.finish()) / RATE
        self.assertGreater(sound, 0)
        self.assertLess(sound, self.seconds / 2)
        self.assertEqual(self.messages(self.number), [])
        self.assertEqual(self.open_messages(), [])
        self.assertEqual(self.calls_by_mdbtools(self.number), [])
        self.assertEqual(self.messages(self.numbers[1]), others)
        self.assertEqual(self.log(), '')
        self.assertEqual(self.desktop.windows.active().title, self.client.window().title)


class SmbDeletePlayingTest(DeletePlayingTest):
    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share)

    def server_address(self):
        return self.samba.address


if __name__ == '__main__':
    unittest.main(verbosity=2)
