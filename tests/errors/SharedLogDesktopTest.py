# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Several clients in one working directory write their failures to one log."""
import collections
import re
import sys
import unittest

sys.dont_write_bytecode = True
from error_scene import RECORD, ErrorTest, with_damaged_definition  # noqa: E402
from client import Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from site_folder import write_settings  # noqa: E402

CLIENTS = (21, 22, 23)  # each has a mailbox of its own
EACH = 4


class SharedLogTest(ErrorTest):
    def start_on(self, number):
        """A client of a session of its own, as a user has one at each workstation."""
        config = self.desktop.folder / f'config{number}'
        write_settings(config, self.share, {number: f'Mailbox {number}'})
        return Client(self.desktop, env={'XDG_CONFIG_HOME': str(config),
                                         'DBUS_SESSION_BUS_ADDRESS': 'unix:path=/nowhere'})

    def failures(self):
        """How many records of each mailbox the log holds."""
        return collections.Counter(int(re.search(r'MBX\\([0-9]+)\\', record[-1])[1])
                                   for record in RECORD.findall(self.log()))

    def cancel_one(self):
        """Escape for the dialog that has the focus, or first a click that gives it to one."""
        pids = [client.process.pid for client in self.clients]
        dialogs = [w for w in self.desktop.windows.all() if w.pid in pids and 'MODAL' in w.states]
        if not dialogs:
            return
        active = self.desktop.windows.active()
        if active and active.id in [w.id for w in dialogs]:
            self.desktop.key('Escape')
        else:
            self.desktop.windows.ask_to_activate(dialogs[0])

    def test_no_record_is_mixed_with_anothers_nor_lost(self):
        for number in CLIENTS:
            self.make_mailbox(number, 2)
            self.replace(number, with_damaged_definition(self.keep(number)))
        self.clients = [self.start_on(number) for number in CLIENTS]

        def all_have_failed():
            self.cancel_one()
            failures = self.failures()
            return all(failures[number] >= EACH for number in CLIENTS)
        wait_until(all_have_failed, f'{EACH} records of each client', 60)
        self.assertEqual(RECORD.sub('', self.log()), '')
        self.assertEqual(set(self.failures()), set(CLIENTS))
        self.assertTrue(all(client.alive for client in self.clients))


if __name__ == '__main__':
    unittest.main(verbosity=2)
