# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client in a session whose manager has it save, go on or end, over the X protocol for that."""
import contextlib
import os
import pathlib
import sys
import unittest

sys.dont_write_bytecode = True
from client import CONFIG, SHOW, TITLE, Client  # noqa: E402
from desktop.processes import MARK  # noqa: E402
from desktop.session import Session  # noqa: E402
from details import Details, English  # noqa: E402
from options import TITLE as OPTIONS  # noqa: E402
from options import Options  # noqa: E402
from play_scene import PlayScene  # noqa: E402
from samba import PASSWORD  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402
from site_folder import BIN, settings_file  # noqa: E402
from smb_scene import SmbScene  # noqa: E402

QUESTION = '^Delete All Items$'
ERROR = '^Quillamar Client$'


class SessionScene(SceneTest):
    def setUp(self):
        super().setUp()
        self.session = Session(self.desktop)
        self.addCleanup(self.session.end)

    def make_mailbox(self, number, calls):
        """One that the settings and the details can read in full."""
        self.add_calls(number, calls)

    def log_out(self, client):
        """The program says at once that it has saved, and is told to go once everybody has."""
        settings = settings_file(self.desktop.env['XDG_CONFIG_HOME']).read_bytes()
        self.assertTrue(self.session.save(shutdown=True))
        self.session.die()
        self.ends(client)
        self.assertTrue(self.session.member()['closed'])
        self.assertEqual(settings_file(self.desktop.env['XDG_CONFIG_HOME']).read_bytes(), settings)

    def ends(self, client):
        """As by its own menu: nothing stays behind, and nobody was bothered."""
        self.assertEqual(client.process.wait(15), 0)
        self.desktop.wait_for(lambda: not self.desktop.tray.icons(), 'the icon to go')
        self.assertEqual(self.windows_of(client), [])
        self.assertEqual(self.programs(), [])
        self.assertEqual(client.process.errors(), '')

    def windows_of(self, client):
        return [w.title for w in self.desktop.windows.all() if w.pid == client.process.pid]

    def programs(self):
        """What runs of our build on this desktop."""
        mark, found = f'{MARK}={self.desktop.folder}'.encode(), []
        for process in pathlib.Path('/proc').glob('[0-9]*'):
            with contextlib.suppress(OSError):
                program = pathlib.Path(os.readlink(process / 'exe'))
                if program.parent == BIN.resolve() and mark in (process / 'environ').read_bytes().split(b'\0'):
                    found.append(program.name)
        return found

    def counts_on(self, client):
        self.add_calls(FIRST, 1)
        client.wait_popup(1)
        client.click_link(SHOW)
        client.wait_no_popup()


class LogOutTest(SessionScene):
    def test_joins_under_its_name(self):
        self.start({FIRST: 1})
        properties = self.session.member()['properties']
        self.assertEqual(properties['Program'], [str(BIN / 'qmClient')])
        self.assertEqual(properties['RestartCommand'][:2], [str(BIN / 'qmClient'), '-session'])

    def test_with_the_window_hidden(self):
        client = self.start({FIRST: 3})
        self.assertEqual(self.programs(), ['qmClient'])
        self.log_out(client)

    def test_with_the_window_and_the_details_open(self):
        client = self.start({FIRST: 3, SECOND: 2})
        client.open()
        details = Details(client, English)
        details.open_by_context_menu(1)
        details.wait_shown(self.calls_by_mdbtools(FIRST)[1])
        self.log_out(client)

    def test_with_calls_announced(self):
        client = self.start({FIRST: 3})
        self.add_calls(FIRST, 2)
        client.wait_popup(2)
        self.log_out(client)

    def test_with_the_tray_menu_open(self):
        client = self.start({FIRST: 3})
        client.open_menu()
        self.log_out(client)

    def test_with_the_settings_open_that_were_changed(self):
        client = self.start({FIRST: 3})
        client.choose(CONFIG)
        options = Options(client)
        options.wait_mailboxes([FIRST])
        options.tick_with_the_mouse(0)
        self.log_out(client)

    def test_with_a_question_open_that_counts_as_answered_with_no(self):
        client = self.start({FIRST: 3})
        client.open()
        self.desktop.key('alt+e', 'd')
        self.desktop.wait_active(QUESTION, 15)
        self.log_out(client)
        self.assertEqual(len(self.calls_by_mdbtools(FIRST)), 3)

    def test_with_a_failure_of_the_start_reported(self):
        self.make_mailbox(FIRST, 1)
        self.write_settings([FIRST], PollInterval='"often"')
        client = Client(self.desktop)
        client.wait_docked()
        self.desktop.wait_window(ERROR, pid=client.process.pid)
        self.log_out(client)

    def test_without_having_been_asked_to_save(self):
        client = self.start({FIRST: 3})
        self.session.member()
        self.session.die()
        self.ends(client)


class PlayingTest(SessionScene, PlayScene):
    def test_while_a_message_plays(self):
        client = self.start_client()
        row, _ = self.row_of_message()
        client.double_click(row)
        client.wait_position(10)
        self.assertEqual(self.sound.streams(), 1)
        self.log_out(client)
        self.assertEqual(self.sound.streams(), 0)


class SmbSessionTest(SessionScene, SmbScene):
    def setUp(self):
        super().setUp()
        self.write_credentials(PASSWORD)

    def test_leaves_no_process_that_asked_the_server(self):
        client = self.start({FIRST: 3})
        self.assertIn('qmshare', self.programs())
        self.log_out(client)

    def test_does_not_wait_for_a_server_that_has_stopped_answering(self):
        client = self.start({FIRST: 3})
        self.samba.stop()
        client.open()
        self.desktop.key('F5')
        self.log_out(client)


class GoesOnTest(SessionScene):
    def test_after_a_save_that_is_only_a_checkpoint(self):
        client = self.start({FIRST: 3})
        self.assertTrue(self.session.save(shutdown=False))
        self.session.goes_on()
        self.counts_on(client)
        self.log_out(client)

    def test_after_a_log_out_that_is_cancelled(self):
        client = self.start({FIRST: 3})
        self.assertTrue(self.session.save(shutdown=True))
        self.session.cancel()
        self.counts_on(client)
        self.desktop.wait_active(TITLE)
        client.wait_rows(4)
        client.hide()
        self.assertEqual(client.open().title, 'Quillamar Calls')
        self.log_out(client)

    def test_with_its_dialog_after_a_log_out_that_is_cancelled(self):
        client = self.start({FIRST: 3})
        client.choose(CONFIG)
        self.desktop.wait_active(OPTIONS, 15)
        self.assertTrue(self.session.save(shutdown=True))
        self.session.cancel()
        self.desktop.wait_active(OPTIONS)
        self.desktop.key('Escape')
        self.desktop.wait_no_window(OPTIONS)
        self.counts_on(client)


class LostManagerTest(SessionScene):
    def test_ends_in_order_when_the_manager_crashes(self):
        client = self.start({FIRST: 3})
        self.session.member()
        self.session.crash()
        self.ends(client)

    def test_ends_in_order_when_the_manager_crashes_while_a_dialog_is_open(self):
        client = self.start({FIRST: 3})
        self.session.member()
        client.choose(CONFIG)
        self.desktop.wait_active(OPTIONS, 15)
        self.session.crash()
        self.ends(client)


if __name__ == '__main__':
    unittest.main(verbosity=2)
