# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Programs of a private desktop: started with captured output, ended by pid, dying with whoever started them.

Every program started here carries QM_DESKTOP=<folder of its desktop> in its environment, and this process
adopts orphans, so that what a program leaves running in the background is found and ended as well.
"""
import contextlib
import ctypes
import os
import pathlib
import signal
import subprocess
import tempfile
import time

_END_SECONDS = 30  # of a program that has to end well, on a busy machine
PR_SET_PDEATHSIG, PR_SET_CHILD_SUBREAPER = 1, 36
MARK = 'QM_DESKTOP'
_libc = ctypes.CDLL(None)


class DesktopError(Exception):
    """The desktop could not do what was asked, or a condition did not come true in its time."""


def wait_until(condition, what, seconds=10, interval=0.02):
    """The first true answer of condition(); DesktopError when there is none in time."""
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() >= end:
            raise DesktopError(f'{what}: not within {seconds:g} s')
        time.sleep(interval)


def wait_resting(place, what):
    """The same answer of place() at two looks: a panel moves while it makes room for an icon."""
    places = []

    def rests():
        places.append(place())
        return places[-1] if places[-2:-1] == places[-1:] else None
    return wait_until(rests, what, interval=0.1)


def die_with_parent():
    """For preexec_fn: whoever kills the parent kills the program too."""
    _libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL, 0, 0, 0)


class Program:
    """A running program; its output goes to two files that can be read at any time."""

    ends_well = False  # whether it is a failure when it does not end by itself, and with 0, once it is asked to

    def __init__(self, argv, env, cwd, logs, pass_fds=(), stdin=subprocess.DEVNULL, stdout=None):
        self.argv = [str(word) for word in argv]
        self.name = pathlib.Path(self.argv[0]).name
        base = f'{len(os.listdir(logs)) // 2:03d}-{self.name}'
        self._out, self._err = logs / f'{base}.out', logs / f'{base}.err'
        with open(self._out, 'wb') as out, open(self._err, 'wb') as err:
            try:
                self.popen = subprocess.Popen(self.argv, env=env, cwd=cwd, stdin=stdin, stdout=stdout or out,
                                              stderr=err, pass_fds=pass_fds, start_new_session=True,
                                              preexec_fn=die_with_parent)
            except OSError as error:
                raise DesktopError(f'{self.argv[0]} does not start: {error}') from None
        self.pid = self.popen.pid

    @property
    def alive(self):
        return self.popen.poll() is None

    def output(self):
        return self._out.read_text(errors='replace')

    def errors(self):
        return self._err.read_text(errors='replace')

    def wait(self, seconds):
        """The exit code (negative: the signal that ended it)."""
        try:
            return self.popen.wait(seconds)
        except subprocess.TimeoutExpired:
            raise DesktopError(f'{self.name} still runs after {seconds:g} s') from None

    def end(self, grace=3):
        """Asks it to end, insists after `grace` seconds."""
        if self.alive:
            self.popen.terminate()
            try:
                return self.popen.wait(grace)
            except subprocess.TimeoutExpired:
                self.popen.kill()
        return self.popen.wait(5)

    def end_or_complain(self):
        """Ends it; tells what was wrong with how it ended if it has to end well and still ran."""
        if not (self.ends_well and self.alive):
            self.end()
            return None
        code = self.end(_END_SECONDS)
        return f'{self.name} ended with {code}: {self.errors()[-800:]}' if code != 0 else None

    def own_memory_kib(self):
        """Resident memory without the pages of files, which come as code is first used and go as they please."""
        for line in pathlib.Path(f'/proc/{self.pid}/status').read_text().splitlines():
            if line.startswith('RssAnon:'):
                return int(line.split()[1])
        raise DesktopError(f'{self.name} has ended')

    def open_files(self):
        """What its descriptors point to, sorted."""
        found = []
        for entry in os.listdir(f'/proc/{self.pid}/fd'):
            try:
                found.append(os.readlink(f'/proc/{self.pid}/fd/{entry}'))
            except FileNotFoundError:
                continue
        return sorted(found)


@contextlib.contextmanager
def temporary_folder(prefix):
    """A folder that goes with the block; a shell removes it that notices when this process is killed."""
    folder = pathlib.Path(tempfile.mkdtemp(prefix=prefix))
    with subprocess.Popen(['/bin/sh', '-c', 'cat >/dev/null; rm -rf -- "$0"', folder], stdin=subprocess.PIPE,
                          start_new_session=True):
        yield folder


def adopt_orphans():
    """From now on background processes of our programs become our own children."""
    _libc.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def strays(folder):
    """Pids of our own children that belong to the desktop in `folder`; ended ones are collected."""
    found = []
    for pid in _children():
        try:
            if os.waitpid(pid, os.WNOHANG)[0]:
                continue
            marks = pathlib.Path(f'/proc/{pid}/environ').read_bytes().split(b'\0')
        except (ChildProcessError, OSError):
            continue
        if f'{MARK}={folder}'.encode() in marks:
            found.append(pid)
    return found


def end_strays(folder, seconds=5):
    """Ends what is left of a desktop; an ended parent hands its children to us, so it goes round by round."""
    end = time.monotonic() + seconds
    while (left := strays(folder)) and time.monotonic() < end:
        for pid in left:
            os.kill(pid, signal.SIGKILL)
        time.sleep(0.01)
    return left


def _children():
    found = []
    for task in os.listdir('/proc/self/task'):
        found += map(int, pathlib.Path(f'/proc/self/task/{task}/children').read_text().split())
    return found
