# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What drills of the client have in common: each ends with right counts and no report."""
from desktop import wait_until
from relay import Relay
from samba import PASSWORD
from scene import FIRST
from smb_scene import SmbScene, helpers_of, status_of

LOG = 'qmClient.log'


class DrillScene(SmbScene):
    def setUp(self):
        super().setUp()
        self.write_credentials(PASSWORD)

    def counts_on(self, client, calls):
        """Three more calls are announced, and the list has them all."""
        self.add_calls(FIRST, 3)
        client.wait_popup(seconds=90)
        client.wait_rows(calls + 3, seconds=90)
        self.reports_nothing()

    @staticmethod
    def wait_asked(client, requests=8):
        """Until the server was asked so much as a few polls do."""
        helper = helpers_of(client)[0]

        def waits():
            return int(status_of(helper, 'voluntary_ctxt_switches'))
        before = waits()
        wait_until(lambda: waits() >= before + requests, 'the client to ask', 30)

    def reports_nothing(self):
        found = [str(path) for path in self.desktop.folder.rglob(LOG)]
        self.assertEqual(found, [], [open(path, encoding='utf-8').read() for path in found])


class RelayedDrillScene(DrillScene):
    """The server is reached through a line of the test."""

    def setUp(self):
        super().setUp()
        self.line = Relay(self.samba.port)
        self.addCleanup(self.line.close)

    def server_address(self):
        return self.line.address
