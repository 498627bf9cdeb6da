# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The server dies, or the line is cut, at each kind of request that the real client makes."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import CONFIG, Client  # noqa: E402
from drill_scene import RelayedDrillScene  # noqa: E402
from options import Options  # noqa: E402
from relay import (CLOSE, CREATE, NAMES, NEGOTIATE, QUERY_DIRECTORY, QUERY_INFO, READ,  # noqa: E402
                   SESSION_SETUP, TREE_CONNECT)
from scene import FIRST  # noqa: E402

# Of polls; the last ones of each may belong to the next.
OF_A_POLL = [(CREATE, number) for number in (1, 2, 3, 4)] + [(QUERY_INFO, 1)] + [
    (READ, number) for number in (1, 2, 3, 5)] + [(CLOSE, number) for number in (1, 2, 3)]
OF_A_CONNECTION = [(NEGOTIATE, 1), (SESSION_SETUP, 1), (SESSION_SETUP, 2), (TREE_CONNECT, 1)]
LARGE = 10000  # calls, whose list takes many requests
OF_A_LIST = [(READ, number) for number in (10, 15, 40)] + [(CREATE, 4), (CLOSE, 4)]


class CutTest(RelayedDrillScene):
    def drill(self, calls, cases, provoke=lambda: 0, first=lambda: None, afterwards=lambda: None):
        """Each case in turn on one client; provoke() answers how many calls it added. Another comes after each."""
        client, calls = self.start_counting({FIRST: calls})
        start = calls
        for command, number in cases:
            with self.subTest(NAMES[command], number=number):
                self.line.cut_at(command, number, first)
                calls += provoke()
                self.line.wait_for_it()
                afterwards()
                self.add_calls(FIRST, 1)
                calls += 1
                client.wait_rows(calls, seconds=60)
        client.wait_popup(calls - start, seconds=30)
        self.reports_nothing()

    def one_more_call(self):
        self.add_calls(FIRST, 1)
        return 1

    def cut(self):
        self.line.cut()
        return 0

    def test_the_server_is_killed_in_a_poll(self):
        self.drill(12, OF_A_POLL, first=self.samba.kill, afterwards=self.samba.start)

    def test_the_line_is_cut_in_a_poll(self):
        self.drill(12, OF_A_POLL)

    def test_the_server_is_killed_while_the_client_connects(self):
        self.drill(12, OF_A_CONNECTION, self.cut, self.samba.kill, self.samba.start)

    def test_the_line_is_cut_while_the_client_connects(self):
        self.drill(12, OF_A_CONNECTION, self.cut)

    def test_the_line_is_cut_while_a_list_is_read(self):
        self.drill(LARGE, OF_A_LIST, self.one_more_call)

    def look_for_mailboxes(self, first=lambda: None):
        self.add_calls(FIRST, 12)
        self.write_settings((FIRST,))
        client = Client(self.desktop)
        client.open()
        client.wait_rows(12)
        client.hide()
        self.line.cut_at(QUERY_DIRECTORY, 1, first)
        client.choose(CONFIG)
        self.line.wait_for_it()
        return Options(client)

    def test_the_server_is_killed_while_the_options_look_for_mailboxes(self):
        options = self.look_for_mailboxes(self.samba.kill)
        self.samba.start()
        options.wait_mailboxes([FIRST])
        self.reports_nothing()

    def test_the_line_is_cut_while_the_options_look_for_mailboxes(self):
        self.look_for_mailboxes().wait_mailboxes([FIRST])
        self.reports_nothing()


if __name__ == '__main__':
    unittest.main(verbosity=2)
