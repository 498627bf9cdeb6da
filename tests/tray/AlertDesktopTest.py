# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The popup on a real desktop: its place beside panels, the focus of others, its clicks, its texts."""
import unittest

from TrayProgram import TrayProgram
from desktop import Desktop, wait_until

ENGLISH = 'New calls'
GERMAN = 'Neue Anrufe'


def shown(desktop, title=ENGLISH):
    return desktop.wait_window(title)


def corner(window):
    return window.x + window.width, window.y + window.height


def wait_corner(desktop, place):
    wait_until(lambda: corner(shown(desktop)) == place, f'the popup at {place}, it is at {corner(shown(desktop))}')


class PlaceTest(unittest.TestCase):
    def test_sits_on_a_panel_at_the_bottom(self):
        with Desktop(size='1024x768', tray='trayer') as desktop:
            TrayProgram(desktop).send('alert You have  3  new calls')
            wait_corner(desktop, (1024, 768 - 24))

    def test_sits_in_the_corner_without_a_panel(self):
        with Desktop(size='1024x768') as desktop:
            TrayProgram(desktop).send('alert You have  3  new calls')
            wait_corner(desktop, (1024, 768))

    def test_sits_in_the_corner_with_a_panel_at_the_top(self):
        with Desktop(size='1024x768') as desktop:
            desktop.tray.start('trayer', edge='top')
            TrayProgram(desktop).send('alert You have  3  new calls')
            wait_corner(desktop, (1024, 768))

    def test_sits_on_the_primary_one_of_two_monitors(self):
        with Desktop(size='1024x768', monitors=2, tray='trayer') as desktop:
            TrayProgram(desktop).send('alert You have  3  new calls')
            wait_corner(desktop, (1024, 768 - 24))

    def test_moves_when_it_is_shown_again_after_the_panel_came(self):
        with Desktop(size='1024x768') as desktop:
            program = TrayProgram(desktop)
            program.send('alert You have  3  new calls')
            wait_corner(desktop, (1024, 768))
            desktop.tray.start('trayer')
            program.send('alert You have  4  new calls')
            wait_corner(desktop, (1024, 768 - 24))

    def test_keeps_its_edge_at_the_screen_when_its_text_becomes_wider(self):
        with Desktop(size='1024x768') as desktop:
            program = TrayProgram(desktop)
            program.send('alert You have  9  new calls')
            wait_corner(desktop, (1024, 768))
            width = shown(desktop).width
            program.send('alert You have  1234567  new calls')
            wait_until(lambda: shown(desktop).width > width, 'the wider text')
            wait_corner(desktop, (1024, 768))

    def test_counts_in_logical_pixels_at_twice_the_scale(self):
        with Desktop(size='1600x1200', tray='trayer') as desktop:
            TrayProgram(desktop, {'QT_SCALE_FACTOR': '2'}).send('alert You have  3  new calls')
            wait_corner(desktop, (1600, 1200 - 24))


class FocusTest(unittest.TestCase):
    def test_leaves_the_focus_alone_when_it_is_shown_and_clicked(self):
        with Desktop(tray='trayer') as desktop:
            program = TrayProgram(desktop)
            desktop.start(['xev', '-name', 'other'])
            desktop.wait_active('other')
            before = desktop.windows.activations()
            program.send('alert You have  3  new calls')
            window = shown(desktop)
            desktop.click(window.x + 20, window.y + 20)
            desktop.wait_for(lambda: desktop.windows.active().title == 'other', 'the focus')
            self.assertEqual(desktop.windows.activations(), before)
            self.assertIsNotNone(desktop.windows.find(ENGLISH))

    def test_is_above_a_window_that_comes_later(self):
        with Desktop(size='800x600') as desktop:
            program = TrayProgram(desktop)
            program.send('alert You have  3  new calls')
            desktop.start(['xev', '-name', 'large', '-geometry', '800x600+0+0'])
            desktop.wait_active('large')
            window = shown(desktop)
            order = [w.id for w in desktop.windows.all()]
            large = desktop.windows.find('large')
            self.assertGreater(order.index(window.id), order.index(large.id))

    def test_belongs_to_no_other_window(self):
        with Desktop() as desktop:
            program = TrayProgram(desktop)
            for _ in range(2):
                program.send('alert You have  3  new calls')
                window = shown(desktop)
                wait_until(lambda w=window: 'not found' in desktop.run(['xprop', '-id', w.id, 'WM_TRANSIENT_FOR']),
                           'the popup to have no owner')


class ClickTest(unittest.TestCase):
    def run_click(self, name, answer, lang='C.UTF-8', title=ENGLISH):
        with Desktop(accessibility=True, lang=lang) as desktop:
            program = TrayProgram(desktop)
            program.send('alert You have  3  new calls')
            window = shown(desktop, title)
            link = wait_until(lambda: desktop.objects(program.program, name=f'^{name}$'), f'the link {name!r}')[0]
            desktop.click_object(link, window)
            program.wait_line(answer)
            desktop.wait_no_window(title)

    def test_the_open_link_hides_the_popup_and_says_true(self):
        self.run_click('Show', 'Show 1 0')

    def test_the_close_link_hides_the_popup_and_says_false(self):
        self.run_click('Close', 'Show 0 0')

    def test_the_open_link_speaks_german(self):
        self.run_click('Anzeigen', 'Show 1 0', 'de_DE.UTF-8', GERMAN)


if __name__ == '__main__':
    unittest.main()
