# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The client as its user sees it: icon, menu, window, popup. Texts are read as a screen reader does."""
import re

from desktop import DesktopError, wait_resting, wait_until
from site_folder import program

TITLE = '^(Quillamar Calls|Quillamar - Anrufe)$'
POPUP = '^(You have  [0-9]+  new calls|Sie haben [0-9]+ neue Anrufe)$'
SHOW = '^(Show|Anzeigen)$'
X = '^(Close|Schließen)$'  # what the "x" is called for those who hear it
OPEN, CONFIG, ABOUT, CLOSE = 1, 2, 3, 4
# A program that was just started on a busy machine.
START_SECONDS = 30


class Client:
    """Runs qmClient on a desktop that was made with accessibility=True and has a tray of the XEmbed kind."""

    def __init__(self, desktop, executable=None, **how):
        self.desktop = desktop
        self.process = desktop.start([executable or program('qmClient')], **how)
        self.process.ends_well = True
        self._half = 1

    @property
    def alive(self):
        return self.process.alive

    def wait_docked(self):
        """The icon in the notification area; it comes last of the start-up's steps."""
        def docked():
            if not self.alive:
                raise DesktopError(f'the client has ended ({self.process.popen.returncode}): '
                                   f'{self.process.errors()[-800:]}')
            return self.desktop.tray.icons()
        wait_until(docked, 'the icon to dock', START_SECONDS)
        reader = self.desktop.reader()
        wait_until(lambda: self.process.pid in reader.ask('programs'), 'the client to be readable')
        return wait_resting(lambda: docked()[0], 'the icon to rest')

    # Menu

    def open_menu(self):
        """The icon's, with the right button."""
        x, y = self.wait_docked().center
        # Two clicks at one place within the double-click time are a double click, which opens no menu: every
        # second one goes to the other half of the icon.
        self._half = -self._half
        self.desktop.click(x + 5 * self._half, y, 3)
        self.desktop.wait_window(unmanaged=True, pid=self.process.pid)

    def wait_no_menu(self):
        self.desktop.wait_for(lambda: not self.desktop.windows.find(unmanaged=True, pid=self.process.pid)
                              or not self.alive, 'the menu to close')

    def choose(self, entry):
        """Picks an entry of the icon's menu by keyboard; the separator is not counted."""
        self.open_menu()
        self.desktop.key(*['Down'] * entry, 'Return')
        self.wait_no_menu()

    def open(self):
        self.choose(OPEN)
        return self.desktop.wait_window(TITLE)

    def hide(self):
        """With the close box."""
        self.desktop.windows.ask_to_close(self.window())
        self.desktop.wait_no_window(TITLE)

    def window(self):
        return self.desktop.windows.find(TITLE)

    def objects(self, role, name=None, showing=False):
        """What a screen reader finds of it."""
        return self.desktop.objects(self.process, role, name, showing)

    # List: it can be read once the window was shown, hidden or not

    def _list(self):
        tables = [o for role in ('table', 'tree', 'tree table') for o in self.objects(role)]
        if len(tables) != 1:
            raise DesktopError(f'{len(tables)} lists instead of one')
        return tables[0]['where']

    def row_count(self):
        return self.desktop.reader().ask('row_count', where=self._list())

    def rows(self, count=20, first=0):
        """The texts of the list, row by row."""
        return self.desktop.reader().ask('cells', where=self._list(), first=first, count=count)

    def wait_rows(self, count, seconds=15):
        wait_until(lambda: self.row_count() == count, f'{count} rows in the list', seconds)

    def wait_line(self, text, seconds=15):
        """A list that holds nothing but one line of status."""
        wait_until(lambda: [''.join(row) for row in self.rows()] == [text], f'the line {text!r}', seconds)

    def tabs(self):
        return [o['name'] for o in self.objects('page tab', showing=True)]

    def click_tab(self, name):
        tabs = [o for o in self.objects('page tab', showing=True) if o['name'] == name]
        if len(tabs) != 1:
            raise DesktopError(f'{len(tabs)} tabs {name!r} instead of one')
        self.desktop.click_object(tabs[0], self.window())

    # Player

    def selected_rows(self):
        return self.desktop.reader().ask('selected_rows', where=self._list())

    def place_of(self, row):
        """The middle of a row's date, which is the first to show a text, on the screen."""
        x, y, width, height = self.desktop.reader().ask('cell_rect', where=self._list(), row=row, column=1)
        window = self.window()
        return window.x + x + width // 2, window.y + y + height // 2

    def double_click(self, row):
        self.desktop.wait_active(TITLE)
        self.desktop.click(*self.place_of(row), double=True)

    def position(self):
        """The player's percentage and what a screen reader says of it."""
        sliders = self.objects('slider', '^Position$')
        if len(sliders) != 1:
            raise DesktopError(f'{len(sliders)} players instead of one')
        value, least, greatest, spoken = self.desktop.reader().ask('value', where=sliders[0]['where'])
        if (least, greatest) != (0, 100):
            raise DesktopError(f'the player goes from {least} to {greatest}')
        return value, spoken

    def wait_position(self, at_least, seconds=20):
        wait_until(lambda: self.position()[0] >= at_least, f'the player to reach {at_least} %', seconds)

    def seek(self, fraction):
        """A click on the player's track."""
        track = self.objects('slider', '^Position$', showing=True)[0]['where']
        x, y, width, height = self.desktop.reader().ask('rect', where=track)
        window = self.window()
        self.desktop.click(window.x + x + width * fraction, window.y + y + height // 2)

    def wait_silent(self, seconds=30):
        wait_until(lambda: not self.position()[1], 'the message to end', seconds)

    def press(self, button):
        """A button of the status band by the name that is heard."""
        found = self.objects('push button', button, showing=True)
        if len(found) != 1:
            raise DesktopError(f'{len(found)} buttons {button!r} instead of one')
        self.desktop.click_object(found[0], self.window())

    # Popup

    def popup_text(self):
        found = self.objects('label', POPUP, showing=True)
        return found[0]['name'] if found else None

    def popup_window(self):
        """Where the X server has it, None while it is hidden."""
        windows = [w for w in self.desktop.windows.all()
                   if w.pid == self.process.pid and not re.search(TITLE, w.title) and not w.unmanaged]
        return windows[0] if windows else None

    def wait_popup_window(self):
        """A screen reader may hear of the popup before the X server has its window."""
        return wait_until(self.popup_window, 'the popup')

    def wait_popup(self, number=None, seconds=15):
        """Until it is up, and announces that many calls if a number is told; gives its text."""
        def announced():
            text = self.popup_text()
            return text if text and (number is None or int(re.search('[0-9]+', text)[0]) == number) else None
        return wait_until(announced, f'the popup to announce {number or "calls"}', seconds)

    def wait_no_popup(self):
        wait_until(lambda: not self.popup_window(), 'the popup to hide')

    def link(self, name):
        """One of the popup's links, as a screen reader finds it."""
        roles = ('label', 'link', 'push button', 'button')
        found = [o for role in roles for o in self.objects(role, name, showing=True)]
        if len(found) != 1:
            raise DesktopError(f'{len(found)} links {name!r} instead of one')
        return found[0]

    def click_link(self, name):
        """With the mouse."""
        self.desktop.click_object(self.link(name), self.wait_popup_window())

    # Error dialogs

    def ignore_errors(self):
        """Answers an error dialog that stands open; true if there was one."""
        return self.answer_error('^(Ignore|Ignorieren)$')

    def answer_error(self, button):
        buttons = self.objects('push button', button, showing=True)
        dialogs = [w for w in self.desktop.windows.all()
                   if w.pid == self.process.pid and 'MODAL' in w.states]
        if not buttons or not dialogs:
            return False
        self.desktop.click_object(buttons[0], dialogs[0])
        return True

    def wait_popup_past_errors(self, number, seconds=30):
        """As wait_popup, answering error dialogs: the popup does not come while one is up."""
        def announced():
            self.ignore_errors()
            text = self.popup_text()
            return text and int(re.search('[0-9]+', text)[0]) == number
        wait_until(announced, f'the popup to announce {number}', seconds)
