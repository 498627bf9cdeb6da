# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Menus, toolbar, shortcuts and clipboard of the real client, reached by keyboard alone.

Pictures of all menus in both languages, as light and dark themes show them, at normal and at double size are
left in artefacts/commands/ beside the programs' folder, to be looked at.
"""
import pathlib
import sys
import unittest

sys.dont_write_bytecode = True
from client import TITLE, Client  # noqa: E402
from desktop import DesktopError  # noqa: E402
from desktop.sound import SoundServer  # noqa: E402
from scene import FIRST, SECOND, SceneTest, run  # noqa: E402
from site_folder import BIN, program, write_settings  # noqa: E402

PICTURES = BIN.parent / 'artefacts' / 'commands'
REGISTRY = BIN.parent / 'gst-registry.bin'
DELETE = '^(Delete All Items|Alle Einträge löschen)$'

# Which menu of the bar, and which entry of it, separators not counted.
MENUS = {'miFHide': (0, 0), 'miFExit': (0, 1), 'miECopy': (1, 0), 'miEClear': (1, 1), 'miESelectAll': (1, 2),
         'miEFind': (1, 3), 'miEFindNext': (1, 4), 'miSPlay': (2, 0), 'miEDetails': (2, 1),
         'miVOptions': (2, 2), 'miHContents': (3, 0), 'miHAbout': (3, 1)}


class CommandsScene(SceneTest):
    size = '1720x1040'  # the window at double size, with its menus

    def setUp(self):
        super().setUp()
        self.desktop.env['GST_REGISTRY'] = str(REGISTRY)

    # The client

    def start_shown(self, numbers, **how):
        write_settings(self.desktop.env['XDG_CONFIG_HOME'], self.share,
                       {number: f'Box {number}' for number in numbers}, 600)
        self.client = Client(self.desktop, **how)
        self.client.wait_docked()
        self.show()

    def show(self):
        """As who has no mouse does it: by starting the program once more."""
        again = self.desktop.start([program('qmClient')])
        self.assertEqual(again.wait(20), 0)
        self.desktop.wait_active(TITLE, 20)

    def start_with_messages(self):
        """Over the demo share; gives the row of a message that plays for a while."""
        SoundServer(self.desktop).start()
        run('qmdemo', self.share, '--once')
        number = min(int(entry.name) for entry in (self.share / 'MBX').iterdir())
        self.start_shown([number])
        self.calls = self.calls_by_mdbtools(number)[::-1]
        self.client.wait_rows(len(self.calls))
        return next(row for row, call in enumerate(self.calls) if int(call['MessageLength']) >= 8)

    # Its menus

    def popup(self):
        return self.desktop.windows.find(unmanaged=True, pid=self.client.process.pid)

    def open_menu(self, number):
        self.desktop.wait_active(TITLE)
        self.desktop.key('F10')
        self.desktop.wait_for(self.popup, 'the first menu')
        if number:
            self.desktop.key(*['Right'] * number)

    def choose(self, tool):
        menu, entry = MENUS[tool]
        self.open_menu(menu)
        self.desktop.key(*['Down'] * entry, 'Return')
        self.desktop.wait_for(lambda: not self.client.alive or not self.popup(), 'the menu to close')

    def choose_in_list(self, entry):
        """Of the context menu."""
        self.desktop.wait_active(TITLE)
        self.desktop.key('shift+F10')
        self.desktop.wait_for(self.popup, 'the context menu')
        self.desktop.key('Down', *['Down'] * entry, 'Return')
        self.desktop.wait_for(lambda: not self.popup(), 'the context menu to close')

    def press_button(self, name):
        """Tab leads to it, Space presses it, Shift and Tab lead back to the list."""
        steps = 0
        while not any(button['focused'] for button in
                      self.desktop.objects(self.client.process, 'push button', name)):
            self.assertLess(steps, 12, f'Tab does not lead to {name}')
            self.desktop.key('Tab')
            steps += 1
        self.desktop.key('space', *['shift+Tab'] * steps)

    def wait_dialog(self, what):
        """A window of the client that came over the list."""
        def other():
            window = self.desktop.windows.active()
            return window and window.pid == self.client.process.pid and not self.is_main(window) and window
        return self.desktop.wait_for(other, what)

    def is_main(self, window):
        main = self.client.window()
        return main is not None and main.id == window.id

    def close_dialog(self, what):
        self.wait_dialog(what)
        self.desktop.key('Escape')
        self.desktop.wait_active(TITLE)

    def wait_copied(self, lines):
        def copied():
            text = pasted(self.desktop)
            return text if text.count('\r\n') == lines else None
        return self.desktop.wait_for(copied, f'{lines} lines on the clipboard', 30)


class CommandsTest(CommandsScene):
    language = 'en'

    def test_every_command_is_reached_by_keyboard_alone(self):
        row = self.start_with_messages()
        self.copy_and_select_all()
        for tool in ('miEFind', 'miEFindNext'):
            self.choose(tool)
            self.desktop.wait_active(TITLE)
        self.choose('miEClear')
        self.desktop.wait_active(DELETE)
        self.desktop.key('Return')  # Cancel is the default
        self.desktop.wait_active(TITLE)
        self.assertEqual(self.client.row_count(), len(self.calls))
        self.play_with_keys(row)
        for tool in ('miEDetails', 'miVOptions', 'miHContents', 'miHAbout'):
            self.choose(tool)
            self.close_dialog(tool)
        self.choose_in_list(1)
        self.close_dialog('details')
        self.choose('miFHide')
        self.desktop.wait_no_window(TITLE)
        self.show()
        self.choose('miFExit')
        self.assertEqual(self.client.process.wait(10), 0)

    def copy_and_select_all(self):
        self.choose('miESelectAll')
        self.choose('miECopy')
        text = self.wait_copied(len(self.calls) + 2)
        self.assertIn(f'\t{self.calls[0]["CallerName"]}\t', text)

    def play_with_keys(self, row):
        self.desktop.key('Home', *['Down'] * row)
        self.choose('miSPlay')
        self.client.wait_position(1)
        self.press_button('^Pause$')
        self.desktop.wait_for(lambda: self.client.position() == self.client.position(), 'the pause')
        before = self.client.position()[0]
        self.press_button('^(Fast forward|Vorspulen)$')
        self.desktop.wait_for(lambda: self.client.position()[0] > before, 'a step forwards')
        ahead = self.client.position()[0]
        self.press_button('^(Rewind|Zurückspulen)$')
        self.desktop.wait_for(lambda: self.client.position()[0] < ahead, 'a step backwards')
        self.press_button('^(Play Message|Nachricht abspielen)$')
        self.client.wait_position(before + 3)
        self.press_button('^(Stop|Anhalten)$')
        self.client.wait_silent(10)
        for start in (lambda: self.choose_in_list(0), lambda: self.desktop.key('Return'),
                      lambda: self.desktop.key('space')):
            start()
            self.client.wait_position(1)
            self.press_button('^(Stop|Anhalten)$')
            self.client.wait_silent(10)

    def test_menus_and_toolbar_are_photographed(self):
        for number in (FIRST, SECOND):
            self.make_mailbox(number, 12)
        PICTURES.mkdir(parents=True, exist_ok=True)
        for dark in (False, True):
            for scale in (1, 2):
                self.photograph(dark, scale)

    def photograph(self, dark, scale):
        env = {'QT_SCALE_FACTOR': str(scale)} | (dark_theme(self.desktop.env) if dark else {})
        self.start_shown([FIRST, SECOND], env=env)
        self.client.wait_rows(12)
        self.desktop.key('Home')
        name = f'{self.language}-{"dark" if dark else "light"}-{scale}00'
        window = self.picture(f'{name}-window')
        for number, menu in enumerate(('file', 'edit', 'tools', 'help')):
            self.open_menu(number)
            self.picture(f'{name}-{menu}')
            self.desktop.key('Escape', 'Escape')
            self.desktop.wait_for(lambda: not self.popup(), 'the menu to close')
        self.desktop.key('shift+F10')
        self.desktop.wait_for(self.popup, 'the context menu')
        self.picture(f'{name}-context')
        self.desktop.key('Escape')
        self.desktop.wait_for(lambda: not self.popup(), 'the context menu to close')
        self.assertEqual(self.brightness(window) < 0.4, dark)
        self.choose('miFExit')
        self.assertEqual(self.client.process.wait(10), 0)

    def picture(self, name):
        """Once nothing changes any more."""
        window = self.client.window()
        place = (max(0, window.x - 4), max(0, window.y - 24), window.width + 120, window.height + 60)
        file = PICTURES / f'{name}.png'
        seen = []

        def is_still():
            seen.append(self.desktop.run(['identify', '-format', '%#', self.desktop.screenshot(file, place)]))
            return seen[-2:-1] == seen[-1:]
        self.desktop.wait_for(is_still, f'the picture {name} to stay')
        return file

    def brightness(self, picture):
        return float(self.desktop.run(['convert', picture, '-gravity', 'center', '-crop', '40%x40%+0+0',
                                       '-colorspace', 'gray', '-format', '%[fx:mean]', 'info:']))


class GermanCommandsTest(CommandsTest):
    lang = 'de_DE.UTF-8'
    language = 'de'


class PasteTest(SceneTest):
    accessibility = False  # nobody reads the list here, which would keep the client busy

    def test_a_hundred_thousand_calls_are_pasted_elsewhere(self):
        calls = 100_000
        self.make_mailbox(FIRST, calls)
        self.write_settings([FIRST], seconds=600)
        client = self.desktop.start([program('qmClient')])
        icon = self.desktop.wait_for(self.desktop.tray.icons, 'the icon to dock', 60)[0]
        self.desktop.click(*icon.center, 3)
        self.desktop.wait_window(unmanaged=True, pid=client.pid, seconds=60)
        self.desktop.key('Down', 'Return')
        self.desktop.wait_active(TITLE, 60)

        def copied():
            self.desktop.key('ctrl+a', 'ctrl+c')
            text = pasted(self.desktop)
            return text if text.count('\r\n') == calls + 2 else None
        lines = self.desktop.wait_for(copied, 'all calls on the clipboard', 60).split('\r\n')
        self.assertEqual((lines[1], lines[-1]), ('', ''))
        self.assertTrue(all(line.count('\t') == 5 for line in lines[2:-1]))
        self.assertTrue(all(line.startswith('\t') and line.endswith('s\t') for line in lines[2:-1]))


def pasted(desktop):
    """The clipboard as another program pastes it; empty while nothing was copied."""
    try:
        return desktop.run(['xclip', '-o', '-selection', 'clipboard', '-t', 'text/plain'])
    except DesktopError:
        return ''


def dark_theme(env):
    """Colours as a desktop with a dark theme has them set."""
    def group(name, back, front):
        return (f'[Colors:{name}]\nBackgroundNormal={back}\nBackgroundAlternate={back}\n'
                f'ForegroundNormal={front}\nForegroundInactive=160,160,160\nForegroundLink=90,160,250\n'
                'ForegroundVisited=160,120,220\n\n')
    white = '252,252,252'
    colours = {'Window': '42,46,50', 'View': '27,30,32', 'Button': '49,54,59', 'Tooltip': '49,54,59',
               'Selection': '30,100,150'}
    (pathlib.Path(env['XDG_CONFIG_HOME']) / 'kdeglobals').write_text(
        ''.join(group(name, back, white) for name, back in colours.items()), encoding='ascii')
    return {'XDG_CURRENT_DESKTOP': 'KDE', 'KDE_SESSION_VERSION': '5'}


if __name__ == '__main__':
    unittest.main(verbosity=2)
