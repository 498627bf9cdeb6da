# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""soak [MINUTES] (10 unless told)

The client polls every second for a long time while calls come in, the list is opened and hidden, the popup
answered, the tabs clicked. At the end it must use no more memory than after its first minutes, hold no
database open, and have written no log.

What grows by itself is kept out of it. The calls come to one mailbox and the memory is looked at while the other
one is listed, because a longer list takes more for its rows. No screen reader is there, because the toolkit keeps
something of each cell that one was told of: a first client is read to learn where to click, the second one is
watched.
"""
import pathlib
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from client import SHOW, START_SECONDS, Client  # noqa: E402
from desktop import Desktop, DesktopError  # noqa: E402
from site_folder import count_calls, database, program, write_settings  # noqa: E402

SETTLING_MINUTES, MINUTE = 2, 60
ALLOWED_GROWTH_KIB, ALLOWED_DESCRIPTORS = 64, 2
QUIET, BUSY = 12, 15
UNREAD = {'QT_LINUX_ACCESSIBILITY_ALWAYS_ON': None}
# Memory that is free goes back to the system: a leak would fill a third of a MiB of it without being seen.
GIVES_BACK = {'MALLOC_TRIM_THRESHOLD_': '0', 'MALLOC_TOP_PAD_': '0'}
MAILBOXES = {QUIET: 'Reception', BUSY: 'Service'}


class Soak:
    def __init__(self, desktop, minutes):
        self.desktop, self._minutes = desktop, minutes
        self._share = desktop.folder / 'share'
        self._files_open = set()
        self._looks = 0

    def run(self):
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self._share, MAILBOXES)
        self.desktop.run([program('qmdemo'), self._share, '--once'])
        self.desktop.start([program('qmdemo'), self._share, '--mailbox', BUSY, '--every', '2'])
        self._learn_places()
        self.client = Client(self.desktop, env=UNREAD | GIVES_BACK)
        self.desktop.wait_for(self.desktop.tray.icons, 'the icon to dock', START_SECONDS)
        before = self._calls()
        for _ in range(SETTLING_MINUTES):
            self._spend_minute('settling')
        settled = self._measure()
        for _ in range(self._minutes):
            self._spend_minute('so far')
        return self._verdict(settled, self._measure(), self._calls() - before)

    def _learn_places(self):
        """Where the popup's link and the tabs are in their windows."""
        reading = Client(self.desktop)
        reading.wait_docked()
        reading.wait_popup(seconds=30)
        self._show = self._place(reading.link(SHOW))
        reading.click_link(SHOW)
        self.desktop.wait_for(reading.window, 'the window')
        self._tabs = [self._place(tab) for tab in reading.objects('page tab', showing=True)]
        reading.process.end()

    def _place(self, found):
        x, y, width, height = self.desktop.reader().ask('rect', where=found['where'])
        return x + width // 2, y + height // 2

    def _click(self, window, place):
        self.desktop.click(window.x + place[0], window.y + place[1])

    def _spend_minute(self, when):
        end = time.monotonic() + MINUTE
        while time.monotonic() < end:
            self._answer_popup()
            self.client.hide()
            self._look_at_files()
        self._look_through()
        memory, descriptors = self._measure()
        print(f'{when}: {memory} KiB of its own, {descriptors} descriptors', flush=True)

    def _answer_popup(self):
        popup = self.desktop.wait_for(self.client.popup_window, 'the popup', 30)
        self._click(popup, self._show)
        # The popup itself may be up again already.
        self.desktop.wait_for(self.client.window, 'the window')

    def _look_through(self):
        """The busy mailbox's list, then the quiet one's again."""
        self._answer_popup()
        for place in reversed(self._tabs):
            self._click(self.client.window(), place)
        self.client.hide()

    def _calls(self):
        return count_calls(database(self._share, BUSY))

    def _look_at_files(self):
        """A poll opens the database for a moment only: what every look finds open is kept open."""
        now = {name for name in self.client.process.open_files() if str(self._share) in name}
        self._files_open = now if not self._looks else self._files_open & now
        self._looks += 1

    def _measure(self):
        return self.client.process.own_memory_kib(), len(self.client.process.open_files())

    def _logs(self):
        # Where the client would write one: its current directory and the user's state.
        return [p for name in ('home', 'state') for p in (self.desktop.folder / name).rglob('*.log')]

    def _verdict(self, settled, ended, calls):
        growth, more = (after - before for before, after in zip(settled, ended))
        print(f'{self._minutes} minutes, {calls} calls, {self._looks} looks at open files: '
              f'memory {growth:+d} KiB, descriptors {more:+d}, '
              f'databases kept open: {sorted(self._files_open)}, logs: {self._logs()}')
        return (growth <= ALLOWED_GROWTH_KIB and more <= ALLOWED_DESCRIPTORS
                and not self._files_open and not self._logs())


def main():
    minutes = int(sys.argv[1]) if len(sys.argv) > 1 else 10
    try:
        with Desktop('1024x768', tray='trayer', accessibility=True) as desktop:
            return 0 if Soak(desktop, minutes).run() else 1
    except (DesktopError, OSError) as error:
        print(f'soak: {error}', file=sys.stderr)
        return 1


sys.exit(main())
