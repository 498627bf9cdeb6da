# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The underlined letters of the real client's menus, which are others in each language."""
import sys
import unittest

sys.dont_write_bytecode = True
from client import TITLE  # noqa: E402
from ClientCommandsTest import DELETE, CommandsScene  # noqa: E402
from scene import FIRST  # noqa: E402

CALLS = 3


class AccessKeysTest(CommandsScene):
    menus = {'File': 'alt+f', 'Edit': 'alt+e', 'Tools': 'alt+t', 'Help': 'alt+h'}
    letters = {'miFHide': 'h', 'miFExit': 'e', 'miECopy': 'c', 'miEClear': 'd', 'miESelectAll': 'a',
               'miEFind': 'f', 'miEFindNext': 'n', 'miVOptions': 'o', 'miHContents': 'c'}
    windows = ('Help', 'miHContents'), ('Tools', 'miVOptions')

    def press(self, menu, tool):
        self.desktop.wait_active(TITLE)
        self.desktop.key(self.menus[menu])
        self.desktop.wait_for(self.popup, f'the menu {menu}')
        self.desktop.key(self.letters[tool])
        self.desktop.wait_for(lambda: not self.client.alive or not self.popup(), f'{tool} to be chosen')

    def test_every_command_that_has_a_letter_answers_to_it(self):
        self.add_calls(FIRST, CALLS)  # with the description that the options look for
        self.start_shown([FIRST])
        self.client.wait_rows(CALLS)
        self.edit()
        for menu, tool in self.windows:
            self.press(menu, tool)
            self.close_dialog(tool)
        self.press('File', 'miFHide')
        self.desktop.wait_no_window(TITLE)
        self.show()
        self.press('File', 'miFExit')
        self.assertEqual(self.client.process.wait(10), 0)

    def edit(self):
        self.press('Edit', 'miESelectAll')
        self.press('Edit', 'miECopy')
        self.wait_copied(CALLS + 2)
        for tool in ('miEFind', 'miEFindNext'):
            self.press('Edit', tool)
        self.press('Edit', 'miEClear')
        self.desktop.wait_active(DELETE)
        self.desktop.key('Escape')
        self.desktop.wait_active(TITLE)
        self.assertEqual(self.client.row_count(), CALLS)


class GermanAccessKeysTest(AccessKeysTest):
    """The menu "Datei" and the command "Optionen" have no letter."""

    lang = 'de_DE.UTF-8'
    menus = {'File': 'F10', 'Edit': 'alt+b', 'Tools': 'alt+x', 'Help': 'alt+h'}
    letters = {'miFHide': 'm', 'miFExit': 'b', 'miECopy': 'k', 'miEClear': 'l', 'miESelectAll': 'a',
               'miEFind': 'f', 'miEFindNext': 'n', 'miHContents': 'i'}
    windows = ('Help', 'miHContents'),


if __name__ == '__main__':
    unittest.main(verbosity=2)
