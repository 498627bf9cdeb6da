# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The demonstration without a display: goes through the client on a private desktop, says what it sees."""
import re
import time

from client import CLOSE, SHOW, Client
from desktop import DesktopError


class Tour:
    """`count(number)` gives the calls in a mailbox's file; the list shows the first of `numbers`."""

    def __init__(self, desktop, pictures, numbers, count):
        self._desktop, self._pictures, self._numbers, self._count = desktop, pictures, numbers, count
        self._client = None
        self.missing = 0

    def run(self):
        """True when everything was there."""
        self._client = Client(self._desktop)
        for step in (self._docked, self._opened, self._listed, self._announced, self._shown, self._ended):
            started = time.monotonic()
            try:
                print(f'ok       {step()} ({time.monotonic() - started:.1f} s)', flush=True)
            except DesktopError as error:
                print(f'MISSING  {step.__doc__}: {error}', flush=True)
                self._picture('missing.png')
                self.missing += 1
        return not self.missing

    def _picture(self, name, rect=None):
        self._pictures.mkdir(parents=True, exist_ok=True)
        return self._desktop.screenshot(self._pictures / name, rect)

    def _docked(self):
        """icon docked"""
        icon = self._client.wait_docked()
        panel = self._desktop.tray.panel()
        self._picture('docked-icon.png', panel.rect)
        return f'icon docked: {icon.width} x {icon.height} pixels in the panel at {icon.x}, {icon.y}'

    def _opened(self):
        """window opened from the tray"""
        return f'window opened from the tray: "{self._client.open().title}"'

    def _listed(self):
        """calls listed"""
        number = self._numbers[0]
        self._desktop.wait_for(lambda: self._client.row_count() > 1, 'the calls to be listed', 20)
        rows, there = self._client.row_count(), self._count(number)
        if not 0 <= there - rows <= 3:
            raise DesktopError(f'{rows} rows for {there} calls')
        self._desktop.wait_active('Quillamar')
        self._picture('list.png')
        tabs = ', '.join(f'"{tab}"' for tab in self._client.tabs())
        return f'calls listed: {rows} of mailbox {number}, newest {self._client.rows(1)[0]}; tabs {tabs}'

    def _announced(self):
        """new call noticed, popup shown with its text"""
        before = self._client.row_count()
        text = self._client.wait_popup(seconds=30)
        number = self._numbers[0]
        self._desktop.wait_for(lambda: self._count(number) > before, 'a call in the listed mailbox', 30)
        self._picture('popup.png')
        return f'new call noticed, popup shown: "{text}"'

    def _shown(self):
        """"Show" clicked, the list has the new call"""
        before = self._client.row_count()
        number = self._numbers[0]
        at_least = self._count(number)
        self._client.click_link(SHOW)
        self._client.wait_no_popup()
        self._desktop.wait_for(lambda: self._client.row_count() >= at_least, 'the new call in the list')
        after = self._client.row_count()
        if after <= before:
            raise DesktopError(f'{before} rows before, {after} after')
        return (f'Show clicked, list has the new call: {before} rows before, {after} after, '
                f'newest {self._client.rows(1)[0]}')

    def _ended(self):
        """client ended by the tray's close"""
        self._client.choose(CLOSE)
        code = self._client.process.wait(10)
        if code:
            raise DesktopError(f'exit code {code}: {self._client.process.errors()[-300:]}')
        said = self._client.process.errors().splitlines()
        complaints = [line for line in said if re.search('qt|warning', line, re.I)]
        return 'client ended by the tray\'s close' + (f', having said {complaints}' if complaints else '')
