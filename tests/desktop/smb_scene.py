# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A test's world in which the share is reached by SMB alone, and the processes that the client has for it."""
import contextlib
import os
import pathlib

from client import X
from desktop import DesktopError, wait_until
from samba import USER, Samba
from scene import FIRST, SceneTest

LOG_ON = '^(Log on to|Anmelden an) srv01$'


class SmbScene(SceneTest):
    """The share is reached by SMB alone."""

    guests = True

    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share, guests=self.guests)
        self.addCleanup(self.samba.go_on)  # a stopped process does not end

    def write_settings(self, numbers, **settings):
        super().write_settings(numbers, share=self.server_address(), **settings)

    def server_address(self):
        return self.samba.address

    def start_counting(self, calls):
        """As start(), with the first poll done, which learns the counts beside the list and says nothing."""
        client = self.start(calls)
        counted = calls[FIRST] + self.announce_calls(client)
        if len(calls) == 1:  # a list of several mailboxes waits for its user
            client.wait_rows(counted, seconds=60)
        wait_until(lambda: self.closes_popup(client), 'the popup to stay away', 30)
        return client, counted

    @staticmethod
    def closes_popup(client):
        """False if it was there: it may come again for a call that was noticed meanwhile."""
        if not client.popup_window():
            return True
        with contextlib.suppress(DesktopError):
            client.click_link(X)
            wait_until(lambda: not client.popup_window(), 'the popup to hide', 3)
        return False

    def announce_calls(self, client, seconds=60):
        """How many calls it took: what comes before the first poll is over is not announced."""
        added = 0

        def announces_a_call():
            nonlocal added
            self.add_calls(FIRST, 1)
            added += 1
            with contextlib.suppress(DesktopError):
                return client.wait_popup(seconds=3)

        wait_until(announces_a_call, 'the popup to announce a call', seconds)
        return added

    def write_credentials(self, password):
        path = pathlib.Path(self.desktop.env['XDG_CONFIG_HOME']) / 'Corvantis' / 'Quillamar' / 'credentials'
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(f'username={USER}\npassword={password}\n')
        path.chmod(0o600)

    def wait_question(self, seconds=30):
        """Until the client asks who logs on."""
        return self.desktop.wait_active(LOG_ON, seconds=seconds)

    def answer(self, password, user=USER, domain='', remember=False):
        """By keyboard, whatever was filled in before."""
        self.wait_question()
        self.desktop.key('alt+u')
        for word in (user, domain, password):
            self.desktop.key('ctrl+a', 'BackSpace')
            self.desktop.type(word)
            self.desktop.key('Tab')
        self.desktop.key(*['space'] * remember, 'Return')
        self.desktop.wait_no_window(LOG_ON)

    def wrong_log_ons(self):
        return self.samba.log_ons('NT_STATUS_WRONG_PASSWORD')


def helpers_of(client):
    """The qmshare processes of one client, once there is one. Tests that run beside this one have theirs."""
    return wait_until(lambda: list(_helpers_of(client.process.pid)), 'a qmshare process')


def _helpers_of(client):
    for pid in map(int, filter(str.isdigit, os.listdir('/proc'))):
        if status_of(pid, 'Name') == 'qmshare' and parent(pid) == client:
            yield pid


def status_of(pid, name):
    with contextlib.suppress(OSError):
        with open(f'/proc/{pid}/status', encoding='ascii', errors='replace') as lines:
            for line in lines:
                if line.startswith(name + ':'):
                    return line.split(':')[1].split()[0]
    return None


def parent(pid):
    number = status_of(pid, 'PPid')
    return int(number) if number else None


def runs(pid):
    return status_of(pid, 'State') not in (None, 'Z')
