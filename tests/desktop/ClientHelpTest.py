# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Help and about box of the real client, opened as its user does."""
import pathlib
import shutil
import sys
import unittest

sys.dont_write_bytecode = True
from client import ABOUT, Client  # noqa: E402
from scene import FIRST, SceneTest  # noqa: E402
from site_folder import program  # noqa: E402

HELP = '^(Quillamar Client Help|Quillamar Client - Hilfe)$'
PRINT = '^(Print|Drucken)$'
ABOUT_TITLE = '^(About|Über) Quillamar Client$'


class HelpTest(SceneTest):
    contents = 'c'  # the access key in the help menu
    welcome = 'Welcome to Quillamar Client'

    def open_window(self):
        client = self.start({FIRST: 3})
        window = client.open()
        self.desktop.wait_active(window.title)
        return client

    def page(self, client):
        """What a screen reader calls the page that is shown."""
        return [o['name'] for o in self.desktop.objects(client.process, 'label', showing=True)]

    def test_the_help_menu_opens_the_help_which_prints(self):
        client = self.open_window()
        self.desktop.key('alt+h', self.contents)
        self.desktop.wait_window(HELP, pid=client.process.pid)
        self.desktop.wait_for(lambda: self.welcome in self.page(client), 'the welcome page')
        self.desktop.wait_active(HELP)
        self.desktop.key('ctrl+p')
        self.desktop.wait_window(PRINT, pid=client.process.pid)
        self.desktop.wait_active(PRINT)
        self.desktop.key('Escape')
        self.desktop.wait_no_window(PRINT)
        self.desktop.wait_active(HELP)
        self.desktop.key('Escape')
        self.desktop.wait_no_window(HELP)

    def test_about_is_opened_from_the_tray_and_closed_with_ok(self):
        client = self.start({FIRST: 3})
        client.choose(ABOUT)
        self.desktop.wait_window(ABOUT_TITLE, pid=client.process.pid)
        self.desktop.wait_active(ABOUT_TITLE)
        self.desktop.key('Return')
        self.desktop.wait_no_window(ABOUT_TITLE)
        self.assertTrue(client.alive)


class GermanHelpTest(HelpTest):
    lang = 'de_DE.UTF-8'
    contents = 'i'
    welcome = 'Willkommen beim Quillamar Client'


class DamagedHelpTest(SceneTest):
    def test_a_damaged_help_file_shows_nothing_and_the_client_goes_on(self):
        folder = self.desktop.folder / 'programs'
        folder.mkdir()
        for name in ('qmClient', 'qmshare'):
            shutil.copy(program(name), folder)
        whole = (pathlib.Path(program('qmClient')).parent / 'Quillamar_Client.chm').read_bytes()
        (folder / 'Quillamar_Client.chm').write_bytes(whole[:0x300] + b'\xff' * 0x20 + whole[0x320:])
        self.make_mailbox(FIRST, 3)
        self.write_settings([FIRST])
        client = Client(self.desktop, folder / 'qmClient')
        client.open()
        client.wait_rows(3)
        self.desktop.wait_active('Quillamar Calls')
        self.desktop.key('alt+h', 'c')
        # The next command is carried out after it, so the help had its time.
        self.desktop.key('ctrl+a')
        self.add_calls(FIRST, 1)
        client.wait_popup(1)
        self.assertIsNone(self.desktop.windows.find(HELP))


if __name__ == '__main__':
    unittest.main(verbosity=2)
