# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A minimal panel of the StatusNotifier kind: a watcher and, when told, a host. A process of its own."""
from gi.repository import Gio, GLib

from answering import run

WATCHER, WATCHER_PATH = 'org.kde.StatusNotifierWatcher', '/StatusNotifierWatcher'
ITEM, MENU = 'org.kde.StatusNotifierItem', 'com.canonical.dbusmenu'
XML = f'''
<node>
  <interface name="{WATCHER}">
    <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
    <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
    <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
    <property name="ProtocolVersion" type="i" access="read"/>
    <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
    <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
    <signal name="StatusNotifierHostRegistered"/>
    <signal name="StatusNotifierHostUnregistered"/>
  </interface>
</node>'''


class Panel:
    def __init__(self):
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self._items, self._host, self._name = [], False, 0
        interface = Gio.DBusNodeInfo.new_for_xml(XML).interfaces[0]
        self._bus.register_object(WATCHER_PATH, interface, self._called, self._property, None)
        self._bus.signal_subscribe('org.freedesktop.DBus', 'org.freedesktop.DBus', 'NameOwnerChanged',
                                   None, None, Gio.DBusSignalFlags.NONE, self._owner_changed)

    def _called(self, _bus, sender, _path, _interface, method, arguments, invocation):
        if method == 'RegisterStatusNotifierItem':
            said = arguments.unpack()[0]
            name, path = (sender, said) if said.startswith('/') else (said, '/StatusNotifierItem')
            self._items.append((sender, name, path))
            self._emit('StatusNotifierItemRegistered', GLib.Variant('(s)', (name + path,)))
        invocation.return_value(None)

    def _property(self, _bus, _sender, _path, _interface, name):
        return {'RegisteredStatusNotifierItems': GLib.Variant('as', [n + p for _, n, p in self._items]),
                'IsStatusNotifierHostRegistered': GLib.Variant('b', self._host),
                'ProtocolVersion': GLib.Variant('i', 0)}[name]

    def _owner_changed(self, _bus, _sender, _path, _interface, _signal, arguments):
        name, _, new = arguments.unpack()
        for item in [i for i in self._items if not new and name in i[:2]]:
            self._items.remove(item)
            self._emit('StatusNotifierItemUnregistered', GLib.Variant('(s)', (item[1] + item[2],)))

    def _emit(self, signal, arguments=None):
        self._bus.emit_signal(None, WATCHER_PATH, WATCHER, signal, arguments)

    def _call(self, path, interface, method, arguments):
        # The item is the only one: a desktop of ours runs one program with an icon.
        answer = self._bus.call_sync(self._items[0][1], path, interface, method, arguments, None,
                                     Gio.DBusCallFlags.NO_AUTO_START, 5000, None)
        return answer.unpack()

    def _menu_path(self):
        return self.do_property(name='Menu')

    # Questions

    def do_own_name(self):
        """Answers once the name is ours."""
        flags = GLib.Variant('(su)', (WATCHER, 4))
        answer = self._bus.call_sync('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
                                     'RequestName', flags, None, Gio.DBusCallFlags.NONE, 5000, None)
        return answer.unpack()[0] == 1

    def do_set_host(self, there):
        self._host = there
        self._emit('StatusNotifierHostRegistered' if there else 'StatusNotifierHostUnregistered')
        return there

    def do_items(self):
        return [name + path for _, name, path in self._items]

    def do_property(self, name):
        arguments = GLib.Variant('(ss)', (ITEM, name))
        value = self._call(self._items[0][2], 'org.freedesktop.DBus.Properties', 'Get', arguments)[0]
        return len(value) if name.endswith('Pixmap') else value

    def do_activate(self):
        self._call(self._items[0][2], ITEM, 'Activate', GLib.Variant('(ii)', (0, 0)))
        return True

    def do_context_menu(self, x, y):
        """As panels do that draw no menus of their own."""
        self._call(self._items[0][2], ITEM, 'ContextMenu', GLib.Variant('(ii)', (x, y)))
        return True

    def do_menu(self):
        """[(id, label, enabled, type), …] as published, underscores of access keys taken out."""
        menu = self._menu_path()
        self._call(menu, MENU, 'AboutToShow', GLib.Variant('(i)', (0,)))
        _, (_, _, children) = self._call(menu, MENU, 'GetLayout', GLib.Variant('(iias)', (0, -1, [])))
        return [(n, p.get('label', '').replace('_', ''), p.get('enabled', True), p.get('type', 'standard'))
                for n, p, _ in children]

    def do_choose(self, label):
        number = next((n for n, text, _, _ in self.do_menu() if text == label), None)
        if number is None:
            raise LookupError(f'no menu entry {label!r}')
        event = GLib.Variant('(isvu)', (number, 'clicked', GLib.Variant('s', ''), 0))
        self._call(self._menu_path(), MENU, 'Event', event)
        return True


run(Panel())
