# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Samba's own smbd on 127.0.0.1 over a folder, as the server srv01 of a test; it runs as root does."""
import contextlib
import os
import pathlib
import re
import signal
import socket
import subprocess

from desktop import DesktopError, wait_until

USER, PASSWORD = 'mbxuser', 'secret'


class Samba:
    """The share Quillamar_0$ is `share`; everything else lies in `own`. Guests are welcome unless told otherwise."""

    def __init__(self, desktop, share, guests=True, settings=None):
        self.desktop, self.share, self.guests, self.settings = desktop, share, guests, settings or {}
        self.own = desktop.folder / 'samba'
        with socket.socket() as probe:
            probe.bind(('127.0.0.1', 0))
            self.port = probe.getsockname()[1]
        self._configure()
        self.set_password(PASSWORD)
        self.start()

    @property
    def address(self):
        """What the administrator writes in the place of a folder."""
        return f'smb://127.0.0.1:{self.port}'

    def _configure(self, of_share=''):
        folders = {name: self.own / name for name in ('private', 'lock', 'state', 'cache', 'pid', 'ncalrpc')}
        for folder in folders.values():
            folder.mkdir(parents=True, exist_ok=True)
        (self.own / 'users').write_text(f'root = {USER} {USER}@QMTEST.EXAMPLE QMTEST\\{USER} QMTEST.EXAMPLE\\{USER}\n')
        settings = {'server role': 'standalone server', 'interfaces': '127.0.0.1', 'bind interfaces only': 'yes',
                    'smb ports': self.port, 'private dir': folders['private'], 'lock directory': folders['lock'],
                    'state directory': folders['state'], 'cache directory': folders['cache'],
                    'pid directory': folders['pid'], 'ncalrpc dir': folders['ncalrpc'],
                    'passdb backend': f'smbpasswd:{folders["private"]}/smbpasswd', 'log file': self.own / 'log',
                    'log level': '1 auth_audit:3', 'disable netbios': 'yes', 'disable spoolss': 'yes',
                    'load printers': 'no', 'printcap name': '/dev/null', 'username map': self.own / 'users',
                    'guest account': 'root'}
        if self.guests:
            settings['map to guest'] = 'Bad User'
        settings |= self.settings
        share = {'path': self.share, 'read only': 'no', 'guest ok': 'yes' if self.guests else 'no'}
        lines = ['[global]', *(f'{name} = {value}' for name, value in settings.items()), '[Quillamar_0$]',
                 *(f'{name} = {value}' for name, value in share.items()), of_share, '']
        (self.own / 'smb.conf').write_text('\n'.join(lines))

    def set_password(self, password):
        subprocess.run(['smbpasswd', '-c', self.own / 'smb.conf', '-s', '-a', 'root'], check=True,
                       input=f'{password}\n{password}\n', text=True, capture_output=True)

    def start(self):
        # In a group of its own: what stops or kills it reaches all its processes.
        self.program = self.desktop.start(['smbd', '--foreground', '--no-process-group', '-s', self.own / 'smb.conf'])
        wait_until(self._answers, 'smbd to answer', 30)

    def _answers(self):
        if not self.program.alive:
            raise DesktopError(f'smbd has ended: {self.program.output()[-500:]}')
        with socket.socket() as probe:
            return probe.connect_ex(('127.0.0.1', self.port)) == 0

    def kill(self):
        self._signal(signal.SIGKILL)
        self.program.wait(10)

    def restart_with(self, of_share):
        """With another line for the share; the last of its kind counts."""
        self.kill()
        self._configure(of_share)
        self.start()

    def cut_connections(self):
        """Without a word to the clients; new ones are taken."""
        for pid in self._connections():
            os.kill(pid, signal.SIGKILL)

    def _connections(self):
        found = []
        for pid in map(int, filter(str.isdigit, os.listdir('/proc'))):
            with contextlib.suppress(OSError):
                if pid != self.program.pid and os.getpgid(pid) == self.program.pid:
                    if pathlib.Path(f'/proc/{pid}/comm').read_text(encoding='ascii') == 'smbd\n':
                        found.append(pid)
        if not found:
            raise DesktopError('nobody is connected')
        return found

    def stop(self):
        """Connections are still taken by the kernel; nothing is answered."""
        self._signal(signal.SIGSTOP)

    def go_on(self):
        self._signal(signal.SIGCONT)

    def _signal(self, number):
        os.killpg(self.program.pid, number)

    def log_ons(self, status):
        """How many log-ons ended so: NT_STATUS_OK, NT_STATUS_WRONG_PASSWORD …"""
        return len(self._log_ons(status))

    def names(self, status):
        """Who logged on so: domains and users as the clients wrote them, nobody but guests left out."""
        found = (re.search(r' user \[(.*?)\]\\\[(.*?)\]', line) for line in self._log_ons(status))
        return {match.groups() for match in found if match and match[2]}

    def _log_ons(self, status):
        log = pathlib.Path(self.own / 'log').read_text(errors='replace')
        return [line for line in log.splitlines() if 'Auth: [SMB2' in line and f'status [{status}]' in line]
