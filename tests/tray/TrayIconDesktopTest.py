# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The tray icon on real notification areas: every start order, restarts, changes of kind, and what clicks say."""
import time
import unittest

from TrayProgram import TrayProgram
from desktop import Desktop, wait_resting, wait_until

LEFT_SNI = ['MouseDown 1', 'DoubleClick 1']
RIGHT = ['MouseDown 2', 'MouseUp 2']


def wait_icons(desktop, count=1):
    return wait_until(lambda: len(desktop.tray.icons()) == count and (desktop.tray.icons() or True), f'{count} icons', 15)


def icon_center(desktop):
    return wait_resting(lambda: next((w.center for w in desktop.tray.icons() if min(w.width, w.height) > 4), None),
                        'an icon')


def menu_window(desktop, program):
    return desktop.windows.find(pid=program.program.pid, unmanaged=True)


class EmbeddingTest(unittest.TestCase):
    def test_docks_when_the_panel_is_there_first(self):
        with Desktop(tray='trayer') as desktop:
            TrayProgram(desktop)
            wait_icons(desktop)

    def test_docks_when_the_panel_comes_later(self):
        with Desktop() as desktop:
            TrayProgram(desktop)
            desktop.tray.start('trayer')
            wait_icons(desktop)

    def test_docks_again_after_each_restart_of_the_panel(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            for _ in range(3):
                wait_icons(desktop)
                desktop.tray.stop()
                desktop.tray.start('trayer')
            wait_icons(desktop)
            self.assertTrue(program.program.alive)

    def test_leaves_the_panel_when_the_program_ends(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            wait_icons(desktop)
            self.assertEqual(program.quit(), 0)
            wait_icons(desktop, 0)

    def test_a_left_click_says_down_once(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            desktop.click(*icon_center(desktop))
            program.wait_line('MouseDown 1')
            desktop.click(*icon_center(desktop), button=3)
            wait_until(lambda: 'MouseUp 2' in program.events(), 'the right click')
            self.assertEqual([e for e in program.events() if e != 'MouseMove'], ['MouseDown 1'] + RIGHT)

    def test_a_middle_click_says_nothing(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            desktop.click(*icon_center(desktop), button=2)
            desktop.click(*icon_center(desktop))
            program.wait_line('MouseDown 1')
            self.assertEqual([e for e in program.events() if e != 'MouseMove'], ['MouseDown 1'])

    def test_a_double_click_says_double_click(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            desktop.click(*icon_center(desktop), double=True)
            program.wait_line('DoubleClick 1')

    def test_a_right_click_opens_the_menu_whose_items_can_be_chosen(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            desktop.click(*icon_center(desktop), button=3)
            wait_until(lambda: menu_window(desktop, program), 'the menu')
            desktop.key('Down', 'Down', 'Return')
            program.wait_line('MenuClick 1 config')
            wait_until(lambda: not menu_window(desktop, program), 'the end of the menu')

    def test_the_menu_opens_where_the_mouse_is(self):
        # Beside the mouse, but for the panel and the screen's right end, which it leaves free.
        for edge in ('bottom', 'top'):
            with self.subTest(edge), Desktop() as desktop:
                desktop.tray.start('trayer', edge=edge)
                program = TrayProgram(desktop)
                x, y = icon_center(desktop)
                desktop.click(x, y, button=3)
                menu = wait_until(lambda: menu_window(desktop, program), 'the menu')
                self.assertTrue(menu.x <= x <= menu.x + menu.width <= desktop.size[0], menu)
                away = menu.y - y if edge == 'top' else y - menu.y - menu.height
                self.assertTrue(0 <= away <= desktop.tray.panel().height, menu)

    def test_the_menu_closes_on_escape_and_on_a_click_elsewhere(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            # Elsewhere first: a second right click on the icon right after the first would be a double click.
            for close in (lambda: desktop.click(20, 20), lambda: desktop.key('Escape')):
                desktop.click(*icon_center(desktop), button=3)
                wait_until(lambda: menu_window(desktop, program), 'the menu')
                close()
                wait_until(lambda: not menu_window(desktop, program), 'the end of the menu')
            self.assertFalse([line for line in program.events() if line.startswith('MenuClick')])


class StatusNotifierTest(unittest.TestCase):
    def test_registers_when_the_host_is_there_first(self):
        with Desktop(tray='sni') as desktop:
            program = TrayProgram(desktop)
            wait_icons(desktop)
            ask = desktop.tray.notifier.ask
            self.assertEqual(ask('property', name='Id'), 'qmClient')
            self.assertEqual(ask('property', name='Status'), 'Active')
            self.assertGreater(ask('property', name='IconPixmap'), 3)
            self.assertEqual(ask('property', name='ToolTip')[2], 'Quillamar')
            program.send('tip Neue Anrufe')
            wait_until(lambda: ask('property', name='ToolTip')[2] == 'Neue Anrufe', 'the new tip')

    def test_registers_when_the_panel_comes_later(self):
        with Desktop() as desktop:
            TrayProgram(desktop)
            desktop.tray.start('sni')
            wait_icons(desktop)

    def test_registers_when_the_host_joins_its_watcher_later(self):
        with Desktop() as desktop:
            desktop.tray.start('sni', host=False)
            TrayProgram(desktop)
            self.assertEqual(desktop.tray.icons(), [])
            desktop.tray.notifier.ask('set_host', there=True)
            wait_icons(desktop)

    def test_registers_again_after_each_restart_of_the_panel(self):
        with Desktop(tray='sni') as desktop:
            TrayProgram(desktop)
            for _ in range(3):
                wait_icons(desktop)
                desktop.tray.stop()
                desktop.tray.start('sni')
            wait_icons(desktop)

    def test_goes_over_from_one_kind_of_panel_to_the_other_and_back(self):
        with Desktop() as desktop:
            TrayProgram(desktop)
            for kind in ('trayer', 'sni', 'trayer', 'sni', 'tint2'):
                desktop.tray.start(kind)
                wait_icons(desktop)
                desktop.tray.stop()

    def test_an_activation_says_down_and_double_click(self):
        with Desktop(tray='sni') as desktop:
            program = TrayProgram(desktop)
            wait_icons(desktop)
            desktop.tray.notifier.ask('activate')
            wait_until(lambda: program.events() == LEFT_SNI, 'the events of an activation')

    def test_the_exported_menu_is_the_menu_and_says_right_click(self):
        with Desktop(tray='sni') as desktop:
            program = TrayProgram(desktop)
            wait_icons(desktop)
            menu = desktop.tray.notifier.ask('menu')
            self.assertEqual([entry[1] for entry in menu],
                             ['View Call Log', 'Settings', '', 'About Quillamar', 'Close Quillamar Client'])
            self.assertEqual([entry[3] for entry in menu].index('separator'), 2)
            wait_until(lambda: program.events() == RIGHT, 'the events of an opened menu')
            self.assertIsNone(menu_window(desktop, program))
            desktop.tray.notifier.ask('choose', label='Settings')
            program.wait_line('MenuClick 1 config')

    def test_a_panel_without_menus_gets_the_menu_at_the_place_that_it_names(self):
        with Desktop(tray='sni') as desktop:
            program = TrayProgram(desktop)
            wait_icons(desktop)
            desktop.tray.notifier.ask('context_menu', x=300, y=200)
            menu = wait_until(lambda: menu_window(desktop, program), 'the menu')
            self.assertEqual((menu.x, menu.y), (300, 200))
            wait_until(lambda: program.events() == RIGHT, 'the events of a right click')
            desktop.key('Down', 'Down', 'Return')
            program.wait_line('MenuClick 1 config')

    def test_the_exported_menu_follows_changes(self):
        with Desktop(tray='sni') as desktop:
            program = TrayProgram(desktop)
            wait_icons(desktop)
            program.send('disable 1')
            self.assertEqual([entry[2] for entry in desktop.tray.notifier.ask('menu')], [True, False, True, True, True])


class NoAreaTest(unittest.TestCase):
    def test_tells_after_fifteen_seconds_without_a_notification_area(self):
        with Desktop() as desktop:
            started = time.monotonic()
            program = TrayProgram(desktop)
            wait_until(lambda: 'missing' in program.events(), 'word of the missing area', 25)
            self.assertGreaterEqual(time.monotonic() - started, 15)


if __name__ == '__main__':
    unittest.main()
