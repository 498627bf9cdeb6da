# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client's options: the first start, choosing mailboxes by mouse and keyboard, a share that hangs.

What the dialog looks like is kept in the build folder: artefacts/options.
"""
import os
import pathlib
import sys
import unittest

sys.dont_write_bytecode = True
from client import CONFIG, Client  # noqa: E402
from desktop import Desktop, wait_until  # noqa: E402
from options import CANCEL, OK, Options  # noqa: E402
from samba import Samba  # noqa: E402
from scene import FIRST, SECOND, SceneTest, run  # noqa: E402
from site_folder import BIN, SERVER, mailbox_folder, read_settings, settings_file, write_settings  # noqa: E402

ARTEFACTS = BIN.parent / 'artefacts' / 'options'
CHOICE = '^(Select Quillamar Server|Quillamar-Server wählen)$'
# The colours of a dark desktop, as its settings hold them.
DARK = {'Window': '42,46,50', 'View': '27,30,32', 'Button': '49,54,59', 'Tooltip': '49,54,59'}


def keep_picture(options, name):
    ARTEFACTS.mkdir(parents=True, exist_ok=True)
    window = options.window()
    options.desktop.screenshot(ARTEFACTS / f'{name}.png', (window.x, window.y, window.width, window.height))


class OptionsTest(SceneTest):
    def settings_file(self):
        return settings_file(self.desktop.env['XDG_CONFIG_HOME'])

    def settings(self):
        return read_settings(self.desktop.env['XDG_CONFIG_HOME'])

    def start_anew(self):
        """A client that nobody has told anything yet."""
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self.server(), {}, server='')
        return Client(self.desktop)

    def server(self):
        return self.share

    def make_mailboxes(self):
        self.add_calls(FIRST, 3)
        self.add_calls(SECOND, 2)
        (self.share / 'MBX' / 'Archive').mkdir()


class FirstStartTest(OptionsTest):
    def test_a_first_start_asks_for_the_server_and_the_mailboxes_and_lists_and_polls_them(self):
        self.make_mailboxes()
        client, options = self.start_anew(), None
        self.desktop.wait_active(CHOICE, seconds=30)
        self.desktop.type(SERVER)
        self.desktop.key('Return')
        options = Options(client)
        options.wait_mailboxes([FIRST, SECOND])
        options.tick_with_the_mouse(0)
        self.desktop.key('Down', 'Down', 'space')  # a click on a box checks it and selects nothing
        keep_picture(options, 'chosen')
        self.desktop.key('Return')
        options.wait_closed()
        client.open()
        client.wait_rows(3)
        self.assertEqual(client.tabs(), ['Mailbox 12', 'Mailbox 15'])
        self.check_settings()
        self.poll(client)

    def check_settings(self):
        settings = self.settings()
        self.assertEqual(settings['Client'], {'ServerName': f'"{SERVER}"', 'PollInterval': 'dword:0000000a'})
        boxes = {key: values for key, values in settings.items() if key.startswith('Client\\Mailboxes\\')}
        self.assertEqual(boxes, {f'Client\\Mailboxes\\{number}': {
            'Name': f'"Mailbox {number}"', 'Description': '"A mailbox of the demo server"', 'MailboxType': '"M"'}
            for number in (FIRST, SECOND)})

    def poll(self, client):
        client.hide()
        self.add_calls(SECOND, 2)
        self.assertEqual(client.wait_popup(seconds=40), 'You have  2  new calls')

    def test_a_choice_that_is_cancelled_ends_in_an_empty_dialog_and_without_a_connection(self):
        client = self.start_anew()
        self.desktop.wait_active(CHOICE, seconds=30)
        self.desktop.key('Escape')
        options = Options(client)
        options.wait_mailboxes([])
        self.desktop.key('Escape')
        options.wait_closed()
        client.open()
        client.wait_line('A connection to the server could not be established.')

    def test_ends_when_the_tray_asks_it_to_while_the_first_dialog_is_up(self):
        client = self.start_anew()
        self.desktop.wait_active(CHOICE, seconds=30)
        client.process.popen.terminate()
        self.assertEqual(client.process.wait(10), 0)


class ChangeTest(OptionsTest):
    def open_options(self, watched=(FIRST,)):
        self.make_mailboxes()
        client = self.start_with(watched)
        client.choose(CONFIG)
        return client, Options(client)

    def start_with(self, watched):
        self.write_settings(watched, seconds=10)
        return Client(self.desktop)

    def test_an_interval_is_typed_and_its_leading_number_stored(self):
        _, options = self.open_options()
        options.wait_mailboxes([FIRST, SECOND])
        field = options.objects('text', '^Update-Interval')[0]
        self.desktop.click_object(field, options.window())
        self.desktop.key('ctrl+a')
        self.desktop.type('45s')
        self.desktop.key('Return')
        options.wait_closed()
        wait_until(lambda: self.settings()['Client']['PollInterval'] == 'dword:0000002d', 'the interval to be stored')
        self.assertIn(f'Client\\Mailboxes\\{FIRST}', self.settings())

    def test_cancel_stores_nothing(self):
        _, options = self.open_options()
        options.wait_mailboxes([FIRST, SECOND])
        before = self.settings_file().read_bytes()
        options.tick_with_the_mouse(0)
        options.press(CANCEL)
        options.wait_closed()
        self.assertEqual(self.settings_file().read_bytes(), before)


class SmbOptionsTest(OptionsTest):
    """The share is reached by SMB alone."""

    def setUp(self):
        super().setUp()
        self.make_mailboxes()
        self.samba = Samba(self.desktop, self.share)
        self.addCleanup(self.samba.go_on)  # a stopped process does not end

    def server(self):
        return self.samba.address

    def test_a_server_that_hangs_leaves_the_dialog_alive_and_the_list_comes_when_it_goes_on(self):
        for number in range(100, 200):
            os.link(mailbox_folder(self.share, FIRST) / 'qmLog.mdb', self.folder_of(number) / 'qmLog.mdb')
        client = self.start_and_stop_the_server()
        client.choose(CONFIG)
        options = Options(client)
        options.window()
        self.assertFalse(options.can_confirm())
        keep_picture(options, 'searching')
        options.press(CANCEL)
        options.wait_closed()
        self.samba.go_on()
        client.choose(CONFIG)
        options.wait_mailboxes([FIRST, SECOND, *range(100, 200)], 90)
        self.assertTrue(options.can_confirm())

    def start_and_stop_the_server(self):
        """A client that reached its server and has no mailbox to ask for; the server hangs from now on."""
        client = self.start_without_calls('There are currently no mailboxes configured.', numbers=(),
                                          share=self.samba.address, seconds=600)
        self.samba.stop()
        return client

    def folder_of(self, number):
        folder = mailbox_folder(self.share, number)
        folder.mkdir()
        return folder

    def test_ends_at_once_while_it_looks_for_mailboxes(self):
        client = self.start_and_stop_the_server()
        client.choose(CONFIG)
        Options(client).window()
        client.process.popen.terminate()
        self.assertEqual(client.process.wait(5), 0)


class PictureTest(unittest.TestCase):
    """One for each language, scale and theme."""

    def take(self, name, lang, scale, dark=False):
        with Desktop('1800x1200', lang=lang, tray='trayer', accessibility=True) as desktop:
            share = desktop.folder / 'share'
            (share / 'MBX').mkdir(parents=True)
            for number in (FIRST, SECOND):
                run('qmdemo', share, '--mailbox', number, '--calls', 1, '--every', '0.001')
            env = {'QT_SCALE_FACTOR': str(scale)}
            write_settings(desktop.env['XDG_CONFIG_HOME'], share, {FIRST: 'Reception'}, seconds=60)
            if dark:
                self.darken(desktop)
                env |= {'XDG_CURRENT_DESKTOP': 'KDE', 'KDE_SESSION_VERSION': '5'}
            client = Client(desktop, env=env)
            client.choose(CONFIG)
            options = Options(client)
            options.wait_mailboxes([FIRST, SECOND])
            keep_picture(options, name)
            window = options.window()
            self.assertLessEqual(window.width, 1800)
            self.assertLessEqual(window.height, 1200)

    @staticmethod
    def darken(desktop):
        text = ''.join(f'[Colors:{name}]\nBackgroundNormal={back}\nForegroundNormal=252,252,252\n\n'
                       for name, back in DARK.items())
        (pathlib.Path(desktop.env['XDG_CONFIG_HOME']) / 'kdeglobals').write_text(text, encoding='ascii')

    def test_english(self):
        self.take('english', 'C.UTF-8', 1)

    def test_english_at_200_percent(self):
        self.take('english-200', 'C.UTF-8', 2)

    def test_german(self):
        self.take('german', 'de_DE.UTF-8', 1)

    def test_german_at_200_percent(self):
        self.take('german-200', 'de_DE.UTF-8', 2)

    def test_dark(self):
        self.take('dark', 'C.UTF-8', 1, dark=True)


if __name__ == '__main__':
    unittest.main()
