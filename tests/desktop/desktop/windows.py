# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The windows of a desktop as the X server and the window manager see them, never as a toolkit says."""
import dataclasses
import re

from .xconnection import EVENT_PROPERTY, XConnection

_USER_CLOSES = 2
_DESKTOPS = 2  # no window manager begins with so many


@dataclasses.dataclass
class Window:
    """A top-level window: place and size without frame, in pixels of the root window."""
    id: int
    title: str
    cls: str
    pid: int
    x: int
    y: int
    width: int
    height: int
    visible: bool
    unmanaged: bool
    types: list
    states: list

    @property
    def rect(self):
        return self.x, self.y, self.width, self.height

    @property
    def center(self):
        return self.x + self.width // 2, self.y + self.height // 2


class Windows:
    def __init__(self, display):
        self._x = XConnection(display)
        self._x.watch_root()
        self._activations = 0

    def close(self):
        self._x.close()

    def selection_owner(self, name):
        return self._x.selection_owner(name)

    def window_manager_answers(self):
        """Asks it for another number of desktops, true once it has it.

        Its announcement is not enough: a window that is mapped before it listens is never managed. Switching
        the desktop would show its name in the middle of the screen for a while, above the client's dialogs.
        """
        if self._x.numbers(self._x.root, '_NET_NUMBER_OF_DESKTOPS') == [_DESKTOPS]:
            return True
        self._x.tell_window_manager(self._x.root, '_NET_NUMBER_OF_DESKTOPS', _DESKTOPS)
        return False

    def window(self, number):
        """One window by its id, None when it is gone."""
        x = self._x
        attributes, geometry = x.attributes(number), x.geometry(number)
        if not attributes or not geometry:
            return None
        pid = x.numbers(number, '_NET_WM_PID')
        return Window(number, x.text(number, '_NET_WM_NAME', 'WM_NAME'),
                      x.text(number, 'WM_CLASS').strip('\0').split('\0')[-1], pid[0] if pid else 0, *geometry,
                      *attributes, self._words(number, '_NET_WM_WINDOW_TYPE'),
                      self._words(number, '_NET_WM_STATE'))

    def _words(self, number, name):
        return [self._x.atom_name(atom).removeprefix(name + '_') for atom in self._x.numbers(number, name)]

    def all(self, hidden=False):
        """Top-level windows: the managed ones, then menus, tool tips and the like that no manager knows."""
        numbers = self._x.numbers(self._x.root, '_NET_CLIENT_LIST_STACKING')
        others = [n for n in self._x.children(self._x.root) if n not in numbers]
        numbers += [n for n in others if self._x.property(n, 'WM_CLASS')]
        found = [w for w in map(self.window, numbers) if w]
        return [w for w in found if w.visible or hidden]

    def find(self, title=None, cls=None, pid=None, unmanaged=None, hidden=False):
        """The topmost window that fits (title and class are regular expressions), or None."""
        for w in reversed(self.all(hidden)):
            if ((title is None or re.search(title, w.title)) and (cls is None or re.search(cls, w.cls))
                    and pid in (None, w.pid) and unmanaged in (None, w.unmanaged)):
                return w
        return None

    def active(self):
        """The window that has the focus, as the manager says, or None."""
        number = self._x.numbers(self._x.root, '_NET_ACTIVE_WINDOW')
        return self.window(number[0]) if number and number[0] else None

    def activations(self):
        """How often the active window has changed so far: equal numbers mean that nobody took the focus."""
        self._activations += self._x.events().count((EVENT_PROPERTY, '_NET_ACTIVE_WINDOW'))
        return self._activations

    def ask_to_close(self, window):
        """What the close button of a frame does."""
        self._x.tell_window_manager(window.id, '_NET_CLOSE_WINDOW', 0, _USER_CLOSES)

    def ask_to_activate(self, window):
        self._x.tell_window_manager(window.id, '_NET_ACTIVE_WINDOW', _USER_CLOSES, 0)

    def descendants(self, number):
        """Ids of all windows inside a window."""
        found = []
        for child in self._x.children(number):
            found += [child, *self.descendants(child)]
        return found

    def embedded(self, number):
        """The visible windows inside a notification area that follow the XEmbed protocol."""
        icons = [n for n in self.descendants(number) if self._x.property(n, '_XEMBED_INFO')]
        return [w for w in map(self.window, icons) if w and w.visible and w.width > 4 and w.height > 4]

    def strut(self, window):
        """[left, right, top, bottom, …] that a panel reserves; empty when it reserves nothing."""
        return (self._x.numbers(window.id, '_NET_WM_STRUT_PARTIAL')
                or self._x.numbers(window.id, '_NET_WM_STRUT'))
