# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client against a server that it reaches by SMB alone: restarts, hangs, the end."""
import contextlib
import os
import pathlib
import signal
import sys
import unittest

sys.dont_write_bytecode = True
from client import CONFIG, X, Client  # noqa: E402
from desktop import DesktopError, wait_until  # noqa: E402
from options import OK, Options  # noqa: E402
from samba import PASSWORD, USER, Samba  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402


class SmbScene(SceneTest):
    """The share is reached by SMB alone."""

    guests = True

    def setUp(self):
        super().setUp()
        self.samba = Samba(self.desktop, self.share, guests=self.guests)
        self.addCleanup(self.samba.go_on)  # a stopped process does not end

    def write_settings(self, numbers, **settings):
        super().write_settings(numbers, share=self.samba.address, **settings)

    def start_counting(self, calls):
        """As start(), with the first poll done, which learns the counts beside the list and says nothing."""
        client = self.start(calls)
        added = 0

        def announces_a_call():
            nonlocal added
            self.add_calls(FIRST, 1)
            added += 1
            with contextlib.suppress(DesktopError):
                return client.wait_popup(seconds=3)

        wait_until(announces_a_call, 'the popup to announce a call', 60)
        client.click_link(X)
        client.wait_no_popup()
        return client, calls[FIRST] + added


def helpers():
    """The processes called qmshare that belong to this test's clients."""
    found = []
    for name in filter(str.isdigit, os.listdir('/proc')):
        with contextlib.suppress(OSError):
            with open(f'/proc/{name}/comm', encoding='ascii') as comm:
                if comm.read() == 'qmshare\n':
                    found.append(int(name))
    return found


class SmbTest(SmbScene):
    def helper_of(self, client):
        def ours():
            return [pid for pid in helpers() if parent(pid) == client.process.pid]
        return wait_until(ours, 'a qmshare process')

    def test_lists_and_announces_calls(self):
        client, _ = self.start_counting({FIRST: 12, SECOND: 3})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.add_calls(SECOND, 2)
        client.wait_popup(5)
        self.assertEqual(len(self.helper_of(client)), 1)

    def test_counts_on_after_the_server_was_restarted(self):
        client, calls = self.start_counting({FIRST: 12})
        self.samba.kill()
        self.add_calls(FIRST, 3)
        self.samba.start()
        client.wait_popup(3, seconds=60)
        client.wait_rows(calls + 3)

    def test_the_window_lives_while_the_server_hangs_and_counts_afterwards(self):
        client, calls = self.start_counting({FIRST: 12})
        client.wait_rows(calls)
        self.samba.stop()
        client.open()
        self.assertEqual(client.row_count(), calls)
        client.hide()
        self.add_calls(FIRST, 3)
        self.samba.go_on()
        client.wait_popup(3, seconds=60)

    def test_ends_while_the_server_hangs(self):
        client = self.start({FIRST: 12})
        self.samba.stop()
        client.process.popen.send_signal(signal.SIGTERM)
        client.process.wait(20)
        self.assertEqual(client.process.popen.returncode, 0)

    def test_leaves_no_process_behind_when_it_is_killed(self):
        client = self.start({FIRST: 12})
        left = self.helper_of(client)
        client.process.popen.kill()
        client.process.wait(10)
        wait_until(lambda: not any(map(runs, left)), 'qmshare to end')

    def test_starts_without_the_server_and_finds_it_later(self):
        self.make_mailbox(FIRST, 12)
        self.write_settings((FIRST,))
        self.samba.kill()
        client = Client(self.desktop)
        client.open()
        client.wait_line('A connection to the server could not be established.', seconds=30)
        self.samba.start()
        client.wait_rows(12, seconds=90)


class PasswordTest(SmbScene):
    """A server that knows no guests."""

    guests = False

    def write_credentials(self, password):
        path = pathlib.Path(self.desktop.env['XDG_CONFIG_HOME']) / 'Corvantis' / 'Quillamar' / 'credentials'
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(f'username={USER}\npassword={password}\n')
        path.chmod(0o600)

    def test_logs_on_as_the_credentials_file_says(self):
        self.write_credentials(PASSWORD)
        client, _ = self.start_counting({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.assertEqual(self.samba.log_ons('NT_STATUS_WRONG_PASSWORD'), 0)

    def test_a_wrong_password_is_tried_once_and_another_one_when_the_user_acts(self):
        self.add_calls(FIRST, 12)  # with the mailbox's name, which the options look for
        self.write_settings((FIRST,))
        self.write_credentials('wrong')
        client = Client(self.desktop)
        client.open()
        client.wait_line('A connection to the server could not be established.', seconds=30)
        self.write_credentials(PASSWORD)
        client.choose(CONFIG)
        options = Options(client)
        options.wait_mailboxes([FIRST])
        options.press(OK)
        options.wait_closed()
        client.wait_rows(12, seconds=30)
        self.assertEqual(self.samba.log_ons('NT_STATUS_WRONG_PASSWORD'), 1)


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


if __name__ == '__main__':
    unittest.main(verbosity=2)
