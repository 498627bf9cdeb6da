# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real client asks who logs on to a server that knows no guests: once, and tries nothing twice by itself."""
import os
import pathlib
import resource
import signal
import sys
import unittest

sys.dont_write_bytecode = True
from client import CONFIG, Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from options import OK, Options  # noqa: E402
from samba import PASSWORD  # noqa: E402
from scene import FIRST  # noqa: E402
from smb_scene import LOG_ON, SmbScene, helpers_of, status_of  # noqa: E402

KEYRING = '^Unlock Login Keyring$'
NOT_CONNECTED = 'A connection to the server could not be established.'


class LogOnScene(SmbScene):
    guests = False

    def start_refused(self, calls=12):
        self.add_calls(FIRST, calls)  # with the mailbox's name, which the options look for
        self.write_settings((FIRST,))
        client = Client(self.desktop)
        self.wait_question()
        return client


class LogOnTest(LogOnScene):
    def wait_ticks(self, client, count=5):
        """Until the client was woken so often as that many polls do; it has nothing else to do."""
        def switches():
            return int(status_of(client.process.pid, 'voluntary_ctxt_switches'))
        before = switches()
        wait_until(lambda: switches() >= before + count, 'the client to poll', 60)

    def confirm_options(self, client):
        """They find the mailbox, and the list its calls."""
        options = Options(client)
        options.wait_mailboxes([FIRST])
        options.press(OK)
        options.wait_closed()
        client.wait_rows(12, seconds=30)

    def test_lists_and_announces_calls_when_user_and_password_were_typed(self):
        client = self.start_refused()
        self.answer(PASSWORD)
        client.open()
        client.wait_rows(12)
        client.hide()
        self.add_calls(FIRST, 3)
        client.wait_popup(3, seconds=30)
        self.assertEqual(self.wrong_log_ons(), 0)

    def test_asks_again_for_a_wrong_password_and_tries_each_once(self):
        client = self.start_refused()
        self.answer('wrong')
        self.answer('wrong as well')
        self.answer(PASSWORD)
        client.open()
        client.wait_rows(12)
        self.assertEqual(self.wrong_log_ons(), 2)

    def test_asks_nobody_again_after_cancel_until_the_options_are_opened(self):
        self.write_credentials('wrong')
        client = self.start_refused()
        self.desktop.key('Escape')
        client.open()
        client.wait_line(NOT_CONNECTED)
        self.wait_ticks(client)
        self.assertIsNone(self.desktop.windows.find(LOG_ON))
        self.assertEqual(self.wrong_log_ons(), 1)
        client.choose(CONFIG)
        self.answer(PASSWORD)
        self.confirm_options(client)

    def test_a_credentials_file_that_was_mended_is_taken_when_the_user_acts(self):
        self.write_credentials('wrong')
        client = self.start_refused()
        self.desktop.key('Escape')
        client.open()
        self.write_credentials(PASSWORD)
        client.choose(CONFIG)
        self.confirm_options(client)
        self.assertEqual(self.wrong_log_ons(), 1)

    def logs_on(self, password, **who):
        """With what was typed, at the first attempt."""
        self.desktop.run(['setxkbmap', 'de'])  # has keys for all characters
        self.samba.set_password(password)
        client = self.start_refused()
        self.answer(password, **who)
        client.open()
        client.wait_rows(12)
        self.assertEqual(self.wrong_log_ons(), 0)
        self.assertEqual(self.samba.log_ons('NT_STATUS_NO_SUCH_USER'), 0)

    def test_takes_a_password_of_special_characters(self):
        self.logs_on('p@s:s/w%4\\dä')

    def test_takes_a_password_that_looks_like_an_address(self):
        self.logs_on('%41//user:x@host/ä%')

    def test_takes_a_domain_before_the_user(self):
        self.logs_on(PASSWORD, user='QMTEST\\mbxuser')
        self.assertEqual(self.samba.names('NT_STATUS_OK'), {('QMTEST', 'mbxuser')})

    def test_takes_a_realm_behind_the_user(self):
        self.logs_on(PASSWORD, user='mbxuser@QMTEST.EXAMPLE')
        self.assertIn('mbxuser@QMTEST.EXAMPLE', {user for _, user in self.samba.names('NT_STATUS_OK')})

    def test_takes_a_domain_of_its_own_field(self):
        self.logs_on(PASSWORD, domain='QMTEST')
        self.assertEqual(self.samba.names('NT_STATUS_OK'), {('QMTEST', 'mbxuser')})

    def test_keeps_the_password_out_of_files_arguments_and_environments(self):
        password = 'fn0rd-never-written'
        self.samba.set_password(password)
        client = self.start_refused()
        self.answer(password)
        client.open()
        client.wait_rows(12)
        secret = password.encode()
        for folder in ('home', 'config', 'data', 'state', 'cache', 'run', 'tmp', 'logs'):
            for path in filter(pathlib.Path.is_file, (self.desktop.folder / folder).rglob('*')):
                self.assertNotIn(secret, path.read_bytes(), path)
        for pid in (client.process.pid, *helpers_of(client)):
            for what in ('cmdline', 'environ'):
                self.assertNotIn(secret, pathlib.Path(f'/proc/{pid}/{what}').read_bytes())

    def test_leaves_no_core_file_once_a_password_was_typed(self):
        client = self.start_refused()
        self.answer(PASSWORD)
        client.open()
        client.wait_rows(12)
        resource.prlimit(client.process.pid, resource.RLIMIT_CORE, (resource.RLIM_INFINITY,) * 2)
        os.kill(client.process.pid, signal.SIGSEGV)
        end = os.waitid(os.P_PID, client.process.pid, os.WEXITED | os.WNOWAIT)
        self.assertEqual((end.si_status, end.si_code), (signal.SIGSEGV, os.CLD_KILLED))  # and not CLD_DUMPED

    def test_asks_and_counts_on_when_the_password_is_changed(self):
        self.write_credentials(PASSWORD)
        client, calls = self.start_counting({FIRST: 12})
        self.samba.set_password('changed')
        self.samba.kill()  # or the old session would go on
        self.samba.start()
        self.answer('changed')
        self.add_calls(FIRST, 3)
        client.wait_popup(3, seconds=60)
        client.wait_rows(calls + 3)
        self.assertEqual(self.wrong_log_ons(), 1)

    def test_ends_while_it_asks(self):
        client = self.start_refused()
        client.process.popen.terminate()
        self.assertEqual(client.process.wait(10), 0)


class KeyringScene(LogOnScene):
    """A session with a keyring, which is open."""

    def setUp(self):
        super().setUp()
        # Without an end of its input it would wait for the rest of the password.
        self.desktop.start(['sh', '-c', 'printf keys | exec gnome-keyring-daemon --unlock --foreground '
                                        '--components=secrets'])
        self.desktop.wait_for(lambda: 'true' in self.ask_bus('org.freedesktop.DBus', '/org/freedesktop/DBus',
                                                             'org.freedesktop.DBus.NameHasOwner',
                                                             'org.freedesktop.secrets'), 'the keyring')

    def ask_bus(self, service, path, method, *words):
        return self.desktop.run(['gdbus', 'call', '--session', '--dest', service, '--object-path', path,
                                 '--method', method, *words])

    def kept_passwords(self):
        found = self.ask_bus('org.freedesktop.secrets', '/org/freedesktop/secrets',
                             'org.freedesktop.Secret.Service.SearchItems', "{'server': 'qmClient'}")
        return found.count('/collection/')

    def start_and_remember(self):
        client = self.start_refused()
        self.answer(PASSWORD, remember=True)
        client.open()
        client.wait_rows(12)
        wait_until(self.kept_passwords, 'the password to be kept')
        client.process.popen.terminate()
        client.process.wait(10)


class RememberedTest(KeyringScene):
    def test_a_remembered_password_is_asked_for_no_more(self):
        self.start_and_remember()
        client = Client(self.desktop)
        client.open()
        client.wait_rows(12)
        self.assertIsNone(self.desktop.windows.find(LOG_ON))
        self.assertEqual(self.wrong_log_ons(), 0)

    def test_a_remembered_password_that_is_refused_is_tried_once_and_forgotten_when_nobody_wants_it_kept(self):
        self.start_and_remember()
        self.samba.set_password('changed')
        client = Client(self.desktop)
        self.wait_question()
        self.assertEqual(self.wrong_log_ons(), 1)
        self.answer('changed', remember=True)  # takes the mark away: it was kept before
        client.open()
        client.wait_rows(12)
        wait_until(lambda: not self.kept_passwords(), 'the password to be forgotten')


class LockedTest(KeyringScene):
    """The keyring knows the password, but has to be opened first, which its own dialog asks for."""

    def start_locked(self):
        self.start_and_remember()
        self.desktop.run(['dbus-update-activation-environment', 'DISPLAY'])  # for that dialog
        self.ask_bus('org.freedesktop.secrets', '/org/freedesktop/secrets', 'org.freedesktop.Secret.Service.Lock',
                     "['/org/freedesktop/secrets/collection/login']")
        client = Client(self.desktop)
        self.desktop.wait_active(KEYRING, seconds=30)
        return client

    def listed(self, client):
        client.open()
        client.wait_rows(12, seconds=60)
        self.assertEqual(self.wrong_log_ons(), 0)

    def test_waits_for_the_keyring_and_asks_nobody_else_when_it_is_opened(self):
        client = self.start_locked()
        self.desktop.type('keys')
        self.desktop.key('Return')
        self.desktop.wait_no_window(KEYRING)
        self.listed(client)
        self.assertIsNone(self.desktop.windows.find(LOG_ON))

    def test_asks_as_if_there_were_none_when_the_keyring_stays_closed(self):
        client = self.start_locked()
        self.desktop.key('Escape')
        self.wait_question(seconds=15)  # sooner than without any word of the keyring
        self.answer(PASSWORD)
        self.listed(client)

    def test_lives_and_asks_itself_when_nobody_answers_the_keyring(self):
        client = self.start_locked()
        client.wait_docked()
        self.assertTrue(client.tabs() or self.desktop.objects(client.process, showing=False))
        self.desktop.wait_window(LOG_ON, seconds=60)

    def test_ends_while_the_keyring_asks(self):
        client = self.start_locked()
        client.process.popen.terminate()
        self.assertEqual(client.process.wait(10), 0)


if __name__ == '__main__':
    unittest.main(verbosity=2)
