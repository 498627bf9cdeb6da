# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A client whose mailbox database gets damaged: its error dialog, its log, its mail programs."""
import pathlib
import re
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / 'desktop'))
from client import Client  # noqa: E402
from desktop import wait_until  # noqa: E402
from scene import FIRST, SECOND, SceneTest  # noqa: E402

PAGE = 4096
RECORD = re.compile(r'\*\*\*\*\* Error (-?[0-9]{5,}) at: [0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\r\n'
                    r'  \*\*\* Module:         ([^\r\n]*)\r\n'
                    r'  \*\*\* Procedure:      ([^\r\n]*)\r\n'
                    r'  \*\*\* Line Number:    ([0-9]+)\r\n'
                    r'  \*\*\* Description:    ([^\r\n]*)\r\n')


def with_damaged_definition(database):
    """The database with the definition page of its CallLog overwritten; all other pages are whole."""
    pages = [database[at:at + PAGE] for at in range(0, len(database), PAGE)]
    name = 'CallerName'.encode('utf-16-le')
    found = [number for number, page in enumerate(pages) if page[:2] == b'\x02\x01' and name in page]
    assert len(found) == 1, found
    pages[found[0]] = bytes(PAGE)
    return b''.join(pages)


class ErrorTest(SceneTest):
    def setUp(self):
        super().setUp()
        self.tools = self.desktop.folder / 'tools'
        self.tools.mkdir()
        self.desktop.env['PATH'] = f'{self.tools}:{self.desktop.env["PATH"]}'

    def break_client(self):
        """A client that polls a damaged database and says so."""
        self.client = self.start({FIRST: 12, SECOND: 3})
        self.sound = self.keep(FIRST)
        self.replace(FIRST, with_damaged_definition(self.sound))
        self.wait_button(self.RETRY)

    def break_first_poll(self):
        """A client whose first poll fails at a damaged database; the next one comes in an hour."""
        self.make_mailbox(FIRST, 12)
        self.sound = self.keep(FIRST)
        self.replace(FIRST, with_damaged_definition(self.sound))
        self.write_settings([FIRST], seconds=3600)
        self.client = Client(self.desktop)
        self.client.wait_docked()
        self.press(self.CANCEL)  # the list's failure
        self.wait_records(2)
        self.wait_button(self.RETRY)
        self.assertEqual([record[2] for record in self.records()], ['LoadList', 'mTimer_ThatTime'])

    IGNORE, RETRY, CANCEL, SEND, DETAILS = 'Ignore', 'Try again', 'Cancel', 'Send', 'Details >>'

    def button(self, caption):
        found = self.desktop.objects(self.client.process, 'push button', f'^{re.escape(caption)}$')
        window = self.desktop.windows.active()
        return found[0] if found and window and window.pid == self.client.process.pid else None

    def wait_button(self, caption):
        return wait_until(lambda: self.button(caption), f'a button {caption!r}', 20)

    def press(self, caption):
        self.desktop.click_object(self.wait_button(caption), self.desktop.windows.active())

    def key(self, *keys):
        """Once the dialog has the keyboard: it goes for a moment between two failures, and comes back."""
        def has_keyboard():
            return (self.button(self.CANCEL) and int(self.desktop.run(['xdotool', 'getwindowfocus', '-f']))
                    == self.desktop.windows.active().id)
        wait_until(has_keyboard, 'the dialog to have the keyboard')
        self.desktop.key(*keys)

    def log(self):
        file = self.desktop.folder / 'home' / 'qmClient.log'
        return file.read_bytes().decode() if file.exists() else ''

    def records(self):
        return RECORD.findall(self.log())

    def wait_records(self, count):
        wait_until(lambda: len(self.records()) >= count, f'{count} records in the log', 20)

    def record_calls_of(self, program):
        """A program of that name first in PATH that keeps what it is given."""
        record = self.desktop.folder / program
        script = self.tools / program
        script.write_text(f"#!/bin/sh\ncat > '{record}.input'\nprintf '%s\\0' \"$@\" > '{record}.new'\n"
                          f"mv '{record}.new' '{record}.arguments'\n")
        script.chmod(0o755)

    def called(self, program):
        return (self.desktop.folder / f'{program}.arguments').exists()

    def call_of(self, program):
        """Its arguments and its input."""
        record = self.desktop.folder / f'{program}.arguments'
        wait_until(record.exists, f'a call of {program}', 20)
        return (record.read_bytes().decode().split('\0')[:-1],
                (self.desktop.folder / f'{program}.input').read_bytes())
