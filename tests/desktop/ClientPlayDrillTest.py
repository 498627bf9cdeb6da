# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client plays a message from a server that is killed meanwhile, and one of a server that hangs."""
import sys
import unittest

sys.dont_write_bytecode = True
from play_scene import FAILED, PlayScene  # noqa: E402
from samba import Samba  # noqa: E402


class PlayDrillTest(PlayScene):
    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share)
        self.addCleanup(self.samba.go_on)  # a stopped process does not end

    def server_address(self):
        return self.samba.address

    def test_a_message_plays_to_its_end_when_the_server_is_killed_and_again_when_it_is_back(self):
        self.client = self.start_client()
        row, file = self.row_of_message()
        recording = self.sound.record()
        self.client.double_click(row)
        self.client.wait_position(10)
        self.samba.kill()
        self.client.wait_silent()
        self.check_heard(recording.finish(), file)
        self.samba.start()
        self.play_whole(row, file)

    def test_a_message_of_a_server_that_hangs_is_said_and_plays_when_it_goes_on(self):
        self.client = self.start_client()
        row, file = self.row_of_message()
        self.samba.stop()
        self.client.double_click(row)
        self.message_box(f'(The audio file could not be found.|{FAILED})')
        self.samba.go_on()
        self.play_whole(row, file)


if __name__ == '__main__':
    unittest.main(verbosity=2)
