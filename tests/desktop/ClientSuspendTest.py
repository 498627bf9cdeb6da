# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client on a machine that sleeps: all its processes stand still, and the world goes on meanwhile."""
import contextlib
import os
import signal
import sys
import time
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from drill_scene import RelayedDrillScene  # noqa: E402
from relay import READ  # noqa: E402
from scene import FIRST  # noqa: E402
from smb_scene import helpers_of  # noqa: E402

LONG = 12  # seconds: more than a request may take, and than the client lets anybody wait
LARGE = 20000  # calls, whose list takes many requests


class SuspendTest(RelayedDrillScene):
    @contextlib.contextmanager
    def asleep(self, client):
        self.put_to_sleep(client)
        try:
            yield
        finally:
            for pid in self.sleeping:  # the client comes first, before anybody can have answered it
                os.kill(pid, signal.SIGCONT)

    def put_to_sleep(self, client):
        self.sleeping = [client.process.pid, *helpers_of(client)]
        for pid in self.sleeping:
            os.kill(pid, signal.SIGSTOP)

    def test_the_server_was_restarted_meanwhile(self):
        client, calls = self.start_counting({FIRST: 12})
        with self.asleep(client):
            self.samba.kill()
            self.samba.start()
        self.counts_on(client, calls)

    def test_the_connection_was_closed_meanwhile(self):
        client, calls = self.start_counting({FIRST: 12})
        with self.asleep(client):
            self.line.cut()
        self.counts_on(client, calls)

    def test_the_connection_was_forgotten_meanwhile(self):
        client, calls = self.start_counting({FIRST: 12})
        with self.asleep(client):
            self.line.forget()
        self.counts_on(client, calls)

    def test_calls_that_came_meanwhile_are_announced(self):
        client, calls = self.start_counting({FIRST: 12})
        with self.asleep(client):
            self.add_calls(FIRST, 5)
            time.sleep(LONG)
        client.wait_popup(5)
        client.wait_rows(calls + 5)
        self.reports_nothing()

    def test_an_answer_that_came_meanwhile_is_in_time_however_long_it_was(self):
        client, calls = self.start_counting({FIRST: 12})
        before = self.line.counts()[0]
        self.line.slow(None)
        wait_until(lambda: self.line.counts()[0] > before, 'the client to ask')
        with self.asleep(client):
            self.line.fast()
            time.sleep(LONG)
        self.counts_on(client, calls)
        self.assertEqual(helpers_of(client), self.sleeping[1:])

    def test_in_the_middle_of_a_list(self):
        self.make_mailbox(FIRST, LARGE)
        self.write_settings((FIRST,))
        client = Client(self.desktop)
        self.line.do_at(READ, 30, lambda: self.put_to_sleep(client))
        self.line.wait_for_it()
        time.sleep(LONG)
        for pid in self.sleeping:
            os.kill(pid, signal.SIGCONT)
        client.open()
        client.wait_rows(LARGE, seconds=60)
        self.assertEqual(helpers_of(client), self.sleeping[1:])
        self.reports_nothing()


if __name__ == '__main__':
    unittest.main(verbosity=2)
