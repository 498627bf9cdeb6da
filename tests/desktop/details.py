# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The details dialog as its user sees it; a call is a row as mdbtools exports it."""
import datetime

from desktop import DesktopError

TITLE = '^(Call Details|Anruf-Details)$'


class English:
    no_message = 'No message recorded'
    none_selected = 'Currently there is no call entry selected.'
    captions = ('Date:', 'Call ID:', 'Caller:', 'Message:', 'Details')
    close, copy = '^Close$', '^Copy$'
    previous, following = '^Previous call$', '^Next call$'

    @classmethod
    def date(cls, when):
        return f'{when:%A}, {when.day} {when:%B} {when.year} {when:%H:%M:%S}'


class German(English):
    no_message = 'Keine Nachricht aufgezeichnet'
    none_selected = 'Momentan ist kein Eintrag ausgewählt'
    captions = ('Datum:', 'Anruf-ID:', 'Anrufer:', 'Nachricht:', 'Details')
    close, copy = '^Schließen$', '^Kopieren$'
    previous, following = '^Voriger Anruf$', '^Nächster Anruf$'
    days = ('Montag', 'Dienstag', 'Mittwoch', 'Donnerstag', 'Freitag', 'Samstag', 'Sonntag')
    months = ('Januar', 'Februar', 'März', 'April', 'Mai', 'Juni', 'Juli', 'August', 'September', 'Oktober',
              'November', 'Dezember')

    @classmethod
    def date(cls, when):
        return (f'{cls.days[when.weekday()]}, {when.day}. {cls.months[when.month - 1]} {when.year} '
                f'{when:%H:%M:%S}')


class Details:
    def __init__(self, client, texts):
        self.client, self.desktop, self.texts = client, client.desktop, texts

    def open_by_context_menu(self, row):
        x, y = self.client.place_of(row)
        self.desktop.click(x, y)
        self.desktop.click(x, y, 3)
        self.desktop.wait_window(unmanaged=True, pid=self.client.process.pid)
        self.desktop.key('Down', 'Down', 'Return')
        self.desktop.wait_window(TITLE)

    def window(self):
        return self.desktop.windows.find(TITLE)

    def labels(self):
        return [o['name'] for o in self.desktop.objects(self.client.process, 'label')]

    def fields(self, call):
        """What the dialog shows of a call, line by line, but for the free text."""
        name, length = call['CallerName'].strip(), int(call['MessageLength'])
        when = datetime.datetime.strptime(call['CallDate'], '%m/%d/%y %H:%M:%S')
        return [self.texts.date(when), call['CallID'],
                f'{call["CallerID"]} - {name}' if name else call['CallerID'],
                f'{length} s' if length else self.texts.no_message]

    def wait_shown(self, call, seconds=10):
        wanted = self.fields(call)
        self.desktop.wait_for(lambda: set(wanted) <= set(self.labels()), f'the fields {wanted}', seconds)

    def wait_empty(self, seconds=10):
        self.desktop.wait_for(lambda: self.texts.none_selected in self.labels(), 'the empty state', seconds)

    def buttons(self, name):
        return self.desktop.objects(self.client.process, 'push button', name)

    def press(self, name):
        found = self.buttons(name)
        if len(found) != 1:
            raise DesktopError(f'{len(found)} buttons {name!r} instead of one')
        self.desktop.click_object(found[0], self.window())

    def copied(self, call):
        """What the copy button puts on the clipboard."""
        lines = [f'{caption}\t{value}' for caption, value in zip(self.texts.captions, self.fields(call))]
        return ''.join(f'{line}\r\n' for line in (*lines, self.texts.captions[-1], call['CallDetails']))

    def close(self):
        self.press(self.texts.close)
        self.desktop.wait_no_window(TITLE)
