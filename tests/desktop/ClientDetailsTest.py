# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client shows calls in full beside its window; what it shows is compared with what mdbtools read.

Pictures of the dialog are left in pictures/details/ beside the programs' folder.
"""
import datetime
import sys
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from scene import SceneTest, run  # noqa: E402
from site_folder import BIN, write_settings  # noqa: E402

PICTURES = BIN.parent / 'pictures' / 'details'
DETAILS = '^(Call Details|Anruf-Details)$'


class DetailsTest(SceneTest):
    name = 'en'
    no_message = 'No message recorded'
    none_selected = 'Currently there is no call entry selected.'
    captions = ('Date:', 'Call ID:', 'Caller:', 'Message:', 'Details')
    close = '^Close$'
    copy = '^Copy$'
    previous, following = '^Previous call$', '^Next call$'

    def setUp(self):
        super().setUp()
        run('qmdemo', self.share, '--once')
        self.number = min(int(entry.name) for entry in (self.share / 'MBX').iterdir())
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self.share, {self.number: 'Reception'}, 1)
        self.client = Client(self.desktop)
        self.client.open()
        self.calls = self.calls_by_mdbtools(self.number)[::-1]
        self.client.wait_rows(len(self.calls))

    def select(self, row):
        x, y = self.client.place_of(row)
        self.desktop.click(x, y)

    def open_by_context_menu(self, row):
        x, y = self.client.place_of(row)
        self.desktop.click(x, y)
        self.desktop.click(x, y, 3)
        self.desktop.wait_window(unmanaged=True, pid=self.client.process.pid)
        self.desktop.key('Down', 'Down', 'Return')
        self.desktop.wait_window(DETAILS)

    def labels(self):
        return [o['name'] for o in self.desktop.objects(self.client.process, 'label')]

    def date(self, call):
        when = datetime.datetime.strptime(call['CallDate'], '%m/%d/%y %H:%M:%S')
        return f'{when:%A}, {when.day} {when:%B} {when.year} {when:%H:%M:%S}'

    def fields(self, call):
        name = call['CallerName'].strip()
        length = int(call['MessageLength'])
        return [self.date(call), call['CallID'],
                f'{call["CallerID"]} - {name}' if name else call['CallerID'],
                f'{length} s' if length else self.no_message]

    def wait_shown(self, call):
        wanted = self.fields(call)
        self.desktop.wait_for(lambda: set(wanted) <= set(self.labels()), f'the fields {wanted}')

    def press(self, button):
        window = self.desktop.windows.find(DETAILS)
        found = self.desktop.objects(self.client.process, 'push button', button)
        self.assertEqual(len(found), 1)
        self.desktop.click_object(found[0], window)

    def picture(self, station):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.desktop.screenshot(PICTURES / f'{self.name}-{station}.png')

    def test_shows_every_call_as_the_database_has_it(self):
        self.open_by_context_menu(0)
        self.wait_shown(self.calls[0])
        self.picture('first')
        for call in self.calls[1:]:
            self.press(self.following)
            self.wait_shown(call)
        self.press(self.following)
        self.wait_shown(self.calls[-1])
        for call in self.calls[-2::-1]:
            self.press(self.previous)
            self.wait_shown(call)
        for length in (True, False):
            row = next(i for i, call in enumerate(self.calls) if bool(int(call['MessageLength'])) == length)
            self.select(row)
            self.wait_shown(self.calls[row])
            self.picture('message' if length else 'no-message')

    def test_follows_the_selection_and_copies_what_it_shows(self):
        self.open_by_context_menu(1)
        for row in (2, 0, 3):
            self.select(row)
            self.wait_shown(self.calls[row])
        self.press(self.copy)
        values = self.fields(self.calls[3])
        wanted = ''.join(f'{caption}\t{value}\r\n' for caption, value in zip(self.captions, values))
        wanted += f'{self.captions[-1]}\r\n{self.calls[3]["CallDetails"]}\r\n'
        self.desktop.wait_for(lambda: self.clipboard() == wanted, 'the copied call')
        self.press(self.close)
        self.desktop.wait_no_window(DETAILS)
        self.open_by_context_menu(1)
        self.wait_shown(self.calls[1])

    def clipboard(self):
        return self.desktop.run(['xclip', '-selection', 'clipboard', '-out'])

    def test_is_empty_when_the_list_is_loaded_anew_and_closes(self):
        self.open_by_context_menu(0)
        self.wait_shown(self.calls[0])
        self.assertNotIn(self.none_selected, self.labels())
        run('qmdemo', self.share, '--mailbox', self.number, '--calls', 1, '--every', '0.001')
        self.client.wait_rows(len(self.calls) + 1)
        self.desktop.wait_for(lambda: self.none_selected in self.labels(), 'the empty state')
        self.picture('none')
        self.assertEqual(self.desktop.objects(self.client.process, 'push button', self.copy), [])
        self.desktop.windows.ask_to_close(self.desktop.windows.find(DETAILS))
        self.desktop.wait_no_window(DETAILS)
        self.assertTrue(self.client.alive)
        self.assertTrue(self.client.window())


class GermanDetailsTest(DetailsTest):
    lang = 'de_DE.UTF-8'
    name = 'de'
    no_message = 'Keine Nachricht aufgezeichnet'
    none_selected = 'Momentan ist kein Eintrag ausgewählt'
    captions = ('Datum:', 'Anruf-ID:', 'Anrufer:', 'Nachricht:', 'Details')
    close = '^Schließen$'
    copy = '^Kopieren$'
    previous, following = '^Voriger Anruf$', '^Nächster Anruf$'
    days = ('Montag', 'Dienstag', 'Mittwoch', 'Donnerstag', 'Freitag', 'Samstag', 'Sonntag')
    months = ('Januar', 'Februar', 'März', 'April', 'Mai', 'Juni', 'Juli', 'August', 'September', 'Oktober',
              'November', 'Dezember')

    def date(self, call):
        when = datetime.datetime.strptime(call['CallDate'], '%m/%d/%y %H:%M:%S')
        return (f'{self.days[when.weekday()]}, {when.day}. {self.months[when.month - 1]} {when.year} '
                f'{when:%H:%M:%S}')


if __name__ == '__main__':
    unittest.main(verbosity=2)
