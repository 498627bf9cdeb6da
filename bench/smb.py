# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What polls and lists ask of a server, beside smbclient's get of the same file from the same smbd."""
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / 'tests' / 'desktop'))

from desktop import Program, temporary_folder  # noqa: E402
from relay import Relay  # noqa: E402
from samba import PASSWORD, USER, Samba  # noqa: E402

ROUNDS = 5
MAILBOXES, CALLS, LONG_LIST = 50, 1_000, 10_000
LIST_MAILBOX = MAILBOXES + 1
GETS = 50
SERVER_POLLS = 20


class Machine:
    """Where smbd runs and leaves its files."""

    def __init__(self, folder, environment):
        self.folder, self._environment, self._programs = folder, environment, []
        (folder / 'logs').mkdir()

    def start(self, argv):
        program = Program(argv, self._environment, self.folder, self.folder / 'logs')
        self._programs.append(program)
        return program

    def end(self):
        for program in reversed(self._programs):
            program.end()


class Asker:
    """A client's share access in a process of its own; knows what the relay counted for each command."""

    def __init__(self, programs, port):
        self._process = subprocess.Popen([programs / 'qmbenchsmb', str(port)], stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE, text=True)
        self._say(f'{USER} {PASSWORD}')

    def _say(self, line):
        self._process.stdin.write(line + '\n')
        self._process.stdin.flush()

    def milliseconds(self, command, number):
        self._say(f'{command} {number}')
        answer = self._process.stdout.readline()
        if not answer:
            raise RuntimeError(f'qmbenchsmb ended at {command} {number}')
        return int(answer) / 1000

    def close(self):
        self._process.stdin.close()
        self._process.wait()


def make_share(programs, share):
    for calls, name in ((CALLS, 'mailbox'), (LONG_LIST, 'list')):
        subprocess.run([programs / 'qmbenchdb', share.parent / f'{name}.mdb', str(calls), '--calls'], check=True)
    for mailbox in range(1, LIST_MAILBOX + 1):
        folder = share / 'MBX' / str(mailbox)
        folder.mkdir(parents=True)
        shutil.copy(share.parent / ('mailbox.mdb' if mailbox < LIST_MAILBOX else 'list.mdb'), folder / 'qmLog.mdb')


def time_ours(programs, port):
    """Medians in ms: first poll with its connection, poll, poll of many, list."""
    rounds = []
    for _ in range(ROUNDS):
        asker = Asker(programs, port)
        rounds.append([asker.milliseconds('poll', 1), asker.milliseconds('poll', 1),
                       asker.milliseconds('poll', MAILBOXES) and asker.milliseconds('poll', MAILBOXES),
                       asker.milliseconds('list', LIST_MAILBOX)])
        asker.close()
    return [statistics.median(found) for found in zip(*rounds)]


def time_smbclient(port, mailbox):
    """Medians in ms: a program run that gets the file once, and each further get in the same connection."""
    get = rf'get MBX\{mailbox}\qmLog.mdb /dev/null'
    once, further = [], []
    for _ in range(ROUNDS):
        seconds = [_smbclient(port, ';'.join([get] * gets)) for gets in (1, 1 + GETS)]
        once.append(seconds[0] * 1000)
        further.append((seconds[1] - seconds[0]) / GETS * 1000)
    return statistics.median(once), statistics.median(further)


def _smbclient(port, commands):
    started = time.perf_counter()
    subprocess.run(['smbclient', '//127.0.0.1/Quillamar_0$', '-p', str(port), '-U', f'{USER}%{PASSWORD}',
                    '-c', commands], check=True, capture_output=True)
    return time.perf_counter() - started


def server_milliseconds(programs, server):
    """Processor time of smbd for one poll of all mailboxes, over some polls in one connection."""
    asker = Asker(programs, server.port)
    asker.milliseconds('poll', MAILBOXES)
    before = _processor_seconds(server.program.pid)
    for _ in range(SERVER_POLLS):
        asker.milliseconds('poll', MAILBOXES)
    spent = _processor_seconds(server.program.pid) - before
    asker.close()
    return spent * 1000 / SERVER_POLLS


def _processor_seconds(group):
    """What the living processes of a group have used, from /proc."""
    ticks = 0
    for status in pathlib.Path('/proc').glob('[0-9]*/stat'):
        try:
            fields = status.read_text().rpartition(')')[2].split()
        except OSError:
            continue
        if int(fields[2]) == group:
            ticks += int(fields[11]) + int(fields[12])
    return ticks / os.sysconf('SC_CLK_TCK')


def count_ours(programs, server_port):
    """(requests, bytes) of: first poll with its connection, poll, poll of many, list."""
    relay = Relay(server_port)
    asker = Asker(programs, relay.port)
    found = []
    for command, number in (('poll', 1), ('poll', 1), ('poll', MAILBOXES), ('poll', MAILBOXES),
                            ('list', LIST_MAILBOX)):
        before = relay.counts()
        asker.milliseconds(command, number)
        found.append(tuple(after - earlier for after, earlier in zip(relay.counts(), before)))
    asker.close()
    relay.close()
    return [found[0], found[1], found[3], found[4]]


def count_smbclient(server_port):
    """(requests, bytes) of each further get in one connection."""
    get = r'get MBX\1\qmLog.mdb /dev/null'
    totals = []
    for gets in (1, 2):
        relay = Relay(server_port)
        _smbclient(relay.port, ';'.join([get] * gets))
        totals.append(relay.counts())
        relay.close()
    return tuple(two - one for one, two in zip(*totals))


def rows(times, server, peers, counts, peer_counts):
    """[(measure, ours, peer, goal)]; no peer where nobody does the same."""
    first, one, many, listed = times
    get_once, get, get_list = peers
    first_counts, one_counts, many_counts, list_counts = counts
    return [
        (f'smb: first poll, {CALLS} calls, beside smbclient get (both with log-on): time in ms', first, get_once,
         'ratio <= 1'),
        ('smb: first poll with its log-on: requests', first_counts[0], None, '-'),
        ('smb: first poll with its log-on: bytes both ways', first_counts[1], None, '-'),
        (f'smb: poll, {CALLS} calls, beside a further get of the file: time in ms', one, get, '-'),
        (f'smb: poll, {CALLS} calls, beside a further get: requests', one_counts[0], peer_counts[0], '-'),
        (f'smb: poll, {CALLS} calls, beside a further get: bytes both ways', one_counts[1], peer_counts[1],
         'ratio <= 1'),
        (f'smb: poll of {MAILBOXES} mailboxes: time in ms', many, None, '-'),
        (f'smb: poll of {MAILBOXES} mailboxes: requests', many_counts[0], None, '-'),
        (f'smb: poll of {MAILBOXES} mailboxes: bytes both ways', many_counts[1], None, '-'),
        (f'smb: poll of {MAILBOXES} mailboxes: processor time of smbd in ms', server, None, '-'),
        (f'smb: list of {LONG_LIST} calls, beside a further get of the file: time in ms', listed, get_list, '-'),
        (f'smb: list of {LONG_LIST} calls: requests', list_counts[0], None, '-'),
        (f'smb: list of {LONG_LIST} calls: bytes both ways', list_counts[1], None, '-'),
    ]


def measure(programs, environment):
    with temporary_folder('qm-bench-smb-') as folder:
        share = folder / 'share'
        share.mkdir()
        make_share(programs, share)
        machine = Machine(folder, environment)
        try:
            server = Samba(machine, share, guests=False)
            times = time_ours(programs, server.port)
            get_once, get = time_smbclient(server.port, 1)
            _, get_list = time_smbclient(server.port, LIST_MAILBOX)
            return rows(times, server_milliseconds(programs, server), (get_once, get, get_list),
                        count_ours(programs, server.port), count_smbclient(server.port))
        finally:
            machine.end()
