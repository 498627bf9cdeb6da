# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A client over the messages of the demo share, with a device whose sound is recorded.

Pictures of the window while a message plays are left in pictures/player/ beside the programs' folder.
"""
from client import Client
from desktop.hearing import RATE, likeness, message, save, unlike
from desktop.sound import SoundServer
from scene import SceneTest, run
from site_folder import BIN, mailbox_folder, write_settings

PICTURES = BIN.parent / 'pictures' / 'player'
REGISTRY = BIN.parent / 'gst-registry.bin'  # what plug-ins there are is looked up once, not by each client
FAILED = '(Error playing audio file!|Fehler beim Abspielen der Audio-Datei.)'


class PlayScene(SceneTest):
    language = 'en'

    def setUp(self):
        super().setUp()
        self.desktop.env['GST_REGISTRY'] = str(REGISTRY)
        self.sound = SoundServer(self.desktop)

    def server_address(self):
        """What the administrator writes for the server: a folder of this machine unless a test says otherwise."""
        return self.share

    def start_client(self, sound=True, mailboxes=1):
        """Over so many mailboxes of the demo share, the first one's list shown."""
        if sound:
            self.sound.start()
        run('qmdemo', self.share, '--once')
        self.numbers = sorted(int(entry.name) for entry in (self.share / 'MBX').iterdir())[:mailboxes]
        self.number = self.numbers[0]
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self.server_address(),
                       {number: f'Mailbox {number}' for number in self.numbers}, 600)
        client = Client(self.desktop)
        client.open()
        self.calls = self.calls_by_mdbtools(self.number)[::-1]
        client.wait_rows(len(self.calls), 30)
        return client

    def row_of_message(self, seconds=(5, 12)):
        """The first row of the list whose message has about so many seconds, and its file."""
        for row, call in enumerate(self.calls):
            if seconds[0] <= int(call['MessageLength']) <= seconds[1]:
                return row, mailbox_folder(self.share, self.number) / f'{call["CallID"]}.wav'
        self.fail('no such message in the demo share')

    def play_whole(self, row, file):
        recording = self.sound.record()
        self.client.double_click(row)
        self.client.wait_position(10)
        self.client.wait_silent()
        self.check_heard(recording.finish(), file)

    def check_heard(self, sound, file):
        """The whole message and nothing else; what was heard instead is left beside the pictures."""
        wanted = message(file)
        alike = likeness(sound, wanted)
        if alike <= 0.99 or abs(len(sound) - len(wanted)) > 0.03 * RATE:
            PICTURES.mkdir(parents=True, exist_ok=True)
            save(sound, PICTURES / f'{self.id()}-heard.wav')
            save(wanted, PICTURES / f'{self.id()}-wanted.wav')
            self.fail(f'likeness {alike:.4f}, {unlike(sound, wanted)}')

    def picture(self, name):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.desktop.screenshot(PICTURES / f'{self.language}-{name}.png')

    def message_box(self, text):
        """Waits for a message box and answers it."""
        self.desktop.wait_for(lambda: self.desktop.objects(self.client.process, 'label', f'^{text}$'),
                              f'the message {text!r}', 20)
        self.picture('message')
        self.desktop.wait_for(lambda: self.desktop.windows.active() and
                              self.desktop.windows.active().pid == self.client.process.pid, 'the focus')
        self.desktop.key('Return')
        self.desktop.wait_for(lambda: not self.desktop.objects(self.client.process, 'label', f'^{text}$'),
                              'the message to close')
