# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads a program's windows through the accessibility bus, as a screen reader does. A process of its own."""
from gi.repository import Gio, GLib

from answering import run

ACCESSIBLE, COMPONENT, TABLE, TEXT, VALUE = (f'org.a11y.atspi.{name}'
                                       for name in ('Accessible', 'Component', 'Table', 'Text', 'Value'))
REGISTRY, ROOT = 'org.a11y.atspi.Registry', '/org/a11y/atspi/accessible/root'
STATE_SHOWING, STATE_SELECTED, STATE_FOCUSED, STATE_ENABLED = 25, 23, 12, 8
SCREEN_COORDINATES = 0
TABLES = ('table', 'tree', 'tree table')


class Reader:
    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = session.call_sync('org.a11y.Bus', '/org/a11y/bus', 'org.a11y.Bus', 'GetAddress', None, None,
                                    Gio.DBusCallFlags.NONE, 10000, None).unpack()[0]
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        self._bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        # The programs' registry must run before the first program looks for it.
        self._bus.call_sync('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
                            'StartServiceByName', GLib.Variant('(su)', (REGISTRY, 0)), None,
                            Gio.DBusCallFlags.NONE, 10000, None)

    def _call(self, where, interface, method, arguments=None):
        return self._bus.call_sync(where[0], where[1], interface, method, arguments, None,
                                   Gio.DBusCallFlags.NO_AUTO_START, 5000, None).unpack()

    def _property(self, where, name):
        arguments = GLib.Variant('(ss)', (ACCESSIBLE, name))
        return self._call(where, 'org.freedesktop.DBus.Properties', 'Get', arguments)[0]

    def _children(self, where):
        return self._call(where, ACCESSIBLE, 'GetChildren')[0]

    def _node(self, where):
        low, high = self._call(where, ACCESSIBLE, 'GetState')[0]
        bits = low | high << 32
        return {'role': self._role(where), 'name': self._property(where, 'Name'),
                'showing': bool(bits >> STATE_SHOWING & 1), 'selected': bool(bits >> STATE_SELECTED & 1),
                'enabled': bool(bits >> STATE_ENABLED & 1),
                'focused': bool(bits >> STATE_FOCUSED & 1), 'where': list(where)}

    def _walk(self, where, found):
        """Depth first; not into tables, which have a child per cell."""
        try:
            node = self._node(where)
            found.append(node)
            for child in self._children(where) if node['role'] not in TABLES else ():
                self._walk(child, found)
        except GLib.Error:
            # The object went away while we looked.
            return

    # Questions

    def do_programs(self):
        """Pids of the programs that can be read."""
        pids = []
        for name, _ in self._children((REGISTRY, ROOT)):
            arguments = GLib.Variant('(s)', (name,))
            pids.append(self._call(('org.freedesktop.DBus', '/org/freedesktop/DBus'), 'org.freedesktop.DBus',
                                   'GetConnectionUnixProcessID', arguments)[0])
        return pids

    def do_tree(self, pid):
        """All objects of a program, outermost first."""
        found = []
        for where, number in zip(self._children((REGISTRY, ROOT)), self.do_programs()):
            if number == pid:
                self._walk(where, found)
        return found

    def do_rect(self, where):
        """(x, y, width, height) within the object's own window.

        Taken from two answers in screen coordinates: a toolkit that is wrong about the place of its window is
        equally wrong about both.
        """
        outer = where
        while (parent := self._property(outer, 'Parent')) and self._role(parent) != 'application':
            outer = parent
        x, y, width, height = self._extents(where)
        left, top, _, _ = self._extents(outer)
        return x - left, y - top, width, height

    def _role(self, where):
        return self._call(where, ACCESSIBLE, 'GetRoleName')[0]

    def _extents(self, where):
        return self._call(where, COMPONENT, 'GetExtents', GLib.Variant('(u)', (SCREEN_COORDINATES,)))[0]

    def do_row_count(self, where):
        return self._number(where, 'NRows')

    def do_cells(self, where, first, count):
        """The texts of some rows, cell by cell."""
        columns = self._number(where, 'NColumns')
        return [[self._cell(where, row, column) for column in range(columns)]
                for row in range(first, min(first + count, self._number(where, 'NRows')))]

    def _number(self, where, name):
        arguments = GLib.Variant('(ss)', (TABLE, name))
        return self._call(where, 'org.freedesktop.DBus.Properties', 'Get', arguments)[0]

    def do_cell_rect(self, where, row, column):
        return self.do_rect(self._cell_at(where, row, column))

    def do_selected_rows(self, where):
        return self._call(where, TABLE, 'GetSelectedRows')[0]

    def do_value(self, where):
        """(value, least, greatest) of a slider, and what is spoken of it."""
        numbers = [self._call(where, 'org.freedesktop.DBus.Properties', 'Get',
                              GLib.Variant('(ss)', (VALUE, name)))[0]
                   for name in ('CurrentValue', 'MinimumValue', 'MaximumValue')]
        return [*numbers, self._property(where, 'Description')]

    def do_text(self, where):
        """What a field holds."""
        return self._call(where, TEXT, 'GetText', GLib.Variant('(ii)', (0, -1)))[0]

    def _cell_at(self, where, row, column):
        return self._call(where, TABLE, 'GetAccessibleAt', GLib.Variant('(ii)', (row, column)))[0]

    def _cell(self, where, row, column):
        return self._property(self._cell_at(where, row, column), 'Name')


run(Reader())
