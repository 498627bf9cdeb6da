# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client against a server that it reaches by SMB alone: restarts, hangs, the end."""
import signal
import sys
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from samba import PASSWORD  # noqa: E402
from scene import FIRST, SECOND  # noqa: E402
from smb_scene import SmbScene, helpers_of, runs  # noqa: E402


class SmbTest(SmbScene):
    def test_lists_and_announces_calls(self):
        client, _ = self.start_counting({FIRST: 12, SECOND: 3})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.add_calls(SECOND, 2)
        client.wait_popup(5)
        self.assertEqual(len(helpers_of(client)), 1)

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

    def test_a_kerberos_ticket_that_is_of_no_use_changes_nothing(self):
        ticket = self.desktop.folder / 'ticket'
        ticket.write_bytes(b'\x05\x04')
        self.desktop.env['KRB5CCNAME'] = f'FILE:{ticket}'
        client, calls = self.start_counting({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        client.wait_rows(calls + 3)

    def test_leaves_no_process_behind_when_it_is_killed(self):
        client = self.start({FIRST: 12})
        left = helpers_of(client)
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

    def test_logs_on_as_the_credentials_file_says(self):
        self.write_credentials(PASSWORD)
        client, _ = self.start_counting({FIRST: 12})
        self.add_calls(FIRST, 3)
        client.wait_popup(3)
        self.assertEqual(self.samba.log_ons('NT_STATUS_WRONG_PASSWORD'), 0)


if __name__ == '__main__':
    unittest.main(verbosity=2)
