# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""One uninterrupted journey through the real client, from its first start to its end.

The server is reached by SMB, messages are heard on a sound server. Every station is photographed: its pictures
are left in pictures/journey/ beside the programs' folder, in the order of the stations.

The same journey with address and undefined-behaviour sanitizers; leaks make the client's end fail:

    cmake --preset asan -B build/asan-windows -DQM_WINDOWS=ON -DQM_TESTS=OFF
    cmake --build build/asan-windows --target qmClient qmshare qmdemo qmjet
    QM_BIN=$PWD/build/asan-windows/bin python3 -B tests/desktop/ClientJourneyTest.py
"""
import sys
import unittest

sys.dont_write_bytecode = True
from client import ABOUT, CLOSE, SHOW, TITLE, Client  # noqa: E402
from desktop.hearing import RATE, likeness, message  # noqa: E402
from desktop.sound import SoundServer  # noqa: E402
from details import Details, English, German  # noqa: E402
from options import OK, Options  # noqa: E402
from samba import Samba  # noqa: E402
from scene import SceneTest, run  # noqa: E402
from site_folder import BIN, SERVER, database, mailbox_folder, read_settings, write_settings  # noqa: E402

PICTURES = BIN.parent / 'pictures' / 'journey'
REGISTRY = BIN.parent / 'gst-registry.bin'  # what plug-ins there are is looked up once, not by each client
CHOICE = '^(Select Quillamar Server|Quillamar-Server wählen)$'
QUESTION = '^(Delete All Items|Alle Einträge löschen)$'
ABOUT_TITLE = '^(About|Über) Quillamar Client$'
NAMES = ['Sales', 'Büro Süd']  # as the server calls the mailboxes


class JourneyTest(SceneTest):
    language = 'en'
    texts = English
    title = 'Quillamar Calls'
    headers = ['', 'Date', 'Caller ID', 'Caller Name', 'Message']
    popup = 'You have  1  new calls'
    question = 'Are you sure you want to delete all of your messages?'
    copy_keys, delete_keys = ('alt+e', 'c'), ('alt+e', 'd')
    play, pause = '^Play Message$', '^Pause$'

    def setUp(self):
        super().setUp()
        self.desktop.env['GST_REGISTRY'] = str(REGISTRY)
        self.sound = SoundServer(self.desktop)
        self.sound.start()
        run('qmdemo', self.share, '--once')
        self.numbers = sorted(int(entry.name) for entry in (self.share / 'MBX').iterdir())
        self.first, self.second = self.numbers
        self.samba = Samba(self.desktop, self.share)
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self.samba.address, {}, server='')
        self._pictures = 0

    def test_from_the_first_start_to_the_end(self):
        self.starts_for_the_first_time()
        self.chooses_the_server()
        self.ticks_the_mailboxes()
        self.looks_at_the_list()
        self.is_told_of_a_new_call()
        self.opens_the_list_from_the_popup()
        self.selects_a_message()
        self.reads_its_details()
        self.steps_through_the_calls()
        self.plays_pauses_and_seeks()
        self.copies_calls()
        self.deletes_all_calls()
        self.hides_the_window()
        self.looks_at_the_tray_menu()
        self.reads_about_the_program()
        self.closes()

    # Stations

    def starts_for_the_first_time(self):
        self.client = Client(self.desktop)
        self.client.wait_docked()
        self.desktop.wait_active(CHOICE, 30)
        self.assertIsNone(self.client.window())
        self.picture('first-start')

    def chooses_the_server(self):
        self.desktop.type(SERVER)
        self.picture('server')
        self.desktop.key('Return')
        self.options = Options(self.client)
        self.options.wait_mailboxes(self.numbers, 60)
        self.assertEqual([row[1] for row in self.options.rows()], NAMES)
        self.check_in_the_middle(self.options.window())
        self.picture('options')

    def ticks_the_mailboxes(self):
        for row in range(len(NAMES)):
            self.options.tick_with_the_mouse(row)
        field = self.options.objects('text', '^Update-Interval')[0]
        self.desktop.click_object(field, self.options.window())
        self.desktop.key('ctrl+a')
        self.desktop.type('11')
        self.picture('ticked')
        self.options.press(OK)
        self.options.wait_closed()
        settings = read_settings(self.desktop.env['XDG_CONFIG_HOME'])
        self.assertEqual(settings['Client'], {'ServerName': f'"{SERVER}"', 'PollInterval': 'dword:0000000b'})
        self.assertEqual([settings[f'Client\\Mailboxes\\{number}']['Name'] for number in self.numbers],
                         [f'"{name}"' for name in NAMES])

    def looks_at_the_list(self):
        self.assertEqual(self.client.open().title, self.title)
        self.wait_listed(self.first)
        self.assertEqual(self.client.tabs(), NAMES)
        self.picture('list')
        self.client.click_tab(NAMES[1])
        self.wait_listed(self.second)
        self.picture('other-mailbox')
        self.client.click_tab(NAMES[0])
        self.wait_listed(self.first)

    def is_told_of_a_new_call(self):
        self.client.hide()
        run('qmdemo', self.share, '--mailbox', self.first, '--calls', 1, '--every', '0.001')
        self.assertEqual(self.client.wait_popup(seconds=60), self.popup)
        popup, panel = self.client.wait_popup_window(), self.desktop.tray.panel()
        self.assertLessEqual(popup.y + popup.height, panel.y)
        self.assertGreater(popup.x, self.desktop.size[0] // 2)
        self.assertIsNone(self.client.window())
        self.picture('popup')

    def opens_the_list_from_the_popup(self):
        self.client.click_link(SHOW)
        self.client.wait_no_popup()
        self.desktop.wait_active(TITLE)
        self.wait_listed(self.first)
        self.picture('shown')

    def selects_a_message(self):
        self.row = next(row for row, call in enumerate(self.calls) if 9 <= int(call['MessageLength']) <= 12)
        self.assertFalse(self.may_play())
        self.desktop.click(*self.client.place_of(self.row))
        self.wait_selected(self.row)
        self.desktop.wait_for(self.may_play, 'the play button to be enabled')
        self.picture('selected')

    def reads_its_details(self):
        self.details = Details(self.client, self.texts)
        self.details.open_by_context_menu(self.row)
        self.details.wait_shown(self.calls[self.row], 30)
        self.picture('details')
        self.details.press(self.texts.copy)
        self.wait_copied(self.details.copied(self.calls[self.row]))

    def steps_through_the_calls(self):
        for button, row in ((self.texts.following, self.row + 1), (self.texts.previous, self.row)):
            self.details.press(button)
            self.details.wait_shown(self.calls[row], 30)
            self.wait_selected(row)
            self.picture('stepped')
        self.details.close()
        self.desktop.wait_active(TITLE)

    def plays_pauses_and_seeks(self):
        recording = self.sound.record()
        self.client.double_click(self.row)
        self.client.wait_position(15, 60)
        self.picture('plays')
        self.client.press(self.pause)
        place = self.desktop.wait_for(self.place_that_stays, 'the player to pause')
        self.assertEqual(self.sound.streams(), 0)
        self.picture('paused')
        self.client.press(self.play)
        self.client.wait_position(place + 5)
        self.client.seek(0.7)
        self.client.wait_position(68)
        self.picture('sought')
        self.client.wait_silent()
        self.check_heard(recording.finish())
        self.assertEqual(self.sound.streams(), 0)

    def check_heard(self, sound):
        """The message's beginning, up to where it was paused at the least, and its end."""
        wanted = message(mailbox_folder(self.share, self.first) / f'{self.calls[self.row]["CallID"]}.wav')
        beginning, end = int(len(wanted) * 0.14), int(len(wanted) * 0.25)
        self.assertGreater(likeness(sound[:beginning], wanted[:beginning]), 0.95)
        self.assertGreater(likeness(sound[-end:], wanted[-end:]), 0.95)
        self.assertGreater(len(sound), beginning + end + RATE // 2)

    def copies_calls(self):
        self.desktop.click(*self.client.place_of(0))
        self.desktop.key('shift+Down')
        self.wait_selected(0, 1)
        self.desktop.key(*self.copy_keys)
        lines = [self.headers, *([''] + row[1:] for row in self.client.rows(2))]
        text = ['\t'.join(line) + '\t\r\n' for line in lines]
        self.wait_copied(text[0] + '\r\n' + ''.join(text[1:]))
        self.picture('copied')

    def deletes_all_calls(self):
        others = self.keep(self.second)
        self.desktop.key(*self.delete_keys)
        self.desktop.wait_active(QUESTION, 20)
        self.desktop.wait_for(lambda: any(o['name'] == self.question for o in self.seen('label')), 'the question')
        self.picture('question')
        self.desktop.click_object(self.seen('push button', OK)[0], self.desktop.windows.active())
        self.client.wait_rows(0, 60)
        self.assertEqual(self.calls_by_mdbtools(self.first), [])
        self.assertEqual(list(mailbox_folder(self.share, self.first).glob('*.wav')), [])
        self.assertEqual(self.keep(self.second), others)
        self.assertIn('sound', self.desktop.run([BIN / 'qmjet', 'check', database(self.share, self.first)]))
        self.picture('emptied')

    def hides_the_window(self):
        self.client.hide()
        self.assertEqual(len(self.desktop.tray.icons()), 1)
        self.picture('hidden')

    def looks_at_the_tray_menu(self):
        self.client.open_menu()
        menu = self.desktop.windows.find(unmanaged=True, pid=self.client.process.pid)
        icon = self.desktop.tray.icons()[0]
        self.assertLess(abs(icon.center[0] - menu.x - menu.width), icon.width)  # where the mouse is
        self.assertLess(abs(icon.center[1] - menu.y - menu.height), icon.height)
        self.picture('tray-menu')
        self.desktop.key('Escape')
        self.client.wait_no_menu()

    def reads_about_the_program(self):
        self.client.choose(ABOUT)
        self.desktop.wait_active(ABOUT_TITLE, 15)
        self.desktop.wait_for(lambda: any('Corvantis' in o['name'] for o in self.seen('label')), 'the maker')
        self.picture('about')
        self.desktop.key('Return')
        self.desktop.wait_no_window(ABOUT_TITLE)

    def closes(self):
        self.client.choose(CLOSE)
        self.assertEqual(self.client.process.wait(15), 0)
        self.desktop.wait_for(lambda: not self.desktop.tray.icons(), 'the icon to go')
        self.picture('ended')
        self.assertEqual(self.client.process.errors(), '')
        logs = [p for name in ('home', 'state') for p in (self.desktop.folder / name).rglob('*.log')]
        self.assertEqual(logs, [])

    # What is seen

    def check_in_the_middle(self, window):
        for place, size in zip(window.center, self.desktop.size):
            self.assertAlmostEqual(place, size / 2, delta=60)  # frames are not counted

    def seen(self, role, name=None):
        return self.desktop.objects(self.client.process, role, name, showing=True)

    def wait_listed(self, number):
        """Until the list has a mailbox's calls, newest first; they are self.calls from now on."""
        self.calls = self.calls_by_mdbtools(number)[::-1]
        wanted = [[call['CallerID'], call['CallerName'], f'{call["MessageLength"]}s'] for call in self.calls]
        self.desktop.wait_for(lambda: [row[2:] for row in self.client.rows(len(wanted) + 1)] == wanted,
                              f'the calls of mailbox {number}', 60)

    def wait_selected(self, *rows):
        self.desktop.wait_for(lambda: self.client.selected_rows() == list(rows), f'the rows {rows} to be selected')

    def may_play(self):
        return self.seen('push button', self.play)[0]['enabled']

    def place_that_stays(self):
        """The position, once two looks find the same and nothing is heard any more."""
        before = self.client.position()
        still = self.sound.streams() == 0 and before == self.client.position()
        return before[0] if still else None

    def wait_copied(self, text):
        self.desktop.wait_for(lambda: self.clipboard() == text, f'{text!r} on the clipboard')

    def clipboard(self):
        return self.desktop.run(['xclip', '-o', '-selection', 'clipboard', '-t', 'text/plain'])

    def picture(self, station):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self._pictures += 1
        self.desktop.screenshot(PICTURES / f'{self.language}-{self._pictures:02}-{station}.png')


class GermanJourneyTest(JourneyTest):
    lang = 'de_DE.UTF-8'
    language = 'de'
    texts = German
    title = 'Quillamar - Anrufe'
    headers = ['', 'Datum', 'Anrufer', 'Anrufer-Name', 'Nachricht']
    popup = 'Sie haben 1 neue Anrufe'
    question = 'Sind Sie sicher, dass Sie alle Einträge löschen möchten?'
    copy_keys, delete_keys = ('alt+b', 'k'), ('alt+b', 'l')
    play, pause = '^Nachricht abspielen$', '^Pause$'


if __name__ == '__main__':
    unittest.main(verbosity=2)
