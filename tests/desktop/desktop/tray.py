# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A desktop's notification area: trayer or tint2 (XEmbed), or a StatusNotifier panel of our own."""
from .question_process import QuestionProcess
from .processes import DesktopError, wait_until

SELECTION = '_NET_SYSTEM_TRAY_S0'
TINT2 = '''panel_items = S
panel_position = {edge} right horizontal
panel_size = 25% 30
panel_monitor = {monitor}
panel_dock = 0
panel_layer = top
strut_policy = follow_size
systray_padding = 4 2 4
systray_icon_size = 22
'''


class Tray:
    """One notification area at a time. `start` is the desktop's way to start a program."""

    def __init__(self, windows, start, env, folder):
        self._windows, self._start, self._env, self._folder = windows, start, env, folder
        self._program = self.notifier = None
        self.kind = 'none'

    def start(self, kind, edge='bottom', monitor=0, host=True):
        """kind: trayer, tint2 or sni; host=False: an sni panel whose host has not come yet."""
        if self.kind != 'none':
            raise DesktopError(f'{self.kind} is already there')
        if kind == 'sni':
            self.notifier = QuestionProcess('notifier_host.py', self._env, self._folder, self._folder / 'logs')
            self.notifier.ask('own_name')
            if host:
                self.notifier.ask('set_host', there=True)
        else:
            self._program = self._start(self._command(kind, edge, monitor))
            wait_until(lambda: self._windows.selection_owner(SELECTION) and self.panel(),
                       f'{kind} to dock', 15)
        self.kind = kind

    def _command(self, kind, edge, monitor):
        if kind == 'trayer':
            return ['trayer', '--edge', edge, '--align', 'right', '--widthtype', 'percent', '--width', '100',
                    '--height', '24', '--monitor', monitor,
                    '--SetDockType', 'true', '--SetPartialStrut', 'true']
        if kind == 'tint2':
            settings = self._folder / 'tint2rc'
            settings.write_text(TINT2.format(edge=edge, monitor=monitor + 1))
            return ['tint2', '-c', settings]
        raise DesktopError(f'no notification area of kind {kind!r}')

    def stop(self):
        """Ends it, as when a panel crashes."""
        if self.notifier:
            self.notifier.end()
        if self._program:
            self._program.end()
            wait_until(lambda: not self._windows.selection_owner(SELECTION), 'the tray selection to be free')
        self._program = self.notifier = None
        self.kind = 'none'

    def panel(self):
        """The panel's window (trayer and tint2), or None."""
        if self._program and not self._program.alive:
            raise DesktopError(f'{self._program.name} has ended: {self._program.errors()[-500:]}')
        docks = [w for w in self._windows.all() if 'DOCK' in w.types]
        return docks[-1] if docks else None

    def icons(self):
        """Windows inside the panel, or the names of the StatusNotifier items."""
        if self.kind == 'sni':
            return self.notifier.ask('items')
        panel = self.panel() if self.kind != 'none' else None
        return self._windows.embedded(panel.id) if panel else []
