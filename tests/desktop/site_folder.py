# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a client needs around it: a folder that stands for the server's share, and the user's settings."""
import os
import pathlib
import re
import subprocess

from desktop import DesktopError

ROOT = pathlib.Path(__file__).resolve().parents[2]
BIN = pathlib.Path(os.environ.get('QM_BIN', ROOT / 'build' / 'dev' / 'bin'))
SERVER = 'srv01'
_KEY = r'HKEY_CURRENT_USER\Software\Corvantis\Quillamar\1.0'


def program(name):
    path = BIN / name
    if not path.exists():
        raise DesktopError(f'{path} is not built')
    return path


def mailbox_folder(share, number):
    return pathlib.Path(share) / 'MBX' / str(number)


def database(share, number):
    return mailbox_folder(share, number) / 'qmLog.mdb'


def count_calls(path):
    """By the command-line tool, not by the client."""
    done = subprocess.run([program('qmjet'), 'count', path, 'CallLog'],
                          capture_output=True, text=True, check=True)
    return int(re.search('[0-9]+', done.stdout)[0])


def _text(value):
    return '"' + str(value).replace('\\', '\\\\').replace('"', '\\"') + '"'


def write_settings(config_home, share, mailboxes, seconds=1, server=SERVER, **changed):
    """The settings file as a Windows workstation exports it. mailboxes: {number: name}.

    changed: other values of the client's key as they stand in the file, such as PollInterval='"often"'.
    """
    values = {'ServerName': _text(server), 'PollInterval': f'dword:{seconds:08x}'} | changed
    lines = ['Windows Registry Editor Version 5.00', '', f'[{_KEY}\\Client]']
    lines += [f'"{name}"={value}' for name, value in values.items()]
    for number, name in mailboxes.items():
        lines += ['', f'[{_KEY}\\Client\\Mailboxes\\{number}]', f'"Name"={_text(name)}',
                  f'"Description"={_text(f"Mailbox {number}")}', '"MailboxType"="M"']
    lines += ['', f'[{_KEY}\\Shares]', f'"{SERVER}"={_text(share)}', '']
    file = settings_file(config_home)
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_bytes('\r\n'.join(lines).encode('utf-16'))


def settings_file(config_home):
    return pathlib.Path(config_home) / 'Corvantis' / 'Quillamar' / 'registry.reg'


def read_settings(config_home):
    """The stored values by key, keys without what they have in common."""
    raw = settings_file(config_home).read_bytes()
    text = raw.decode('utf-16' if raw[:2] == b'\xff\xfe' else 'utf-8-sig')
    values, key = {}, None
    for line in text.splitlines():
        if line.startswith('['):
            key = line[1:-1].split('1.0\\')[-1]
            values[key] = {}
        elif '=' in line:
            name, value = line.split('=', 1)
            values[key][name.strip('"')] = value
    return values
