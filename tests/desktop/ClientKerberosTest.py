# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client logs on with the user's Kerberos ticket, and asks where there is none."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import Client  # noqa: E402
from kerberos import Realm, is_host_name_on_loopback  # noqa: E402
from samba import Samba  # noqa: E402
from scene import FIRST, SceneTest  # noqa: E402
from smb_scene import LOG_ON  # noqa: E402


class KerberosTest(SceneTest):
    def setUp(self):
        super().setUp()
        self.realm = Realm(self.desktop)
        self.samba = Samba(self.desktop, self.share, guests=False, settings=self.realm.samba_settings)
        self.make_mailbox(FIRST, 12)
        self.write_settings((FIRST,), share=f'smb://{self.realm.host}:{self.samba.port}')

    def test_lists_calls_by_ticket_alone(self):
        client = Client(self.desktop)
        client.open()
        client.wait_rows(12, seconds=30)
        self.assertIsNone(self.desktop.windows.find(LOG_ON))
        self.assertEqual(self.samba.log_ons('NT_STATUS_OK'), 0, 'log-ons without a ticket')

    def test_asks_where_there_is_no_ticket(self):
        (self.realm.own / 'ticket').unlink()
        Client(self.desktop)
        self.desktop.wait_active(LOG_ON, seconds=30)


if __name__ == '__main__':
    if not is_host_name_on_loopback():
        print('Not tried: the name of this machine is not one of its loopback addresses.')
        sys.exit(77)
    unittest.main(verbosity=2)
