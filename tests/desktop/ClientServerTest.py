# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client's dialog for the server, the network browser behind it and the question for a password.

What they look like is kept in the build folder: artefacts/server.
"""
import os
import sys
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from options import Options  # noqa: E402
from samba import PASSWORD  # noqa: E402
from scene import FIRST, SECOND  # noqa: E402
from site_folder import BIN, SERVER, write_settings  # noqa: E402
from smb_scene import SmbScene  # noqa: E402

ARTEFACTS = BIN.parent / 'artefacts' / 'server'
CHOICE = '^(Select Quillamar Server|Quillamar-Server wählen)$'
BROWSER = '^(Browse Network|Netzwerk durchsuchen)$'
PROGRAM = '^Quillamar Client$'
UNREACHABLE = "Unable to connect to Quillamar Server:  '\\\\nowhere.invalid\\Quillamar_0$'."


class ServerScene(SmbScene):
    def start_anew(self):
        """A client that nobody has told anything yet, at its first question."""
        self.add_calls(FIRST, 3)
        self.add_calls(SECOND, 2)
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self.samba.address, {}, server='')
        client = Client(self.desktop)
        self.wait_choice()
        return client

    def wait_choice(self):
        return self.desktop.wait_active(CHOICE, seconds=30)

    def choose_server(self, name):
        self.desktop.key('ctrl+a')
        self.desktop.type(name)
        self.desktop.key('Return')


class ServerTest(ServerScene):
    def test_a_server_that_is_reached_is_taken(self):
        client = self.start_anew()
        self.choose_server(SERVER)
        Options(client).wait_mailboxes([FIRST, SECOND])
        self.assertIsNone(self.desktop.windows.find(CHOICE))

    def test_an_unreachable_server_is_told_and_the_dialog_stays_for_another_one(self):
        client = self.start_anew()
        self.choose_server('nowhere.invalid')
        self.desktop.wait_active(PROGRAM, seconds=30)
        self.assertEqual([o['name'] for o in self.desktop.objects(client.process, 'label', '^Unable')], [UNREACHABLE])
        self.desktop.key('Return')
        self.wait_choice()
        self.choose_server(SERVER)
        Options(client).wait_mailboxes([FIRST, SECOND])

    def test_a_cancelled_browser_leaves_the_name_as_it_was(self):
        client = self.start_anew()
        self.desktop.type('srv')
        self.desktop.key('Tab', 'space')
        self.desktop.wait_active(BROWSER)
        self.desktop.key('Escape')
        self.wait_choice()
        self.desktop.key('shift+Tab', 'End')
        self.desktop.type('01')
        self.desktop.key('Return')
        Options(client).wait_mailboxes([FIRST, SECOND])

    def test_ends_while_the_server_is_asked(self):
        client = self.start_anew()
        self.samba.stop()
        self.choose_server(SERVER)
        client.process.popen.terminate()
        self.assertEqual(client.process.wait(2), 0)  # less than a request may take

    def test_ends_though_the_choice_is_confirmed_while_it_ends(self):
        client = self.start_anew()
        self.desktop.type('nowhere.invalid')
        client.process.popen.terminate()
        self.desktop.key('Return')
        self.assertEqual(client.process.wait(10), 0)


class PasswordTest(ServerScene):
    guests = False

    def test_asks_who_logs_on_before_it_says_that_a_server_cannot_be_reached(self):
        client = self.start_anew()
        self.choose_server(SERVER)
        self.answer('wrong')
        self.answer(PASSWORD)
        Options(client).wait_mailboxes([FIRST, SECOND])
        self.assertEqual(self.wrong_log_ons(), 1)

    def test_a_cancelled_question_is_a_server_that_is_not_reached_and_is_asked_again(self):
        client = self.start_anew()
        self.choose_server(SERVER)
        self.wait_question()
        self.desktop.key('Escape')
        self.desktop.wait_active(PROGRAM)
        self.desktop.key('Return')
        self.wait_choice()
        self.desktop.key('Return')
        self.answer(PASSWORD)
        Options(client).wait_mailboxes([FIRST, SECOND])


class PictureTest(ServerScene):
    guests = False
    size = '1280x900'

    def keep(self, name, window):
        ARTEFACTS.mkdir(parents=True, exist_ok=True)
        path = ARTEFACTS / f'{name}-{self.lang[:2]}.png'

        def is_painted():
            self.desktop.screenshot(path, (window.x, window.y, window.width, window.height))
            return os.path.getsize(path) > 1000
        wait_until(is_painted, f'{name} to be painted')

    def test_english_or_german(self):
        client = self.start_anew()
        self.keep('frmServer', self.wait_choice())
        self.desktop.key('Tab', 'space')
        self.keep('browser', self.desktop.wait_active(BROWSER))
        self.desktop.key('Escape')
        self.wait_choice()
        self.desktop.key('shift+Tab')
        self.choose_server(SERVER)
        self.wait_question()
        wait_until(lambda: self.desktop.objects(client.process, 'check box'), 'the dialog to be there')
        self.keep('LogOn', self.wait_question())


class GermanPictureTest(PictureTest):
    lang = 'de_DE.UTF-8'


if __name__ == '__main__':
    unittest.main(verbosity=2)
