# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A private desktop: X server, session bus, window manager, notification area, all folders temporary."""
import os
import re
import subprocess

from .question_process import QuestionProcess
from .processes import MARK, DesktopError, Program, adopt_orphans, end_strays, temporary_folder, wait_until
from .tray import Tray
from .windows import Windows

# What a program may inherit from the desktop that the test was started on.
_INHERITED = ('PATH', 'TERM', 'TZ', 'LD_LIBRARY_PATH', 'ASAN_OPTIONS', 'UBSAN_OPTIONS', 'LSAN_OPTIONS')
_DIRECTORIES = {'HOME': 'home', 'XDG_CONFIG_HOME': 'config', 'XDG_DATA_HOME': 'data',
                'XDG_STATE_HOME': 'state', 'XDG_CACHE_HOME': 'cache', 'XDG_RUNTIME_DIR': 'run',
                'TMPDIR': 'tmp'}


class Desktop:
    """with Desktop(tray='trayer') as desktop: desktop.start([...]) … Everything ends with the block.

    If this process itself is killed, its programs die with it and a waiting shell removes the folder.
    """

    def __init__(self, size='1280x800', monitors=1, lang='C.UTF-8', tray='none', wm=True,
                 accessibility=False):
        self.size, self.monitors, self.lang = tuple(map(int, size.split('x'))), monitors, lang
        self._wanted_tray, self._wm, self._accessibility = tray, wm, accessibility
        self._programs, self._reader = [], None
        self.windows = self.tray = None

    def __enter__(self):
        adopt_orphans()
        self._lifetime = temporary_folder('qm-desktop-')
        self.folder = self._lifetime.__enter__()
        try:
            self._start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        if self.tray:
            self.tray.stop()
        if self._reader:
            self._reader.end()
        if self.windows:
            self.windows.close()
        # Last started, first ended: the X server and the bus outlive their users.
        complaints = [program.end_or_complain() for program in reversed(self._programs)]
        if left := end_strays(self.folder):
            complaints.append(f'processes {left} of the desktop do not end')
        self._lifetime.__exit__(None, None, None)
        if any(complaints):
            raise DesktopError('; '.join(filter(None, complaints)))

    def _start(self):
        logs = self.folder / 'logs'
        logs.mkdir()
        self.env = {name: os.environ[name] for name in _INHERITED if name in os.environ}
        self.env |= {MARK: str(self.folder), 'LANG': self.lang, 'QT_QPA_PLATFORM': 'xcb',
                     'NO_AT_BRIDGE': '1'}
        for name, folder in _DIRECTORIES.items():
            (self.folder / folder).mkdir(mode=0o700)
            self.env[name] = str(self.folder / folder)
        if self._accessibility:
            self.env |= {'QT_LINUX_ACCESSIBILITY_ALWAYS_ON': '1'}
        self._compile_locale()
        self._start_bus()
        self._start_x_server()
        self.windows = Windows(self.env['DISPLAY'])
        if self._wm:
            self.start(['openbox', '--sm-disable'])
            wait_until(self.windows.window_manager_answers, 'the window manager to answer')
        self.tray = Tray(self.windows, self.start, self.env, self.folder)
        if self._accessibility:
            self.reader().ask('programs')
        if self._wanted_tray != 'none':
            self.tray.start(self._wanted_tray)

    def _compile_locale(self):
        """Programs complain about a locale that is not compiled, and fall back to another character set."""
        known = self.run(['locale', '-a']).lower().replace('-', '').split()
        if self.lang.lower().replace('-', '') in known:
            return
        name, _, charset = self.lang.partition('.')
        (self.folder / 'locale').mkdir()
        subprocess.run(['localedef', '-i', name, '-f', charset, self.folder / 'locale' / self.lang],
                       capture_output=True, check=False)
        if not (self.folder / 'locale' / self.lang / 'LC_CTYPE').exists():
            raise DesktopError(f'the locale {self.lang} cannot be compiled: is locales installed?')
        self.env['LOCPATH'] = str(self.folder / 'locale')

    def _start_with_answer(self, argv):
        """Starts a program that writes a line to the descriptor %FD% once it is ready; gives that line."""
        reading, writing = os.pipe()
        program = self.start([str(word).replace('%FD%', str(writing)) for word in argv], pass_fds=(writing,))
        os.close(writing)
        with open(reading, encoding='ascii') as answer:
            line = answer.readline().strip()
        if not line:
            raise DesktopError(f'{program.name} does not start: {program.errors()[-500:]}')
        return line

    def _start_bus(self):
        address = self._start_with_answer(['dbus-daemon', '--session', '--nofork', '--nopidfile',
                                           '--print-address=%FD%'])
        # Nothing of the machine's real system bus may be reachable.
        self.env |= {'DBUS_SESSION_BUS_ADDRESS': address, 'DBUS_SYSTEM_BUS_ADDRESS': address}

    def _start_x_server(self):
        width, height = self.size
        screen = f'{width * self.monitors}x{height}x24'
        number = self._start_with_answer(['Xvfb', '-displayfd', '%FD%', '-screen', '0', screen,
                                          '-nolisten', 'tcp', '-noreset', '-dpi', '96'])
        self.env['DISPLAY'] = f':{number}'
        for i in range(self.monitors if self.monitors > 1 else 0):
            self.run(['xrandr', '--setmonitor', f'{"*" if i == 0 else ""}M{i}',
                      f'{width}/300x{height}/200+{i * width}+0', 'none' if i else 'screen'])

    # Programs

    def start(self, argv, env=None, cwd=None, pass_fds=()):
        """A program on this desktop; a value None in env takes the variable away."""
        merged = {k: v for k, v in {**self.env, **(env or {})}.items() if v is not None}
        program = Program(argv, merged, cwd or self.folder / 'home', self.folder / 'logs', pass_fds)
        self._programs.append(program)
        return program

    def run(self, argv, seconds=30):
        """A short tool; what it prints."""
        done = subprocess.run([str(word) for word in argv], env=self.env, cwd=self.folder, timeout=seconds,
                              stdin=subprocess.DEVNULL, capture_output=True, check=False)
        if done.returncode:
            raise DesktopError(f'{" ".join(map(str, argv))}: {done.stderr.decode(errors="replace")[-500:]}')
        return done.stdout.decode(errors='replace')

    @staticmethod
    def wait_for(condition, what, seconds=10):
        """The first true answer of condition(); an error that names `what` when there is none in time."""
        return wait_until(condition, what, seconds)

    # Windows

    def wait_window(self, title=None, seconds=10, **how):
        return wait_until(lambda: self.windows.find(title, **how), f'window {title!r} {how or ""}', seconds)

    def wait_no_window(self, title=None, seconds=10, **how):
        wait_until(lambda: not self.windows.find(title, **how), f'end of window {title!r}', seconds)

    def wait_active(self, title, seconds=5):
        def active():
            window = self.windows.active()
            return window if window and re.search(title, window.title) else None
        return wait_until(active, f'{title!r} to have the focus', seconds)

    # Pointer, keyboard, pictures

    def click(self, x, y, button=1, double=False):
        """At pixels of the root window; buttons: 1 left, 2 middle, 3 right."""
        twice = ['--repeat', '2', '--delay', '60'] if double else []
        self.run(['xdotool', 'mousemove', round(x), round(y), 'click', *twice, button])

    def move(self, x, y):
        self.run(['xdotool', 'mousemove', round(x), round(y)])

    def key(self, *keys):
        """Keys as xdotool spells them: 'ctrl+a', 'Return', 'alt+F4'."""
        self.run(['xdotool', 'key', '--clearmodifiers', *keys])

    def type(self, text):
        self.run(['xdotool', 'type', '--clearmodifiers', '--', text])

    def screenshot(self, path, rect=None):
        """A PNG of the whole screen or of rect = (x, y, width, height)."""
        crop = ['-crop', '{2}x{3}+{0}+{1}'.format(*rect), '+repage'] if rect else []
        self.run(['import', '-silent', '-window', 'root', *crop, f'png:{path}'])
        return path

    # Texts

    def reader(self):
        """The accessibility reader (accessibility.py), for desktops made with accessibility=True."""
        if not self._reader:
            self._reader = QuestionProcess('accessibility.py', self.env, self.folder, self.folder / 'logs')
        return self._reader

    def objects(self, program, role=None, name=None, showing=True):
        """What a screen reader finds: dictionaries with role, name, showing, selected, enabled, focused and
        where."""
        return [o for o in self.reader().ask('tree', pid=program.pid)
                if role in (None, o['role']) and (name is None or re.search(name, o['name']))
                and (o['showing'] or not showing)]

    def click_object(self, found, window):
        """A real mouse click into the middle of an object in `window`, a window as the X server has it."""
        x, y, width, height = self.reader().ask('rect', where=found['where'])
        self.click(window.x + x + width // 2, window.y + y + height // 2)
