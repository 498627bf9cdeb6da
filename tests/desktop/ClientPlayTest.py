# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client plays messages of the demo share; what the device plays is recorded."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import CLOSE  # noqa: E402
from play_scene import FAILED, PlayScene  # noqa: E402


class PlayTest(PlayScene):
    no_device = 'No audio device present on this system. Cannot play!'
    not_found = 'The audio file could not be found.'

    def test_double_click_plays_a_message_whole_and_the_marker_moves(self):
        self.client = self.start_client()
        row, file = self.row_of_message()
        recording = self.sound.record()
        self.client.double_click(row)
        spoken = []
        for moment in (10, 45, 80):
            self.client.wait_position(moment)
            self.picture(f'{moment}-percent')
            spoken.append(self.client.position()[1])
        self.client.wait_silent()
        self.picture('ended')
        self.check_heard(recording.finish(), file)
        self.assertEqual(len(set(spoken)), 3)
        self.assertEqual(self.sound.streams(), 0)

    def test_pause_keeps_the_place_and_stop_ends(self):
        self.client = self.start_client()
        row, _ = self.row_of_message()
        self.client.double_click(row)
        self.client.wait_position(10)
        self.client.press('^Pause$')
        paused = self.desktop.wait_for(self.place_that_stays, 'the player to pause')
        self.client.double_click(row)
        self.client.wait_position(paused + 5)
        self.client.press('^(Stop|Anhalten)$')
        self.client.wait_silent(5)
        self.desktop.wait_for(lambda: self.sound.streams() == 0, 'the device to be let go')

    def place_that_stays(self):
        """The position, once two looks with a picture in between find the same."""
        before = self.client.position()
        self.picture('paused')
        return before[0] if before == self.client.position() else None

    def test_a_missing_message_is_said(self):
        self.client = self.start_client()
        row, file = self.row_of_message()
        file.unlink()
        self.client.double_click(row)
        self.message_box(self.not_found)
        self.assertEqual(self.client.position()[1], '')

    def test_without_a_sound_server_it_is_said_once_and_the_next_play_works(self):
        self.client = self.start_client(sound=False)
        row, file = self.row_of_message()
        self.client.double_click(row)
        self.message_box(self.no_device)
        self.message_box(FAILED)
        self.sound.start()
        self.play_whole(row, file)

    def test_ends_by_the_tray_while_a_message_plays(self):
        self.client = self.start_client()
        row, _ = self.row_of_message()
        self.client.double_click(row)
        self.client.wait_position(5)
        self.client.hide()
        self.client.choose(CLOSE)
        self.assertEqual(self.client.process.wait(5), 0)
        self.desktop.wait_for(lambda: self.sound.streams() == 0, 'the device to be let go')


class GermanPlayTest(PlayTest):
    lang = 'de_DE.UTF-8'
    no_device = 'Auf diesem System ist kein Audiogerät vorhanden. Die Nachricht kann nicht abgespielt werden!'
    not_found = 'Die Audio-Datei konnte nicht gefunden werden.'
    language = 'de'


if __name__ == '__main__':
    unittest.main(verbosity=2)
