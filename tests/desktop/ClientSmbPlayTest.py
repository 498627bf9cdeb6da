# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client plays messages that it reads by SMB: at once, over a slow line, from a server that dies."""
import array
import math
import signal
import sys
import unittest
import wave

sys.dont_write_bytecode = True
from desktop import wait_until  # noqa: E402
from desktop.hearing import RATE  # noqa: E402
from play_scene import FAILED, PlayScene  # noqa: E402
from samba import Samba  # noqa: E402
from relay import Relay  # noqa: E402

SLOW = 40_000  # bytes a second: each request is answered in its time, a long message takes half a minute
UNDER_WAY = 150_000  # bytes, of which a part was the message


def make_long_message(path):
    """A minute of a tone that rises, so that no stretch of it is like another."""
    samples = array.array('h', (int(16000 * math.cos((300 + 10 * i / RATE) * i * 2 * math.pi / RATE))
                                for i in range(60 * RATE)))
    with wave.open(str(path), 'wb') as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())


class SmbPlayTest(PlayScene):
    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share)
        self.line = Relay(self.samba.port)
        self.addCleanup(self.line.close)

    def server_address(self):
        return self.line.address

    def start_reading(self):
        """The client in the middle of a message that takes long to read."""
        self.client = self.start_client()
        row, self.file = self.row_of_message()
        make_long_message(self.file)
        self.line.slow(SLOW)
        self.client.double_click(row)
        wait_until(lambda: self.line.passed > UNDER_WAY, 'the message to be under way', 30)
        return row

    def look_at(self, region):
        """The pixels of a part of the screen."""
        picture = self.desktop.screenshot(self.desktop.folder / 'region.png', region)
        pixels = self.desktop.folder / 'region.rgb'
        self.desktop.run(['convert', picture, f'rgb:{pixels}'])
        return pixels.read_bytes()

    def test_a_message_is_heard_whole_though_the_server_dies_meanwhile(self):
        self.client = self.start_client()
        row, file = self.row_of_message()
        recording = self.sound.record()
        self.client.double_click(row)
        self.client.wait_position(20)
        self.samba.kill()
        self.client.wait_silent()
        self.check_heard(recording.finish(), file)

    def test_the_window_paints_while_a_message_is_read(self):
        self.client = self.start_client()
        window = self.client.window()
        region = (window.x + 30, window.y + window.height // 2, 300, 120)
        before = self.look_at(region)
        row, file = self.row_of_message()
        make_long_message(file)
        self.line.slow(SLOW)
        self.client.double_click(row)
        wait_until(lambda: self.line.passed > UNDER_WAY, 'the message to be under way', 30)
        other = self.desktop.start(['xev', '-geometry', f'340x160+{region[0] - 20}+{region[1] - 20}'])
        wait_until(lambda: self.look_at(region) != before, 'another window to cover the list')
        other.end()
        wait_until(lambda: self.look_at(region) == before, 'the list to be painted again')
        self.assertLess(self.line.passed, file.stat().st_size)
        self.line.fast()
        self.client.wait_position(1)

    def test_ends_while_a_message_is_read(self):
        self.start_reading()
        self.client.process.popen.send_signal(signal.SIGTERM)
        self.assertEqual(self.client.process.wait(10), 0)
        self.assertLess(self.line.passed, self.file.stat().st_size)
        self.assertEqual(self.log(), '')

    def test_a_server_that_dies_in_the_middle_is_reported_and_the_next_play_works(self):
        row = self.start_reading()
        self.samba.kill()
        for procedure in ('clsWave.AddRegFilter', 'clsWave.PlayWave'):
            wait_until(lambda name=procedure: name in self.log(), f'{procedure} in the log', 20)
            wait_until(lambda: self.client.answer_error('^Cancel$'), 'an error dialog')
        self.message_box(FAILED)
        self.assertEqual(self.sound.streams(), 0)
        self.line.fast()
        self.samba.start()
        self.client.double_click(row)
        self.client.wait_position(1)


if __name__ == '__main__':
    unittest.main(verbosity=2)
