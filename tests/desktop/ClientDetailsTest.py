# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client shows calls in full beside its window; what it shows is compared with what mdbtools read.

Pictures of the dialog are left in pictures/details/ beside the programs' folder.
"""
import shutil
import sys
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from details import TITLE, Details, English, German  # noqa: E402
from samba import Samba  # noqa: E402
from scene import FIRST, SECOND, SceneTest, run  # noqa: E402
from site_folder import BIN, mailbox_folder, write_settings  # noqa: E402

PICTURES = BIN.parent / 'pictures' / 'details'


class DetailsScene(SceneTest):
    name = 'en'
    texts = English

    def start_shown(self, mailboxes):
        """The client over {number: name}, its window shown; the first mailbox's calls are listed."""
        self.number = min(mailboxes)
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self.address(), mailboxes, 1)
        self.client = Client(self.desktop)
        self.client.open()
        self.calls = self.calls_by_mdbtools(self.number)[::-1]
        self.client.wait_rows(len(self.calls), 30)
        self.details = Details(self.client, self.texts)

    def address(self):
        return self.share

    def select(self, row):
        self.desktop.click(*self.client.place_of(row))

    def picture(self, station):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.desktop.screenshot(PICTURES / f'{self.name}-{station}.png')


class DetailsTest(DetailsScene):
    def setUp(self):
        super().setUp()
        run('qmdemo', self.share, '--once')
        self.start_shown({min(int(entry.name) for entry in (self.share / 'MBX').iterdir()): 'Reception'})

    def test_shows_every_call_as_the_database_has_it(self):
        self.details.open_by_context_menu(0)
        self.details.wait_shown(self.calls[0])
        self.picture('first')
        for call in self.calls[1:]:
            self.details.press(self.texts.following)
            self.details.wait_shown(call)
        self.details.press(self.texts.following)
        self.details.wait_shown(self.calls[-1])
        for call in self.calls[-2::-1]:
            self.details.press(self.texts.previous)
            self.details.wait_shown(call)
        for length in (True, False):
            row = next(i for i, call in enumerate(self.calls) if bool(int(call['MessageLength'])) == length)
            self.select(row)
            self.details.wait_shown(self.calls[row])
            self.picture('message' if length else 'no-message')

    def test_follows_the_selection_and_copies_what_it_shows(self):
        self.details.open_by_context_menu(1)
        for row in (2, 0, 3):
            self.select(row)
            self.details.wait_shown(self.calls[row])
        self.details.press(self.texts.copy)
        wanted = self.details.copied(self.calls[3])
        self.desktop.wait_for(lambda: self.clipboard() == wanted, 'the copied call')
        self.details.close()
        self.details.open_by_context_menu(1)
        self.details.wait_shown(self.calls[1])

    def clipboard(self):
        return self.desktop.run(['xclip', '-selection', 'clipboard', '-out'])

    def test_is_empty_when_the_list_is_loaded_anew_and_closes(self):
        self.details.open_by_context_menu(0)
        self.details.wait_shown(self.calls[0])
        self.assertNotIn(self.texts.none_selected, self.details.labels())
        run('qmdemo', self.share, '--mailbox', self.number, '--calls', 1, '--every', '0.001')
        self.client.wait_rows(len(self.calls) + 1)
        self.details.wait_empty()
        self.picture('none')
        self.assertEqual(self.details.buttons(self.texts.copy), [])
        self.desktop.windows.ask_to_close(self.details.window())
        self.desktop.wait_no_window(TITLE)
        self.assertTrue(self.client.alive)
        self.assertTrue(self.client.window())


class GermanDetailsTest(DetailsTest):
    lang = 'de_DE.UTF-8'
    name = 'de'
    texts = German


class TabsTest(DetailsScene):
    """Two mailboxes whose calls tell apart."""

    def setUp(self):
        super().setUp()
        for number, calls in ((FIRST, 4), (SECOND, 3)):
            self.add_calls(number, calls)

    def test_a_mailbox_that_is_deleted_on_the_server_leaves_its_tab_empty_and_the_other_one_works(self):
        self.start_shown({FIRST: 'Reception', SECOND: 'Service'})
        others = self.calls_by_mdbtools(SECOND)[::-1]
        self.details.open_by_context_menu(0)
        self.details.wait_shown(self.calls[0])
        shutil.rmtree(mailbox_folder(self.share, FIRST))
        self.client.click_tab('Service')
        self.client.wait_rows(len(others), 30)
        self.details.wait_empty()
        self.select(1)
        self.details.wait_shown(others[1])
        self.client.click_tab('Reception')
        self.client.wait_rows(0, 30)
        self.details.wait_empty()
        self.assertEqual(self.client.tabs()[:2], ['Reception', 'Service'])  # the third is the dialog's
        self.client.click_tab('Service')
        self.client.wait_rows(len(others), 30)
        self.assertTrue(self.client.alive)
        self.assertFalse(self.client.ignore_errors())


class SmbDetailsTest(TabsTest):
    """The share is reached by SMB alone."""

    name = 'smb'

    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share)

    def address(self):
        return self.samba.address

    def test_shows_the_calls_of_each_mailbox_and_steps_through_them(self):
        self.start_shown({FIRST: 'Reception', SECOND: 'Service'})
        self.details.open_by_context_menu(0)
        for name, number in (('Service', SECOND), ('Reception', FIRST)):
            self.client.click_tab(name)
            calls = self.calls_by_mdbtools(number)[::-1]
            self.client.wait_rows(len(calls), 30)
            self.details.wait_empty()
            self.select(0)
            self.details.wait_shown(calls[0], 30)
            for call in calls[1:]:
                self.details.press(self.texts.following)
                self.details.wait_shown(call, 30)
        self.picture('last')


if __name__ == '__main__':
    unittest.main(verbosity=2)
