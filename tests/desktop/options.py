# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The options dialog as its user sees it."""
from desktop import DesktopError, wait_until

TITLE = '^(Options|Optionen)$'
OK, CANCEL = '^OK$', '^(Cancel|Abbrechen)$'


class Options:
    def __init__(self, client):
        self.client, self.desktop = client, client.desktop

    def window(self):
        return self.desktop.wait_active(TITLE, seconds=15)

    def objects(self, role, name=None):
        return self.desktop.objects(self.client.process, role, name)

    def list(self):
        found = [o for role in ('table', 'tree', 'tree table') for o in self.objects(role, '^Mailbox')]
        if len(found) != 1:
            raise DesktopError(f'{len(found)} lists of mailboxes instead of one')
        return found[0]['where']

    def rows(self):
        count = self.desktop.reader().ask('row_count', where=self.list())
        return self.desktop.reader().ask('cells', where=self.list(), first=0, count=count)

    def wait_mailboxes(self, numbers, seconds=20):
        self.window()
        wait_until(lambda: [row[0] for row in self.rows()] == [str(n) for n in numbers],
                   f'the mailboxes {numbers}', seconds)

    def tick_with_the_mouse(self, row):
        x, y, _, height = self.desktop.reader().ask('cell_rect', where=self.list(), row=row, column=0)
        window = self.window()
        self.desktop.click(window.x + x + height // 2, window.y + y + height // 2)

    def press(self, button):
        found = self.objects('push button', button)
        if len(found) != 1:
            raise DesktopError(f'{len(found)} buttons {button!r} instead of one')
        self.desktop.click_object(found[0], self.window())

    def can_confirm(self):
        return self.objects('push button', OK)[0]['enabled']

    def wait_closed(self):
        self.desktop.wait_no_window(TITLE)
