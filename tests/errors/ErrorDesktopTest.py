# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Failures of the real client: the log, the dialog and the mailed report as their user has them.

What is to be looked at afterwards is kept in the build folder: artefacts/errors.
"""
import email
import email.policy
import os
import pathlib
import shutil
import sys
import unittest
import urllib.parse

sys.dont_write_bytecode = True
from error_scene import RECORD, ErrorTest, with_damaged_definition  # noqa: E402
from client import CLOSE, Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from scene import FIRST, SECOND  # noqa: E402
from site_folder import program  # noqa: E402

ARTEFACTS = pathlib.Path(os.environ['QM_BIN']).parent / 'artefacts' / 'errors'
ARTEFACTS.mkdir(parents=True, exist_ok=True)


class PollTest(ErrorTest):
    def test_try_again_goes_on_with_the_poll_once_the_definition_is_put_right(self):
        client = self.client = self.start({FIRST: 12, SECOND: 3})
        self.sound = self.keep(FIRST)
        self.replace(SECOND, b'This is no database at all. ' * 1000)
        self.replace(FIRST, with_damaged_definition(self.sound))
        self.wait_records(1)
        self.press(self.RETRY)
        self.wait_records(2)
        self.wait_button(self.RETRY)
        self.replace(FIRST, self.sound)
        self.add_calls(FIRST, 2)
        self.press(self.RETRY)
        self.assertEqual(client.wait_popup(2), 'You have  2  new calls')
        log = self.log()
        (ARTEFACTS / 'qmClient.log').write_bytes(log.encode())
        self.assertEqual(RECORD.sub('', log), '', 'nothing but whole records')
        for number, module, procedure, line, description in self.records():
            self.assertEqual((module, procedure), ('frmMain', 'mTimer_ThatTime'))
            self.assertLess(int(number), 0)
            self.assertGreater(int(line), 0)
            self.assertIn(rf'MBX\{FIRST}\qmLog.mdb', description)

    def test_try_again_runs_the_failing_statement_itself_not_the_next_tick(self):
        self.break_first_poll()
        self.replace(FIRST, self.sound)
        self.press(self.RETRY)
        self.client.open()
        self.client.wait_rows(12)
        self.assertEqual(len(self.records()), 2)

    def test_ignore_goes_on_with_the_next_mailbox(self):
        self.break_client()
        self.add_calls(SECOND, 1)
        self.press(self.IGNORE)
        self.client.wait_popup_past_errors(1)

    def test_the_log_is_the_programs_and_lies_with_its_state_where_its_folder_takes_no_file(self):
        renamed = self.desktop.folder / 'tools' / 'calls.exe'
        shutil.copy(program('qmClient'), renamed)
        self.make_mailbox(FIRST, 1)
        self.replace(FIRST, with_damaged_definition(self.keep(FIRST)))
        self.write_settings([FIRST])
        self.client = Client(self.desktop, renamed, cwd='/proc')
        self.wait_button(self.RETRY)
        log = self.desktop.folder / 'state' / 'Corvantis' / 'Quillamar' / 'calls.log'
        self.assertGreaterEqual(len(RECORD.findall(log.read_bytes().decode())), 1)
        self.press('Details >>')
        wait_until(lambda: 'Quillamar Client (calls)' in self.texts(), 'the program in the details')

    def texts(self):
        """What the dialog's fields of one line hold."""
        return [self.desktop.reader().ask('text', where=field['where'])
                for field in self.desktop.objects(self.client.process, 'text')]

    def test_close_in_the_icons_menu_ends_the_program_while_the_dialog_is_up(self):
        self.break_first_poll()
        self.client.choose(CLOSE)
        self.assertEqual(self.client.process.wait(5), 0)

    def test_a_failure_can_be_read_in_the_log_while_its_dialog_is_up(self):
        self.break_client()
        self.assertGreaterEqual(len(self.records()), 1)
        self.assertEqual(RECORD.sub('', self.log()), '')


class ReportTest(ErrorTest):
    def test_send_gives_the_report_to_the_mail_transfer_program(self):
        self.record_calls_of('sendmail')
        self.break_client()
        self.press(self.SEND)
        self.wait_button('No')
        self.assertFalse(self.called('sendmail'), 'nothing goes out before the user has answered')
        self.press('No')
        arguments, message = self.call_of('sendmail')
        self.assertEqual(arguments, ['-i', '--', 'support@corvantis.example'])
        (ARTEFACTS / 'report.eml').write_bytes(message)
        mail = email.message_from_bytes(message, policy=email.policy.default)
        self.assertEqual(mail.defects, [])
        self.assertEqual(mail['To'], 'support@corvantis.example')
        self.assertEqual(mail['Subject'], 'Quillamar Client Error-Report: Quillamar Client (qmClient)')
        self.assertIsNotNone(mail['Date'].datetime)
        lines = mail.get_content().splitlines()
        self.assertRegex(lines[0], '^Error occured at: [0-9]{4}-')
        self.assertEqual(lines[2], 'Component: \tQuillamar Client (qmClient)')
        self.assertEqual(lines[4], 'Modul:     \tfrmMain - mTimer_ThatTime')
        self.press('OK')
        self.press(self.CANCEL)

    def test_yes_hands_the_report_to_the_users_mail_program(self):
        self.record_calls_of('xdg-email')
        self.record_calls_of('sendmail')
        self.break_client()
        self.press(self.SEND)
        self.press('Yes')
        arguments, _ = self.call_of('xdg-email')
        self.assertEqual(len(arguments), 1)
        uri = urllib.parse.urlsplit(arguments[0])
        fields = dict(urllib.parse.parse_qsl(uri.query, strict_parsing=True))
        self.assertEqual(uri.path, 'support@corvantis.example')
        self.assertEqual(fields['subject'], 'Quillamar Client Error-Report: Quillamar Client (qmClient)')
        self.assertTrue(fields['body'].startswith('Error occured at: '), fields['body'])
        self.assertIn(f'\\\\srv01\\Quillamar_0$\\MBX\\{FIRST}\\qmLog.mdb', fields['body'])
        self.assertTrue(fields['body'].endswith('Comments:  \r\n\r\n'), repr(fields['body'][-40:]))
        self.assertFalse(self.called('sendmail'))
        self.press(self.CANCEL)


class GermanTest(ErrorTest):
    lang = 'de_DE.UTF-8'
    RETRY = 'Wiederholen'

    def test_the_dialog_is_german_collapsed_and_expanded(self):
        self.break_client()
        for caption in ('Senden', 'Ignorieren', 'Wiederholen', 'Abbrechen', 'Details >>'):
            self.assertTrue(self.button(caption), caption)
        take_pictures(self, 'de')

    def test_the_question_about_the_report_is_german_and_so_is_its_subject(self):
        self.record_calls_of('sendmail')
        self.break_client()
        self.press('Senden')
        for caption in ('Ja', 'Nein', 'Abbrechen'):
            self.wait_button(caption)
        self.press('Nein')
        _, message = self.call_of('sendmail')
        mail = email.message_from_bytes(message, policy=email.policy.default)
        self.assertEqual(mail['Subject'], 'Quillamar Client Fehler-Bericht:Quillamar Client (qmClient)')
        self.press('OK')


class EnglishTest(ErrorTest):
    def test_the_dialog_is_english_collapsed_and_expanded(self):
        self.break_client()
        for caption in ('Send', 'Ignore', 'Try again', 'Cancel', 'Details >>'):
            self.assertTrue(self.button(caption), caption)
        take_pictures(self, 'en')


def take_pictures(test, language):
    window = test.desktop.windows.active()
    test.desktop.screenshot(ARTEFACTS / f'dialog-{language}-collapsed.png', window.rect)
    test.press('Details >>')
    test.wait_button('Details <<')
    wait_until(lambda: test.desktop.windows.active().height > window.height, 'the dialog to grow')
    window = test.desktop.windows.active()
    test.desktop.screenshot(ARTEFACTS / f'dialog-{language}-expanded.png', window.rect)


if __name__ == '__main__':
    unittest.main(verbosity=2)
