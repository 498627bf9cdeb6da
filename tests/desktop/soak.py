# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""soak [MINUTES] (10 unless told)

The client polls every second for a long time while calls come in, the list is opened and hidden and the
popup answered. At the end it must use no more memory than after its first minute (but a little), hold no
database open, and have written no log.
"""
import pathlib
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from client import SHOW, Client  # noqa: E402
from desktop import Desktop, DesktopError  # noqa: E402
from site_folder import database, program, write_settings  # noqa: E402

SETTLED_SECONDS, LOOK_SECONDS = 60, 30
ALLOWED_GROWTH_KIB = 2048
MAILBOXES = {12: 'Reception', 15: 'Service'}


class Soak:
    def __init__(self, desktop, minutes):
        self._desktop, self._minutes = desktop, minutes
        self._share = desktop.folder / 'share'
        self._files_open = set()
        self._looks = 0

    def run(self):
        write_settings(self._desktop.env['XDG_CONFIG_HOME'], self._share, MAILBOXES)
        server = self._desktop.start([program('qmdemo'), self._share, '--every', '2'])
        self._desktop.wait_for(lambda: database(self._share, 15).exists(), 'the share', 30)
        client = Client(self._desktop)
        client.wait_docked()
        self._use(client, SETTLED_SECONDS)
        settled, descriptors = client.process.memory_kib(), len(client.process.open_files())
        self._say(client, 'settled')
        for _ in range(self._minutes * 60 // LOOK_SECONDS):
            self._use(client, LOOK_SECONDS)
            self._say(client, 'so far')
        calls = server.output().count('mailbox ')
        return self._verdict(client, settled, descriptors, calls)

    def _use(self, client, seconds):
        """What a user does, again and again; a soak is the one place where time itself is the matter."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            client.wait_popup(seconds=30)
            client.click_link(SHOW)
            # The popup itself may be up again already.
            self._desktop.wait_for(client.window, 'the window')
            client.hide()
            self._look_at_files(client)

    def _look_at_files(self, client):
        """A poll opens the database for a moment only: what every look finds open is kept open."""
        now = {name for name in client.process.open_files() if str(self._share) in name}
        self._files_open = now if not self._looks else self._files_open & now
        self._looks += 1

    def _logs(self):
        # Where the client would write one: its current directory and the user's state.
        return [p for name in ('home', 'state') for p in (self._desktop.folder / name).rglob('*.log')]

    @staticmethod
    def _say(client, when):
        process = client.process
        print(f'{when}: {process.memory_kib()} KiB resident, {len(process.open_files())} descriptors',
              flush=True)

    def _verdict(self, client, settled, descriptors, calls):
        growth = client.process.memory_kib() - settled
        more = len(client.process.open_files()) - descriptors
        print(f'{self._minutes} minutes, {calls} calls, {self._looks} looks at open files: '
              f'memory {growth:+d} KiB, descriptors {more:+d}, '
              f'databases kept open: {sorted(self._files_open)}, logs: {self._logs()}')
        return growth <= ALLOWED_GROWTH_KIB and more <= 2 and not self._files_open and not self._logs()


def main():
    minutes = int(sys.argv[1]) if len(sys.argv) > 1 else 10
    try:
        with Desktop('1024x768', tray='trayer', accessibility=True) as desktop:
            return 0 if Soak(desktop, minutes).run() else 1
    except (DesktopError, OSError) as error:
        print(f'soak: {error}', file=sys.stderr)
        return 1


sys.exit(main())
